// What a gesture does to the selection's rectangles while it runs, and to the cards when it ends.
#include <unordered_set>

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

// A card that is less than a pixel at this zoom keeps its size, whatever happens to its place.
void KeepExtent(CardRect& rect, const RVCardControl& card) {
  if (!(rect.width > 0.0)) rect.width = card.width;
  if (!(rect.height > 0.0)) rect.height = card.height;
}

// The one edge of a rectangle that follows the pointer along an axis.
GuideParts MovingEdge(bool near, bool moves) { return {moves && near, false, moves && !near}; }

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

}  // namespace

// --- While it runs ---

// The page's grid, unless it is let go of.
GridSteps RVEditTemplateWnd::DragGrid() const { return snaps_ ? GridOf(page_.properties) : GridSteps(); }

Point RVEditTemplateWnd::MoveInside(const Rect& all, Point delta, const PagePlacement& place) const {
  const GridSteps grid = DragGrid();
  return {MoveDelta(HorizontalAxis(place, grid), all.left, all.right, delta.x),
          MoveDelta(VerticalAxis(place, grid), all.top, all.bottom, delta.y)};
}

void RVEditTemplateWnd::MoveDraggingRect(Point point) {
  const PagePlacement place = Placement();
  if (!place.IsValid()) return;
  const Rect all = selection_.CalculateGlobalRect();
  Point delta = MoveInside(all, {point.x - selection_.anchor.x, point.y - selection_.anchor.y}, place);
  Rect moved = all;
  moved.Offset(delta.x, delta.y);
  delta = MoveInside(all, WithGuides(delta, moved, kAllParts, kAllParts, place), place);
  selection_.Offset(delta.x, delta.y);
  selection_.anchor = {selection_.anchor.x + delta.x, selection_.anchor.y + delta.y};
}

void RVEditTemplateWnd::ResizeDraggingRect(Point point, bool horizontal, bool vertical) {
  const PagePlacement place = Placement();
  if (!place.IsValid()) return;
  const GridSteps grid = DragGrid();
  const Point target{selection_.GetTargetX(), selection_.GetTargetY()};
  const auto inside = [&](Point by) {
    return Point{horizontal ? ResizeDelta(HorizontalAxis(place, grid), target.x, by.x) : 0,
                 vertical ? ResizeDelta(VerticalAxis(place, grid), target.y, by.y) : 0};
  };
  Point delta = inside({point.x - selection_.anchor.x, point.y - selection_.anchor.y});
  if (!IsBand(mouseState_)) {
    const Rect all = selection_.CalculateGlobalRect();
    Rect resized = all;
    (target.x == all.left ? resized.left : resized.right) += delta.x;
    (target.y == all.top ? resized.top : resized.bottom) += delta.y;
    delta = inside(WithGuides(delta, resized, MovingEdge(target.x == all.left, horizontal),
                              MovingEdge(target.y == all.top, vertical), place));
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
  std::unordered_set<std::wstring> gone;
  for (std::size_t i = 0; i < page_.cards.Size(); ++i) {
    const RVCardControl& card = page_.cards[i];
    const Rect rect = ToPixels(place, RectOf(card));
    const bool inside = Intersects(rect, band);
    if (selection_.IsSelected(card.id)) {
      if (inside ? toggles : replaces) gone.insert(card.id);
    } else if (inside) {
      Select(card, rect);
    }
  }
  selection_.Retain([&](const RVSelection::Entry& entry) { return gone.count(entry.id) == 0; });
}

bool RVEditTemplateWnd::EndDrawing(const PagePlacement& place) {
  const Rect drawn = selection_.Band().value_or(Rect());
  if (drawn.Width() < kSmallestDragged || drawn.Height() < kSmallestDragged) return false;
  const GridSteps grid = DragGrid();
  CardRect rect = ToMillimetres(place, drawn);
  const double right = rect.x + rect.width;
  const double bottom = rect.y + rect.height;
  DropNear(rect.x, grid.x);
  DropNear(rect.y, grid.y);
  rect.width = right - rect.x;
  rect.height = bottom - rect.y;
  DropFar(rect.x, rect.width, grid.x);
  DropFar(rect.y, rect.height, grid.y);
  ApplyHit(guideHits_.x, rect.x, rect.width, true);
  ApplyHit(guideHits_.y, rect.y, rect.height, true);
  AddControl(rect.x, rect.y, rect.width, rect.height);
  return true;
}

void RVEditTemplateWnd::EndDrag(const PagePlacement& place) {
  if (cursor_ == Cursor::No) return;
  const GridSteps grid = DragGrid();
  const int style = selection_.draggingStyle;
  const bool resized = style != kMoveAll && style != kNoEdge;
  const std::vector<std::size_t> indexes = SelectedIndexes();
  std::vector<CardRect> rects;
  for (std::size_t i = 0; i < indexes.size(); ++i) {
    rects.push_back(ToMillimetres(place, selection_.Entries()[i].rect));
    if (indexes[i] != CardList::kNowhere) KeepExtent(rects.back(), page_.cards[indexes[i]]);
    DropOnGrid(rects.back(), style, grid);
    IntelligentAdjustToGrid(rects.back(), grid, place);
  }
  if (!rects.empty()) AdjustToGuides(rects, resized);
  for (std::size_t i = 0; i < indexes.size(); ++i) {
    const bool stays = indexes[i] == CardList::kNowhere || (resized && !selection_.Entries()[i].resizable);
    if (!stays && rects[i] != RectOf(page_.cards[indexes[i]])) SetRect(page_.cards.Edit(indexes[i]), rects[i]);
  }
}

// What lined up on the screen lines up to the last digit: all cards together when they were moved, one card's edge when
// it was resized.
void RVEditTemplateWnd::AdjustToGuides(std::vector<CardRect>& rects, bool resized) const {
  if (resized && rects.size() > 1) return;
  const CardRect before = Cover(rects);
  CardRect all = before;
  ApplyHit(guideHits_.x, all.x, all.width, resized);
  ApplyHit(guideHits_.y, all.y, all.height, resized);
  for (CardRect& rect : rects) {
    rect = resized ? all : CardRect{rect.x + all.x - before.x, rect.y + all.y - before.y, rect.width, rect.height};
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

// The delta, changed so that the rectangle lines up with what is near. An axis with a grid keeps to that.
Point RVEditTemplateWnd::WithGuides(Point delta, const Rect& moved, GuideParts x, GuideParts y,
                                    const PagePlacement& place) {
  if (!smartGuides_ || !snaps_) return delta;
  const GridSteps grid = GridOf(page_.properties);
  if (IsActive(grid.x)) x = {};
  if (IsActive(grid.y)) y = {};
  if (!guideSource_) guideSource_ = GatherGuides(place);
  GuideSnap snap = SnapToGuides(*guideSource_, moved, x, y);
  guideHits_ = snap.hits;
  guideLines_ = std::move(snap.lines);
  return {delta.x + (guideHits_.x ? guideHits_.x->delta : 0), delta.y + (guideHits_.y ? guideHits_.y->delta : 0)};
}

// The page and the cards that can be seen and are not moved themselves; the front ones when there are very many.
GuideSource RVEditTemplateWnd::GatherGuides(const PagePlacement& place) const {
  const Rect client = port_.ClientRect();
  GuideSource source;
  source.targets.push_back({place.PageRect(), {0.0, 0.0, place.pageWidth, place.pageHeight}});
  for (std::size_t i = 0; i < page_.cards.Size() && source.targets.size() < GuideSource::kMostTargets; ++i) {
    const CardRect card = RectOf(page_.cards[i]);
    const Rect rect = ToPixels(place, card);
    const bool moves = selection_.IsRectUndefined() && selection_.IsSelected(page_.cards[i].id);
    if (!moves && IsVisible(client, rect)) source.targets.push_back({rect, card});
  }
  return source;
}

}  // namespace xrpt
