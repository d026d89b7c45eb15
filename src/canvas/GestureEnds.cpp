// What the release of a gesture does to the selection and to the cards.
#include <algorithm>
#include <unordered_set>

#include "canvas/ClickedCard.h"
#include "canvas/DragRules.h"
#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"

namespace xrpt {
namespace {

// One edge of a card dropped on a grid line. A near edge moves alone: the size stays as dragged.
void DropNear(double& near, double step) {
  if (IsActive(step)) near = SnapToGrid(near, step);
}

void DropFar(double near, double& size, double step) {
  if (IsActive(step)) SnapFarEdge(near, size, step);
}

// The edges that a style moves land on the grid; a move lands with its top-left corner.
void DropOnGrid(CardRect& rect, int style, const GridSteps& grid) {
  const bool moves = style == kMoveAll || style == kNoEdge;
  if (style & kTopEdge || moves) DropNear(rect.y, grid.y);
  if (!moves && style & kBottomEdge) DropFar(rect.y, rect.height, grid.y);
  if (style & kLeftEdge || moves) DropNear(rect.x, grid.x);
  if (!moves && style & kRightEdge) DropFar(rect.x, rect.width, grid.x);
}

// A card that is less than a pixel at this zoom keeps its size, whatever happens to its place; and neither grid nor
// guides leave one without extent.
void KeepExtent(CardRect& rect, const CardRect& stored) {
  if (!(rect.width >= kLeastExtent)) rect.width = stored.width;
  if (!(rect.height >= kLeastExtent)) rect.height = stored.height;
}

void ApplyHit(const std::optional<GuideHit>& hit, double& start, double& size, bool resized) {
  if (!hit) return;
  if (resized) {
    ResizeToHit(start, size, *hit);
  } else {
    MoveToHit(start, size, *hit);
  }
}

CardRect Cover(const std::vector<CardRect>& rects) {
  RectD all(rects[0].x, rects[0].y, rects[0].x, rects[0].y);
  for (const CardRect& rect : rects) {
    all = RectD(std::min(all.left, rect.x), std::min(all.top, rect.y), std::max(all.right, rect.x + rect.width),
                std::max(all.bottom, rect.y + rect.height));
  }
  return {all.left, all.top, all.Width(), all.Height()};
}

// What lined up on the screen lines up to the last digit: all cards together when they were moved, one card's edge when
// it was resized.
void AdjustToGuides(std::vector<CardRect>& rects, const GuideHits& hits, bool resized) {
  if (rects.empty() || (resized && rects.size() > 1)) return;
  const CardRect before = Cover(rects);
  CardRect all = before;
  ApplyHit(hits.x, all.x, all.width, resized);
  ApplyHit(hits.y, all.y, all.height, resized);
  for (CardRect& rect : rects) {
    rect = resized ? all : CardRect{rect.x + all.x - before.x, rect.y + all.y - before.y, rect.width, rect.height};
  }
}

// Of a dragged stretch only what was dragged: an edge that did not move keeps every digit it is stored with, and so
// does the size of what was moved as a whole.
void KeepStoredDigits(double& near, double& size, double storedNear, double storedSize, bool nearMoved, bool farMoved) {
  const double far = farMoved ? near + size : storedNear + storedSize;
  if (!nearMoved) near = storedNear;
  size = nearMoved == farMoved ? (nearMoved ? size : storedSize) : far - near;
}

// A card shifted as far as the pointer went: cards moved together keep their distances to the last digit.
CardRect Shifted(const CardRect& stored, const Gesture::Part& part, const PagePlacement& place) {
  return {stored.x + (part.rect.left - part.start.left) * place.PixelWidth(),
          stored.y + (part.rect.top - part.start.top) * place.PixelHeight(), stored.width, stored.height};
}

void KeepStoredDigits(CardRect& rect, const CardRect& stored, const Gesture::Part& part, bool moves) {
  const Rect& from = part.start;
  const Rect& to = part.rect;
  if (moves) {
    rect = {to.left == from.left ? stored.x : rect.x, to.top == from.top ? stored.y : rect.y, stored.width,
            stored.height};
    return;
  }
  KeepStoredDigits(rect.x, rect.width, stored.x, stored.width, to.left != from.left, to.right != from.right);
  KeepStoredDigits(rect.y, rect.height, stored.y, stored.height, to.top != from.top, to.bottom != from.bottom);
}

}  // namespace

// True when a drawn card was too small to be made.
bool RVEditTemplateWnd::RepositioningControl() {
  const PagePlacement place = Placement();
  if ((selection_.IsEmpty() && !gesture_.Band()) || !place.IsValid()) return false;
  switch (gesture_.Row().kind) {
    case GestureKind::Band:
      EndBand(place);
      return false;
    case GestureKind::Draw:
      return !EndDrawing(place);
    case GestureKind::Drag:
      EndDrag(place);
      return false;
    default:
      EndClick();
      return false;
  }
}

void RVEditTemplateWnd::EndBand(const PagePlacement& place) {
  const SelectionRule rule = gesture_.Row().onRelease;
  const Rect band = gesture_.Band().value_or(Rect());
  std::unordered_set<CardKey> gone;
  for (std::size_t i = 0; i < page_.cards.Size(); ++i) {
    const RVCardControl& card = page_.cards[i];
    const bool inside = IsReachable(card) && Intersects(ToPixels(place, RectOf(card)), band);
    const bool wasSelected = inside ? !selection_.AddSelection(card) : selection_.IsSelected(card);
    if (wasSelected && rule == (inside ? SelectionRule::Toggle : SelectionRule::Replace)) gone.insert(card.Key());
  }
  selection_.Retain([&](const RVSelection::Entry& entry) { return gone.count(entry.key) == 0; });
  SelectGroups();
}

// Nothing where that is too small, unless a click makes a card and what is only thin is meant so.
bool RVEditTemplateWnd::EndDrawing(const PagePlacement& place) {
  const Rect drawn = gesture_.Band().value_or(Rect());
  const bool narrow = drawn.Width() < Gesture::kSmallestDragged;
  const bool low = drawn.Height() < Gesture::kSmallestDragged;
  if ((narrow || low) && !DrawsOverCards()) return false;
  const CardRect rect = narrow && low ? ClickedRect(place) : DrawnRect(place);
  PageEdit edit = Edit(GestureName());
  AddControl(rect.x, rect.y, rect.width, rect.height);
  edit.EndQuietly();
  return true;
}

CardRect RVEditTemplateWnd::ClickedRect(const PagePlacement& place) const {
  const Rect drawn = gesture_.Band().value_or(Rect());
  const CardRect at = ToMillimetres(place, drawn);
  return ClickedCardRect({place.pageWidth, place.pageHeight}, GridOf(page_.properties),
                         FindInsertKind(insertKind_)->clickedSize, {at.x, at.y});
}

CardRect RVEditTemplateWnd::DrawnRect(const PagePlacement& place) const {
  const Rect drawn = gesture_.Band().value_or(Rect());
  const GridSteps grid = gesture_.Snaps() ? GridOf(page_.properties) : GridSteps();
  const CardRect asDrawn = ToMillimetres(place, drawn);
  CardRect rect = asDrawn;
  const double right = rect.x + rect.width;
  const double bottom = rect.y + rect.height;
  DropNear(rect.x, grid.x);
  DropNear(rect.y, grid.y);
  rect.width = right - rect.x;
  rect.height = bottom - rect.y;
  DropFar(rect.x, rect.width, grid.x);
  DropFar(rect.y, rect.height, grid.y);
  ApplyHit(gesture_.Hits().x, rect.x, rect.width, true);
  ApplyHit(gesture_.Hits().y, rect.y, rect.height, true);
  KeepExtent(rect, asDrawn);
  return rect;
}

// Where the drag leaves each card, millimetres.
std::vector<CardRect> RVEditTemplateWnd::DroppedRects(const std::vector<std::size_t>& indexes,
                                                      const PagePlacement& place) const {
  const GridSteps grid = gesture_.Snaps() ? GridOf(page_.properties) : GridSteps();
  std::vector<CardRect> rects;
  for (std::size_t i = 0; i < indexes.size(); ++i) {
    const Gesture::Part& part = gesture_.Parts()[i];
    const bool isThere = indexes[i] != CardList::kNowhere;
    const bool shifts = isThere && options_.keepsStoredDigits && gesture_.Moves();
    rects.push_back(shifts ? Shifted(RectOf(page_.cards[indexes[i]]), part, place) : ToMillimetres(place, part.rect));
    if (isThere) KeepExtent(rects.back(), RectOf(page_.cards[indexes[i]]));
    DropOnGrid(rects.back(), gesture_.Style(), grid);
    IntelligentAdjustToGrid(rects.back(), grid, place);
  }
  AdjustToGuides(rects, gesture_.Hits(), !gesture_.Moves());
  for (std::size_t i = 0; i < indexes.size(); ++i) {
    if (indexes[i] != CardList::kNowhere) KeepExtent(rects[i], RectOf(page_.cards[indexes[i]]));
  }
  return rects;
}

std::vector<std::size_t> RVEditTemplateWnd::DraggedIndexes() const {
  std::vector<CardKey> keys;
  for (const Gesture::Part& part : gesture_.Parts()) keys.push_back(part.card);
  return page_.cards.IndexesOf(keys);
}

// What is written into the cards; those that are gone, or are not resized along, keep what they have.
std::vector<CardRect> RVEditTemplateWnd::RectsAfterDrag(const std::vector<std::size_t>& indexes,
                                                        const PagePlacement& place) const {
  std::vector<CardRect> rects = DroppedRects(indexes, place);
  for (std::size_t i = 0; i < indexes.size(); ++i) {
    const Gesture::Part& part = gesture_.Parts()[i];
    if (indexes[i] == CardList::kNowhere) continue;
    const CardRect stored = RectOf(page_.cards[indexes[i]]);
    if (!gesture_.Moves() && !part.resizable) {
      rects[i] = stored;
    } else if (options_.keepsStoredDigits) {
      KeepStoredDigits(rects[i], stored, part, gesture_.Moves());
    }
  }
  return rects;
}

void RVEditTemplateWnd::EndDrag(const PagePlacement& place) {
  if (gesture_.shownCursor == Cursor::No) return;
  const std::vector<std::size_t> indexes = DraggedIndexes();
  const std::vector<CardRect> rects = RectsAfterDrag(indexes, place);
  if (gesture_.Copies()) return InsertCopies(indexes, rects, text::kCopyCards);
  PageEdit edit = Edit(GestureName());
  for (std::size_t i = 0; i < indexes.size(); ++i) {
    if (indexes[i] == CardList::kNowhere) continue;
    if (rects[i] != RectOf(page_.cards[indexes[i]])) SetRect(edit.Card(indexes[i]), rects[i]);
  }
  edit.EndQuietly();
}

std::optional<CardRect> RVEditTemplateWnd::DraggedBox() const {
  const PagePlacement place = Placement();
  const GestureKind kind = gesture_.Row().kind;
  if (!place.IsValid() || (kind != GestureKind::Draw && kind != GestureKind::Drag)) return std::nullopt;
  if (kind == GestureKind::Draw) {
    const Rect drawn = gesture_.Band().value_or(Rect());
    const bool isClick = std::max(drawn.Width(), drawn.Height()) < Gesture::kSmallestDragged;
    return isClick ? std::nullopt : std::optional(DrawnRect(place));
  }
  const std::vector<CardRect> rects = RectsAfterDrag(DraggedIndexes(), place);
  return rects.empty() ? std::nullopt : std::optional(Cover(rects));
}

void RVEditTemplateWnd::EndClick() {
  const std::size_t index = page_.cards.IndexOf(gesture_.Pressed());
  if (index == CardList::kNowhere) return;
  if (gesture_.Copies()) return SelectBelowAt(gesture_.PressPoint());
  const RVCardControl& card = page_.cards[index];
  switch (gesture_.Row().onRelease) {
    case SelectionRule::Alone:
      SelectAlone(card.Key());
      return SelectGroups();
    case SelectionRule::Remove:
      return DropGroupOf(card);
    case SelectionRule::Add:
      selection_.AddSelection(card);
      return SelectGroups();
    default:
      return;
  }
}

}  // namespace xrpt
