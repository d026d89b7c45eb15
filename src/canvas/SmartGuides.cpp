#include "canvas/SmartGuides.h"

#include <climits>
#include <cstdlib>

namespace xrpt {
namespace {

// One direction of a rectangle, and what it takes across.
struct Span {
  int near;
  int far;
  int crossNear;
  int crossFar;
  double nearMm = 0.0;
  double farMm = 0.0;

  int At(double part) const { return part == 0.0 ? near : part == 1.0 ? far : near + (far - near) / 2; }
  double AtMm(double part) const { return nearMm + (farMm - nearMm) * part; }
};

Span Across(const GuideTarget& target) {
  const Rect& r = target.rect;
  return {r.left, r.right, r.top, r.bottom, target.box.x, target.box.x + target.box.width};
}

Span Down(const GuideTarget& target) {
  const Rect& r = target.rect;
  return {r.top, r.bottom, r.left, r.right, target.box.y, target.box.y + target.box.height};
}

// A line along the other axis at a position, and one along this axis between two.
struct AxisLine {
  bool along;
  int at;
  int from;
  int to;
};

class AxisSearch {
 public:
  AxisSearch(const Span& moved, const GuideParts& parts, int reach) : moved_(moved), parts_(parts), reach_(reach) {}

  void LineUp(const Span& target) {
    constexpr double kParts[] = {0.0, 0.5, 1.0};
    for (const double own : kParts) {
      if (!Moves(own)) continue;
      // Centres line up with centres: a centre on an edge helps nobody.
      for (const double other : kParts) {
        if ((own == 0.5) == (other == 0.5)) Offer(own, target.At(other), target.AtMm(other));
      }
    }
  }

  // The same gap as between the two neighbours before, or after; or halfway between the neighbours on both sides.
  void EqualGaps(const std::vector<Span>& targets) {
    if (!parts_.center) return;
    const Span* before = Nearest(targets, moved_.near + reach_, true);
    const Span* after = Nearest(targets, moved_.far - reach_, false);
    if (before) {
      if (const Span* first = Nearest(targets, before->near, true)) OfferGap(0.0, *before, *first);
    }
    if (after) {
      if (const Span* last = Nearest(targets, after->far, false)) OfferGap(1.0, *after, *last);
    }
    if (before && after) {
      OfferWithLine(0.5, before->far + (after->near - before->far) / 2, (before->farMm + after->nearMm) * 0.5,
                    {true, CrossCenter(), before->far, after->near});
    }
  }

  const std::optional<GuideHit>& Hit() const { return hit_; }

  // All lines the shifted rectangle touches.
  std::vector<AxisLine> Lines(const std::vector<Span>& targets) const {
    std::vector<AxisLine> lines;
    if (!hit_) return lines;
    const int at = moved_.At(hit_->part) + hit_->delta;
    if (gapLine_) lines.push_back(*gapLine_);
    for (const Span& target : targets) {
      if (target.near == at || target.far == at || (hit_->part == 0.5 && target.At(0.5) == at)) {
        lines.push_back(
            {false, at, std::min(target.crossNear, moved_.crossNear), std::max(target.crossFar, moved_.crossFar)});
      }
      if (lines.size() >= kMostLines) break;
    }
    return lines;
  }

 private:
  static constexpr std::size_t kMostLines = 8;

  bool Moves(double part) const { return part == 0.0 ? parts_.near : part == 1.0 ? parts_.far : parts_.center; }
  int CrossCenter() const { return moved_.crossNear + (moved_.crossFar - moved_.crossNear) / 2; }
  bool IsBeside(const Span& target) const {
    return target.crossNear < moved_.crossFar && target.crossFar > moved_.crossNear;
  }

  bool Offer(double part, int at, double atMm) {
    const int delta = at - moved_.At(part);
    if (std::abs(delta) > reach_ || (hit_ && std::abs(delta) >= std::abs(hit_->delta))) return false;
    hit_ = GuideHit{delta, atMm, part};
    gapLine_.reset();
    return true;
  }
  void OfferWithLine(double part, int at, double atMm, const AxisLine& line) {
    if (Offer(part, at, atMm)) gapLine_ = line;
  }
  // `next` is the neighbour, `beyond` the one whose gap to it is repeated on this side.
  void OfferGap(double part, const Span& next, const Span& beyond) {
    const bool before = part == 0.0;
    const int at = before ? next.far + (next.near - beyond.far) : next.near - (beyond.near - next.far);
    const double atMm = before ? next.farMm + (next.nearMm - beyond.farMm) : next.nearMm - (beyond.nearMm - next.farMm);
    OfferWithLine(part, at, atMm, {true, CrossCenter(), before ? next.far : at, before ? at : next.near});
  }
  // The neighbour that ends last before `limit`, or begins first after it.
  const Span* Nearest(const std::vector<Span>& targets, int limit, bool before) const {
    const Span* found = nullptr;
    for (std::size_t i = 1; i < targets.size(); ++i) {
      const Span& span = targets[i];
      if (!IsBeside(span) || (before ? span.far > limit : span.near < limit)) continue;
      if (!found || (before ? span.far > found->far : span.near < found->near)) found = &span;
    }
    return found;
  }

  Span moved_;
  GuideParts parts_;
  int reach_;
  std::optional<GuideHit> hit_;
  std::optional<AxisLine> gapLine_;
};

struct AxisResult {
  std::optional<GuideHit> hit;
  std::vector<AxisLine> lines;
};

AxisResult Search(const GuideSource& source, const Rect& moved, const GuideParts& parts, int reach,
                  Span (*spanOf)(const GuideTarget&)) {
  if (!parts.Any()) return {};
  std::vector<Span> targets;
  targets.reserve(source.targets.size());
  for (const GuideTarget& target : source.targets) targets.push_back(spanOf(target));
  AxisSearch search(spanOf({moved, {}}), parts, reach);
  for (const Span& target : targets) search.LineUp(target);
  search.EqualGaps(targets);
  return {search.Hit(), search.Lines(targets)};
}

}  // namespace

GuideSnap SnapToGuides(const GuideSource& source, const Rect& moved, const GuideParts& x, const GuideParts& y,
                       int reach) {
  const AxisResult across = Search(source, moved, x, reach, Across);
  const AxisResult down = Search(source, moved, y, reach, Down);
  GuideSnap snap{{across.hit, down.hit}, {}};
  for (const AxisLine& line : across.lines) {
    snap.lines.push_back(line.along ? GuideLine{{line.from, line.at}, {line.to, line.at}}
                                    : GuideLine{{line.at, line.from}, {line.at, line.to}});
  }
  for (const AxisLine& line : down.lines) {
    snap.lines.push_back(line.along ? GuideLine{{line.at, line.from}, {line.at, line.to}}
                                    : GuideLine{{line.from, line.at}, {line.to, line.at}});
  }
  return snap;
}

void MoveToHit(double& start, double length, const GuideHit& hit) { start = hit.at - length * hit.part; }

void ResizeToHit(double& start, double& length, const GuideHit& hit) {
  const double far = hit.part == 0.0 ? start + length : hit.at;
  const double near = hit.part == 0.0 ? hit.at : start;
  if (!(far > near)) return;
  start = near;
  length = far - near;
}

Point KeepAxis(Point from, Point to) {
  if (std::abs(to.x - from.x) >= std::abs(to.y - from.y)) return {to.x, from.y};
  return {from.x, to.y};
}

}  // namespace xrpt
