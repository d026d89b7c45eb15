#include "canvas/SmartGuides.h"

#include <array>
#include <cstdlib>
#include <optional>

namespace xrpt {
namespace {

// One axis of a rectangle: along the move, and across it.
struct Span {
  int near;
  int far;
  int Middle() const { return near + (far - near) / 2; }
};

struct Axis {
  bool horizontal;
  Span Along(const Rect& r) const { return horizontal ? Span{r.left, r.right} : Span{r.top, r.bottom}; }
  Span Across(const Rect& r) const { return horizontal ? Span{r.top, r.bottom} : Span{r.left, r.right}; }
  // A line that stands across the axis at `along`.
  GuideLine Line(int along, const Span& across) const {
    if (horizontal) return {{along, across.near}, {along, across.far}};
    return {{across.near, along}, {across.far, along}};
  }
};

struct Pull {
  int delta;
  GuideLine line;
};

void Keep(std::optional<Pull>& best, const Pull& pull, int reach) {
  if (std::abs(pull.delta) > reach) return;
  if (!best || std::abs(pull.delta) < std::abs(best->delta)) best = pull;
}

Span Join(const Span& a, const Span& b) { return {std::min(a.near, b.near), std::max(a.far, b.far)}; }

// Edges and centre of one other rectangle.
void PullToEdges(std::optional<Pull>& best, const Axis& axis, const Rect& moved, const Rect& other, int reach) {
  const Span from = axis.Along(moved);
  const Span to = axis.Along(other);
  const Span across = Join(axis.Across(moved), axis.Across(other));
  for (const int target : {to.near, to.far}) {
    Keep(best, {target - from.near, axis.Line(target, across)}, reach);
    Keep(best, {target - from.far, axis.Line(target, across)}, reach);
  }
  Keep(best, {to.Middle() - from.Middle(), axis.Line(to.Middle(), across)}, reach);
}

bool Overlaps(const Span& a, const Span& b) { return a.near < b.far && b.near < a.far; }

// The neighbours before and after a rectangle along an axis, among those beside it.
struct Neighbours {
  std::optional<Rect> before;
  std::optional<Rect> after;
};

Neighbours FindNeighbours(const Axis& axis, const Rect& moved, const std::vector<Rect>& cards) {
  Neighbours found;
  const Span self = axis.Along(moved);
  for (const Rect& card : cards) {
    if (!Overlaps(axis.Across(card), axis.Across(moved))) continue;
    const Span span = axis.Along(card);
    if (span.far <= self.Middle() && (!found.before || span.far > axis.Along(*found.before).far)) found.before = card;
    if (span.near >= self.Middle() && (!found.after || span.near < axis.Along(*found.after).near)) found.after = card;
  }
  return found;
}

// Halfway between two neighbours both gaps are equal.
void PullToEqualGaps(std::optional<Pull>& best, const Axis& axis, const Rect& moved, const std::vector<Rect>& cards,
                     int reach) {
  const Neighbours beside = FindNeighbours(axis, moved, cards);
  if (!beside.before || !beside.after) return;
  const Span self = axis.Along(moved);
  const int free = axis.Along(*beside.after).near - axis.Along(*beside.before).far - (self.far - self.near);
  const int near = axis.Along(*beside.before).far + free / 2;
  Keep(best, {near - self.near, axis.Line(near, axis.Across(moved))}, reach);
}

std::optional<Pull> PullAlong(const Axis& axis, const Rect& moved, const SnapTargets& targets, int reach) {
  std::optional<Pull> best;
  for (const Rect& card : targets.cards) PullToEdges(best, axis, moved, card, reach);
  PullToEdges(best, axis, moved, targets.page, reach);
  PullToEqualGaps(best, axis, moved, targets.cards, reach);
  return best;
}

}  // namespace

SnapResult SnapToGuides(const Rect& moved, const SnapTargets& targets, int reach) {
  SnapResult result;
  if (const auto pull = PullAlong(Axis{true}, moved, targets, reach)) {
    result.dx = pull->delta;
    result.lines.push_back(pull->line);
  }
  if (const auto pull = PullAlong(Axis{false}, moved, targets, reach)) {
    result.dy = pull->delta;
    result.lines.push_back(pull->line);
  }
  return result;
}

Point KeepAxis(Point from, Point to) {
  if (std::abs(to.x - from.x) >= std::abs(to.y - from.y)) return {to.x, from.y};
  return {from.x, to.y};
}

}  // namespace xrpt
