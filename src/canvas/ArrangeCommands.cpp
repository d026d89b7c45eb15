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
  PageEdit edit = Edit({undoTextId, static_cast<int>(selection_.Size())});
  for (std::size_t i = 0; i < indexes.size(); ++i) {
    const RVCardControl& card = page_.cards[indexes[i]];
    if (rects[i] != RectOf(card) && !NoteOf(card).locked) SetRect(edit.Card(indexes[i]), rects[i]);
  }
  if (edit.EndQuietly()) PostChange(false);
}

bool RVEditTemplateWnd::IsReferenceThere() const {
  return !selection_.IsEmpty() && page_.cards.IndexOf(selection_.Entries().back().key) != CardList::kNowhere;
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

void RVEditTemplateWnd::ControlBringToFront() { Stack(true, text::kToFront); }

void RVEditTemplateWnd::ControlSendToBack() { Stack(false, text::kToBack); }

// A step even when the order stays as it was: unless what the user sees counts, hosts expect one.
void RVEditTemplateWnd::Stack(bool front, int undoTextId) {
  if (selection_.IsEmpty()) return;
  DropGesture();
  std::vector<std::size_t> indexes = SelectedIndexes();
  std::erase(indexes, CardList::kNowhere);
  const UndoName name{undoTextId, static_cast<int>(selection_.Size())};
  PageEdit edit = Edit(name);
  front ? edit.Cards().MoveToFront(indexes) : edit.Cards().MoveToBack(indexes);
  if (!edit.EndQuietly() && !options_.keepsStoredDigits) AddUndoInfo(true, name);
  PostChange(false);
}

void RVEditTemplateWnd::ControlBringForward() { Restack(OrderAfterRaising, text::kForward); }

void RVEditTemplateWnd::ControlSendBackward() { Restack(OrderAfterLowering, text::kBackward); }

void RVEditTemplateWnd::StackBefore(const std::vector<std::size_t>& indexes, std::size_t before) {
  DropGesture();
  PageEdit edit = Edit({text::kRestack, static_cast<int>(indexes.size())});
  edit.Cards().Reorder(OrderAfterMoving(page_.cards.Size(), indexes, before));
  edit.EndQuietly();
  PostChange(false);
}

void RVEditTemplateWnd::Restack(OrderRule rule, int undoTextId) {
  if (selection_.IsEmpty()) return;
  DropGesture();
  PageEdit edit = Edit({undoTextId, static_cast<int>(selection_.Size())});
  edit.Cards().Reorder(rule(page_.cards.Size(), SelectedIndexes()));
  edit.EndQuietly();
  PostChange(false);
}

}  // namespace xrpt
