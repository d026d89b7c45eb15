// What a gesture does to the selection's rectangles while it runs, and to the cards when it ends.
#include "canvas/DragRules.h"
#include "canvas/HitTest.h"
#include "canvas/MouseState.h"
#include "canvas/RVEditTemplateWnd.h"

namespace xrpt {
namespace {

// One edge of a card dropped on a grid line. A near edge moves alone: the size stays as dragged.
void DropNear(double& near, double step) {
  if (IsActive(step)) near = SnapToGrid(near, step);
}

void DropFar(double near, double& size, double step) {
  if (IsActive(step)) size = SnapToGrid(near + size, step) - near;
}

// The edges that a style moves land on the grid; a move lands with its top-left corner.
void DropOnGrid(CardRect& rect, int style, const GridSteps& grid) {
  const bool moves = style == kMoveAll || style == kNoEdge;
  if (style & kTopEdge || moves) DropNear(rect.y, grid.y);
  if (!moves && style & kBottomEdge) DropFar(rect.y, rect.height, grid.y);
  if (style & kLeftEdge || moves) DropNear(rect.x, grid.x);
  if (!moves && style & kRightEdge) DropFar(rect.x, rect.width, grid.x);
}

}  // namespace

// --- While it runs ---

void RVEditTemplateWnd::MoveDraggingRect(Point point) {
  const PagePlacement place = Placement();
  if (!place.IsValid()) return;
  const GridSteps grid = GridOf(page_.properties);
  const Rect all = selection_.CalculateGlobalRect();
  const int dx = MoveDelta(HorizontalAxis(place, grid), all.left, all.right, point.x - selection_.anchor.x);
  const int dy = MoveDelta(VerticalAxis(place, grid), all.top, all.bottom, point.y - selection_.anchor.y);
  selection_.Offset(dx, dy);
  selection_.anchor = {selection_.anchor.x + dx, selection_.anchor.y + dy};
}

void RVEditTemplateWnd::ResizeDraggingRect(Point point, bool horizontal, bool vertical) {
  const PagePlacement place = Placement();
  if (!place.IsValid()) return;
  const GridSteps grid = GridOf(page_.properties);
  Point delta;
  if (horizontal) {
    delta.x = ResizeDelta(HorizontalAxis(place, grid), selection_.GetTargetX(), point.x - selection_.anchor.x);
  }
  if (vertical) {
    delta.y = ResizeDelta(VerticalAxis(place, grid), selection_.GetTargetY(), point.y - selection_.anchor.y);
  }
  selection_.ActualizeResizeDraggingRect(delta);
  selection_.anchor = {selection_.anchor.x + delta.x, selection_.anchor.y + delta.y};
}

// --- When it ends ---

// True when a drawn card was too small to be made.
bool RVEditTemplateWnd::RepositioningControl() {
  const PagePlacement place = Placement();
  if ((selection_.IsEmpty() && selection_.IsRectUndefined()) || !place.IsValid()) return false;
  if (IsBand(mouseState_)) {
    EndBand(place);
  } else if (IsDrawing(mouseState_)) {
    return !EndDrawing(place);
  } else if (IsDraggingCards(mouseState_)) {
    EndDrag(place);
  } else {
    EndClick();
  }
  return false;
}

void RVEditTemplateWnd::EndBand(const PagePlacement& place) {
  const bool toggles = mouseState_ == kPressBandToggle || mouseState_ == kBandToggle;
  const bool replaces = mouseState_ == kPressBand || mouseState_ == kBandReplace;
  const Rect band = selection_.Band().value_or(Rect());
  const std::vector<std::wstring> ids = selection_.Ids();
  const std::set<std::wstring_view> selected(ids.begin(), ids.end());
  for (std::size_t i = 0; i < page_.cards.Size(); ++i) {
    const RVCardControl& card = page_.cards[i];
    const Rect rect = ToPixels(place, RectOf(card));
    const bool inside = Intersects(rect, band);
    const bool was = selected.count(card.id) > 0;
    if (inside && !was) Select(card, rect);
    if (was && (inside ? toggles : replaces)) selection_.Delete(selection_.Find(card.id));
  }
}

bool RVEditTemplateWnd::EndDrawing(const PagePlacement& place) {
  const Rect drawn = selection_.Band().value_or(Rect());
  if (drawn.Width() < kSmallestDragged || drawn.Height() < kSmallestDragged) return false;
  const GridSteps grid = GridOf(page_.properties);
  CardRect rect = ToMillimetres(place, drawn);
  const double right = rect.x + rect.width;
  const double bottom = rect.y + rect.height;
  DropNear(rect.x, grid.x);
  DropNear(rect.y, grid.y);
  rect.width = right - rect.x;
  rect.height = bottom - rect.y;
  DropFar(rect.x, rect.width, grid.x);
  DropFar(rect.y, rect.height, grid.y);
  AddControl(rect.x, rect.y, rect.width, rect.height);
  return true;
}

void RVEditTemplateWnd::EndDrag(const PagePlacement& place) {
  if (cursor_ == Cursor::No) return;
  const GridSteps grid = GridOf(page_.properties);
  const std::vector<std::size_t> indexes = SelectedIndexes();
  for (std::size_t i = 0; i < indexes.size(); ++i) {
    if (indexes[i] == CardList::kNowhere) continue;
    CardRect rect = ToMillimetres(place, selection_.Entries()[i].rect);
    DropOnGrid(rect, selection_.draggingStyle, grid);
    IntelligentAdjustToGrid(rect, grid, place);
    SetRect(page_.cards.Edit(indexes[i]), rect);
  }
}

void RVEditTemplateWnd::EndClick() {
  const RVCardControl* card = page_.cards.Find(pressedId_);
  if (!card) return;
  if (mouseState_ == kPressSelected) SelectAlone(card->id);
  if (mouseState_ == kPressSelectedCtrl) selection_.Delete(selection_.Find(card->id));
  if (mouseState_ == kPressSelectedShift && !selection_.IsSelected(card->id)) {
    Select(*card, ToPixels(Placement(), RectOf(*card)));
  }
}

// --- Guides ---

void RVEditTemplateWnd::GatherSnapTargets() {
  const PagePlacement place = Placement();
  snapTargets_.cards.clear();
  snapTargets_.page = place.PageRect();
  const std::vector<std::wstring> ids = selection_.Ids();
  const std::set<std::wstring_view> selected(ids.begin(), ids.end());
  for (std::size_t i = 0; i < page_.cards.Size(); ++i) {
    const RVCardControl& card = page_.cards[i];
    if (selected.count(card.id) == 0) snapTargets_.cards.push_back(ToPixels(place, RectOf(card)));
  }
}

// The plain move first, from where the pointer has the cards, so that the page binds as ever; then what is near pulls.
// Where a grid is on, it alone decides.
void RVEditTemplateWnd::MoveWithGuides(Point point, const DragModifiers& modifiers) {
  const Point wanted = modifiers.shift ? KeepAxis(pressPoint_, point) : point;
  selection_.Offset(-pulled_.x, -pulled_.y);
  pulled_ = {};
  MoveDraggingRect(wanted);
  guideLines_.clear();
  const GridSteps grid = GridOf(page_.properties);
  if (modifiers.alt || IsActive(grid.x) || IsActive(grid.y)) return;
  SnapResult snap = SnapToGuides(selection_.CalculateGlobalRect(), snapTargets_);
  selection_.Offset(snap.dx, snap.dy);
  pulled_ = {snap.dx, snap.dy};
  guideLines_ = std::move(snap.lines);
}

}  // namespace xrpt
