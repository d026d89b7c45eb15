// Arranging the selected cards: their rectangles go through the rules of Arrange.h and back into the cards.
#include "canvas/Arrange.h"
#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"

namespace xrpt {

// Runs a rule over the rectangles of the selected cards that exist, in selection order.
template <class Rule>
void RVEditTemplateWnd::Arrange(const Rule& rule, int undoTextId) {
  DropGesture();
  std::vector<std::size_t> indexes = SelectedIndexes();
  std::erase(indexes, CardList::kNowhere);
  Rects rects;
  for (const std::size_t index : indexes) rects.push_back(RectOf(page_.cards[index]));
  rule(rects, indexes);
  for (std::size_t i = 0; i < indexes.size(); ++i) {
    if (rects[i] != RectOf(page_.cards[indexes[i]])) SetRect(page_.cards.Edit(indexes[i]), rects[i]);
  }
  FinishArranging(undoTextId);
}

void RVEditTemplateWnd::FinishArranging(int undoTextId) {
  if (!AddUndoInfo(false, {undoTextId, static_cast<int>(selection_.Size())})) return;
  RedrawBackground();
  PostChange(false);
}

bool RVEditTemplateWnd::IsReferenceThere() const {
  return !selection_.IsEmpty() && page_.cards.Find(selection_.Entries().back().id) != nullptr;
}

void RVEditTemplateWnd::AlignSelectedControls(int mode) {
  const PagePlacement place = Placement();
  if (!place.IsValid()) return;
  if (!IsReferenceThere()) return static_cast<void>(AddUndoInfo(false));
  Arrange([&](Rects& rects, const auto&) { AlignToLast(rects, mode, PageOf(place)); }, text::kAlign);
}

void RVEditTemplateWnd::AlignSelectedControlsCtrl(int mode) {
  const PagePlacement place = Placement();
  if (!place.IsValid()) return;
  Arrange([&](Rects& rects, const auto&) { AlignToAll(rects, mode, PageOf(place)); }, text::kAlign);
}

void RVEditTemplateWnd::DistributeSelectedControls(int mode) {
  const PagePlacement place = Placement();
  if (!place.IsValid()) return;
  Arrange([&](Rects& rects, const auto&) { Distribute(rects, mode == 1, PageOf(place)); }, text::kDistribute);
}

void RVEditTemplateWnd::JustifySelectedControls(int mode, bool asGroup) {
  if (selection_.IsEmpty()) return static_cast<void>(AddUndoInfo(false));
  const ArrangePage page{page_.properties.width, page_.properties.height, 0.0, 0.0};
  const auto center = asGroup ? CenterAsGroup : CenterEach;
  Arrange([&](Rects& rects, const auto&) { center(rects, mode == 1, page); }, text::kCenter);
}

void RVEditTemplateWnd::ResizeSelectedControls(bool sameWidth, bool sameHeight) {
  const PagePlacement place = Placement();
  if (!place.IsValid()) return;
  if (!IsReferenceThere()) return static_cast<void>(AddUndoInfo(false));
  Arrange(
      [&](Rects& rects, const std::vector<std::size_t>& indexes) {
        std::vector<bool> resizable;
        for (const std::size_t index : indexes) resizable.push_back(page_.cards[index].Resizable());
        SameSize(rects, resizable, sameWidth, sameHeight, PageOf(place));
      },
      text::kSameSizes);
}

ArrangePage RVEditTemplateWnd::PageOf(const PagePlacement& place) {
  return {place.pageWidth, place.pageHeight, place.PixelWidth(), place.PixelHeight()};
}

void RVEditTemplateWnd::ControlBringToFront() {
  if (selection_.IsEmpty()) return;
  DropGesture();
  for (const std::wstring& id : selection_.Ids()) {
    const std::size_t index = page_.cards.IndexOf(id);
    if (index != CardList::kNowhere) page_.cards.MoveToFront(index);
  }
  FinishStacking(text::kToFront);
}

void RVEditTemplateWnd::ControlSendToBack() {
  if (selection_.IsEmpty()) return;
  DropGesture();
  for (const std::wstring& id : selection_.Ids()) {
    const std::size_t index = page_.cards.IndexOf(id);
    if (index != CardList::kNowhere) page_.cards.MoveToBack(index);
  }
  FinishStacking(text::kToBack);
}

void RVEditTemplateWnd::FinishStacking(int undoTextId) {
  AddUndoInfo(true, {undoTextId, static_cast<int>(selection_.Size())});
  RedrawBackground();
  PostChange(false);
}

}  // namespace xrpt
