// Copies of cards on the page itself: dragged with Alt held, or made by the duplicate command.
#include <algorithm>

#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"

namespace xrpt {
namespace {

constexpr double kDuplicateShift = 5.0;  // millimetres, where no grid says otherwise

double ShiftOf(double step) { return IsActive(step) ? step : kDuplicateShift; }

// Away from the original, towards the page's middle where there is no room beside it.
double Beside(double near, double size, double shift, double page) {
  return near + shift + size <= page ? near + shift : std::max(0.0, near - shift);
}

std::unique_ptr<RVCardControl> CopyOf(const RVCardControl& card, RVReportPage& page) {
  std::unique_ptr<RVCardControl> copy = card.GetClone();
  copy->TakePlaceOf(card);
  copy->SetParent(&page);
  copy->RenewIds();
  return copy;
}

}  // namespace

// The copies lie over all other cards, among each other as their originals do, and are selected in the same order.
void RVEditTemplateWnd::InsertCopies(std::vector<std::size_t> indexes, std::vector<CardRect> rects, int undoTextId) {
  std::vector<std::unique_ptr<RVCardControl>> copies;
  std::vector<std::size_t> order;
  for (std::size_t i = 0; i < indexes.size(); ++i) {
    copies.push_back(indexes[i] == CardList::kNowhere ? nullptr : CopyOf(page_.cards[indexes[i]], editedPage_));
    if (!copies[i]) continue;
    SetRect(*copies[i], rects[i]);
    order.push_back(i);
  }
  PageEdit edit = Edit({undoTextId, static_cast<int>(order.size())});
  ClearSelection();
  for (const std::size_t i : order) selection_.AddSelection(*copies[i]);
  std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return indexes[a] > indexes[b]; });
  std::vector<std::unique_ptr<RVCardControl>> stacked;
  for (const std::size_t i : order) stacked.push_back(std::move(copies[i]));
  edit.Cards().PushFront(std::move(stacked));
  edit.EndQuietly();
}

void RVEditTemplateWnd::DuplicateSelectedControls() {
  if (selection_.IsEmpty()) return;
  DropGesture();
  const GridSteps grid = GridOf(page_.properties);
  const std::vector<std::size_t> indexes = SelectedIndexes();
  std::vector<CardRect> rects;
  for (const std::size_t index : indexes) {
    CardRect rect = index == CardList::kNowhere ? CardRect() : RectOf(page_.cards[index]);
    rect.x = Beside(rect.x, rect.width, ShiftOf(grid.x), page_.properties.width);
    rect.y = Beside(rect.y, rect.height, ShiftOf(grid.y), page_.properties.height);
    rects.push_back(rect);
  }
  InsertCopies(indexes, rects, text::kDuplicateCards);
  PostChange(false);
  StartTimer();
}

}  // namespace xrpt
