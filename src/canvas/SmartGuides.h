// Lines that help to place cards beside their neighbours: edges and centres of other cards and of the page, and equal
// gaps. Pure functions; what a gesture compares with is gathered once when it begins.
#pragma once

#include <optional>
#include <vector>

#include "canvas/Placement.h"

namespace xrpt {

// Held during a drag: Alt lets go of guides and grid, Shift keeps the axis that was moved further.
struct DragModifiers {
  bool alt = false;
  bool shift = false;
};

// A line to be drawn while something snaps to it (client pixels, both ends included).
struct GuideLine {
  Point from;
  Point to;
  bool operator==(const GuideLine&) const = default;
};

// A rectangle others may line up with: on the screen, and exactly.
struct GuideTarget {
  Rect rect;
  CardRect box;
};

// The page first, then its cards. Few enough that a mouse move may look at all of them.
struct GuideSource {
  static constexpr std::size_t kMostTargets = 400;
  std::vector<GuideTarget> targets;
};

// Which parts of the moved rectangle may line up along an axis.
struct GuideParts {
  bool near = false;
  bool center = false;
  bool far = false;
  bool Any() const { return near || center || far; }
};
inline constexpr GuideParts kAllParts{true, true, true};

// What was found along one axis.
struct GuideHit {
  int delta = 0;      // pixels the moved rectangle, or its moving edge, is to be shifted by
  double at = 0.0;    // millimetres: where the part is to be exactly
  double part = 0.0;  // 0 near edge, 0.5 centre, 1 far edge
};

struct GuideHits {
  std::optional<GuideHit> x;
  std::optional<GuideHit> y;
};

struct GuideSnap {
  GuideHits hits;
  std::vector<GuideLine> lines;
};

inline constexpr int kGuideReach = 5;  // pixels

// What the moved rectangle lines up with when it is shifted by no more than the reach. Nearest first; among equals the
// page before the cards, and those before equal gaps.
GuideSnap SnapToGuides(const GuideSource& source, const Rect& moved, const GuideParts& x, const GuideParts& y,
                       int reach = kGuideReach);

// Puts the part that was lined up exactly where it belongs: the whole of a moved box, or the one edge of a resized one.
void MoveToHit(double& start, double length, const GuideHit& hit);
void ResizeToHit(double& start, double& length, const GuideHit& hit);

// A move kept to the axis along which it has gone further.
Point KeepAxis(Point from, Point to);

}  // namespace xrpt
