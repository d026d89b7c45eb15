// Copy, cut, paste, delete and select all.
#include "canvas/CardClipboard.h"
#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"

namespace xrpt {
namespace {

constexpr int kPasteOffset = 30;  // pixels, where no grid says otherwise

double PasteShift(double step, double pixelsPerMm, double pixel) {
  return (IsActive(step) ? roundi(step * pixelsPerMm) : kPasteOffset) * pixel;
}

// A card that would stick out goes to the page's edge.
void Shift(double& near, double size, double shift, double page) {
  near += shift;
  if (near + size > page) near = 0.0;
}

}  // namespace

bool RVEditTemplateWnd::ControlCopy() {
  if (selection_.IsEmpty()) return false;
  std::vector<const RVCardControl*> cards;
  for (const std::size_t index : SelectedIndexes()) {
    if (index != CardList::kNowhere) cards.push_back(&page_.cards[index]);
  }
  ClipboardContent content;
  if (ClipboardReader::Takes(cards.size(), 0)) content.text = CardsAsText(cards);
  // What could not be pasted again is not copied, and above all not cut.
  if (!ClipboardReader::Takes(cards.size(), content.text.size())) {
    Refuse(text::kTooMuchForClipboard);
    return false;
  }
  if (pictureMaker_) pictureMaker_(page_, selection_.Ids(), content);
  CurrentHost().clipboard->PutToClipboard(content);
  return true;
}

void RVEditTemplateWnd::ControlCut() {
  if (ControlCopy()) DeleteSelectedControls();
}

bool RVEditTemplateWnd::IsActionPasteEnabled() const {
  return clipboardReader_.HoldsCards() || (options_.pastesText && !clipboardReader_.PlainText().empty());
}

// The clipboard then holds the shifted cards, so that pasting again lands one step further.
void RVEditTemplateWnd::ControlPaste() {
  const PagePlacement place = Placement();
  const GridSteps grid = GridOf(page_.properties);
  const double dx = place.IsValid() ? PasteShift(grid.x, place.pixelsPerMm.x, place.PixelWidth()) : 0.0;
  const double dy = place.IsValid() ? PasteShift(grid.y, place.pixelsPerMm.y, place.PixelHeight()) : 0.0;
  PasteShifted(dx, dy) ? static_cast<void>(ControlCopy()) : PasteText();
}

void RVEditTemplateWnd::ControlPasteInPlace() {
  if (!PasteShifted(0.0, 0.0)) PasteText();
}

// Where the pointer is, or in the middle of what is seen.
void RVEditTemplateWnd::PasteText() {
  const std::wstring words = options_.pastesText ? clipboardReader_.PlainText() : std::wstring();
  if (words.empty()) return;
  const Rect client = port_.ClientRect();
  const Point middle{(client.left + client.right) / 2, (client.top + client.bottom) / 2};
  InsertText(words, client.Contains(gesture_.lastPoint) ? gesture_.lastPoint : middle);
}

// False when the clipboard holds no cards.
bool RVEditTemplateWnd::PasteShifted(double dx, double dy) {
  std::vector<std::unique_ptr<RVCardControl>> cards;
  if (!clipboardReader_.Read(editedPage_, cards)) return false;
  DropGesture();
  PauseTimer();
  ClearSelection();
  PageEdit edit = Edit({text::kPasteCards, static_cast<int>(cards.size())});
  for (auto& card : cards) {
    Shift(card->x, card->width, dx, page_.properties.width);
    Shift(card->y, card->height, dy, page_.properties.height);
    selection_.AddSelection(*card);
  }
  const bool hasCards = !cards.empty();
  edit.Cards().PushFront(std::move(cards));
  edit.EndQuietly();
  if (hasCards) PostChange(false);
  StartTimer();
  return true;
}

void RVEditTemplateWnd::DeleteSelectedControls() {
  if (selection_.IsEmpty()) return;
  DropGesture();
  const int count = static_cast<int>(selection_.Size());
  std::vector<std::size_t> indexes = ChangeableIndexes();
  // Cards that no id tells apart are left alone.
  std::erase_if(indexes, [&](std::size_t i) { return i == CardList::kNowhere || page_.cards[i].id.empty(); });
  for (const std::size_t index : indexes) {
    parent_.OnMessage({Message::CardAboutToBeDeleted, page_.cards[index].id, 0});
  }
  PassSearchOn(indexes);
  PageEdit edit = Edit({text::kDeleteCards, count});
  edit.Cards().Remove(std::move(indexes));
  edit.EndQuietly();
  ClearSelection();
  PostChange(false);
}

void RVEditTemplateWnd::ControlSelectAll() {
  if (page_.cards.IsEmpty() || !Placement().IsValid()) return;
  DropGesture();
  PauseTimer();
  ClearSelection();
  for (std::size_t i = 0; i < page_.cards.Size(); ++i) {
    if (IsReachable(page_.cards[i])) selection_.AddSelection(page_.cards[i]);
  }
  StartTimer();
  AddUndoInfo(false, {text::kSelect, 0});
  port_.Invalidate();
  PostChange(true);
}

}  // namespace xrpt
