#include "canvas/Gesture.h"

#include <algorithm>

#include "canvas/DragRules.h"
#include "canvas/HitTest.h"

namespace xrpt {
namespace {

Rect Union(const Rect& a, const Rect& b) {
  return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right), std::max(a.bottom, b.bottom)};
}

// The one edge of a rectangle that follows the pointer along an axis.
GuideParts MovingEdge(bool near, bool moves) { return {moves && near, false, moves && !near}; }

}  // namespace

Rect RectAround(const std::vector<Rect>& rects) {
  std::optional<Rect> all;
  for (const Rect& rect : rects) {
    if (rect != Rect()) all = all ? Union(*all, rect) : rect;
  }
  return all.value_or(Rect());
}

void ResizeFrom(Rect& rect, Point fixed, Point delta) {
  (rect.left != fixed.x ? rect.left : rect.right) += delta.x;
  (rect.top != fixed.y ? rect.top : rect.bottom) += delta.y;
  rect.Normalize();
}

// --- Its course ---

void Gesture::Start(int state, Point at) {
  End();
  state_ = state;
  press_ = anchor_ = at;
  snaps_ = true;
}

void Gesture::StartBand(int state, Point corner) {
  Start(state, corner);
  pressed_ = 0;
  style_ = kRightEdge | kBottomEdge;
  band_ = Rect{corner.x, corner.y, corner.x, corner.y};
  bandStart_ = corner;
}

void Gesture::StartDrag(int state, int style, CardKey pressed, Point at, std::vector<Part> parts) {
  Start(state, at);
  pressed_ = pressed;
  style_ = style;
  parts_ = std::move(parts);
  for (Part& part : parts_) {
    part.start = part.rect;
    part.fixed = FixedCorner(part.rect, style, {part.rect.left, part.rect.top});
  }
}

void Gesture::End() {
  state_ = kIdle;
  style_ = kNoEdge;
  copies_ = false;
  parts_.clear();
  band_.reset();
  lines_.clear();
  hits_ = {};
  guideSource_.reset();
}

void Gesture::Shift(Point by) {
  for (Point* point : {&press_, &anchor_, &bandStart_, &lastPoint}) *point = {point->x + by.x, point->y + by.y};
  for (Part& part : parts_) {
    part.rect.Offset(by.x, by.y);
    part.start.Offset(by.x, by.y);
    part.fixed = {part.fixed.x + by.x, part.fixed.y + by.y};
  }
  if (band_) band_->Offset(by.x, by.y);
  guideSource_.reset();
}

void Gesture::DragTo(Point point, const DragModifiers& held, const GestureGround& ground) {
  snaps_ = !(ground.guides && held.alt) || copies_;
  lines_.clear();
  hits_ = {};
  if (!ground.place.IsValid()) return;
  if (!Moves()) return ResizeTo(point, ground);
  MoveTo(ground.guides && held.shift ? KeepAxis(press_, point) : point, ground);
}

Point Gesture::Inside(const Rect& all, Point delta, const GestureGround& ground) const {
  const GridSteps grid = Grid(ground);
  return {MoveDelta(HorizontalAxis(ground.place, grid), all.left, all.right, delta.x),
          MoveDelta(VerticalAxis(ground.place, grid), all.top, all.bottom, delta.y)};
}

void Gesture::MoveTo(Point point, const GestureGround& ground) {
  const Rect all = GlobalRect();
  Point delta = Inside(all, {point.x - anchor_.x, point.y - anchor_.y}, ground);
  Rect moved = all;
  moved.Offset(delta.x, delta.y);
  delta = Inside(all, WithGuides(delta, moved, kAllParts, kAllParts, ground), ground);
  for (Part& part : parts_) part.rect.Offset(delta.x, delta.y);
  anchor_ = {anchor_.x + delta.x, anchor_.y + delta.y};
}

void Gesture::ResizeTo(Point point, const GestureGround& ground) {
  const bool horizontal = (style_ & (kLeftEdge | kRightEdge)) != 0;
  const bool vertical = (style_ & (kTopEdge | kBottomEdge)) != 0;
  const GridSteps grid = Grid(ground);
  const Point target{TargetX(), TargetY()};
  const auto inside = [&](Point by) {
    return Point{horizontal ? ResizeDelta(HorizontalAxis(ground.place, grid), target.x, by.x) : 0,
                 vertical ? ResizeDelta(VerticalAxis(ground.place, grid), target.y, by.y) : 0};
  };
  Point delta = inside({point.x - anchor_.x, point.y - anchor_.y});
  if (Row().kind != GestureKind::Band) {
    const Rect all = GlobalRect();
    Rect resized = all;
    (target.x == all.left ? resized.left : resized.right) += delta.x;
    (target.y == all.top ? resized.top : resized.bottom) += delta.y;
    delta = inside(WithGuides(delta, resized, MovingEdge(target.x == all.left, horizontal),
                              MovingEdge(target.y == all.top, vertical), ground));
  }
  Resize(delta);
  anchor_ = {anchor_.x + delta.x, anchor_.y + delta.y};
}

void Gesture::Resize(Point delta) {
  if (band_) return ResizeFrom(*band_, bandStart_, delta);
  for (Part& part : parts_) {
    if (part.resizable) ResizeFrom(part.rect, part.fixed, delta);
  }
}

// The delta, changed so that the rectangle lines up with what is near. An axis with a grid keeps to that.
Point Gesture::WithGuides(Point delta, const Rect& moved, GuideParts x, GuideParts y, const GestureGround& ground) {
  if (!ground.guides || !snaps_) return delta;
  if (IsActive(ground.grid.x)) x = {};
  if (IsActive(ground.grid.y)) y = {};
  if (!guideSource_) guideSource_ = ground.guides();
  GuideSnap snap = SnapToGuides(*guideSource_, moved, x, y);
  hits_ = snap.hits;
  lines_ = std::move(snap.lines);
  return {delta.x + (hits_.x ? hits_.x->delta : 0), delta.y + (hits_.y ? hits_.y->delta : 0)};
}

// --- What is seen of it ---

Rect Gesture::GlobalRect() const { return RectAround(Outlines()); }

int Gesture::TargetX() const {
  const Rect all = GlobalRect();
  if (band_) return band_->left == bandStart_.x ? all.right : all.left;
  if (parts_.empty()) return 0;
  return parts_.front().rect.left == parts_.front().fixed.x ? all.right : all.left;
}

int Gesture::TargetY() const {
  const Rect all = GlobalRect();
  if (band_) return band_->top == bandStart_.y ? all.bottom : all.top;
  if (parts_.empty()) return 0;
  return parts_.front().rect.top == parts_.front().fixed.y ? all.bottom : all.top;
}

std::vector<Rect> Gesture::Outlines() const {
  if (band_) return {*band_};
  std::vector<Rect> outlines;
  for (const Part& part : parts_) outlines.push_back(part.rect);
  return outlines;
}

bool Gesture::IsTooSmall() const {
  const auto small = [](const Rect& r) { return r.Width() < kSmallestDragged || r.Height() < kSmallestDragged; };
  if (band_) return small(*band_);
  return std::any_of(parts_.begin(), parts_.end(), [small](const Part& part) { return small(part.rect); });
}

Cursor Gesture::DragCursor() const {
  if (activeCursor == Cursor::Moving) return Cursor::Moving;
  const GestureKind kind = Row().kind;
  if (kind == GestureKind::Draw) return IsTooSmall() ? Cursor::No : Cursor::SizeNWSE;
  return kind == GestureKind::Drag && IsTooSmall() ? Cursor::No : activeCursor;
}

}  // namespace xrpt
