// Guides while cards are moved: edges and centres of the other cards and of the page, and equal gaps between
// neighbours, pull the selection by a few pixels. Pure functions over rectangles, in pixels.
#pragma once

#include <vector>

#include "platform/Geometry.h"

namespace xrpt {

// Held during a move: Alt lets go of guides and grid, Shift keeps the axis that was moved further.
struct DragModifiers {
  bool alt = false;
  bool shift = false;
};

// A line to show where something lines up: from one end to the other, along one axis.
struct GuideLine {
  Point from;
  Point to;
  bool operator==(const GuideLine&) const = default;
};

// What a move can line up with, gathered once when the gesture begins.
struct SnapTargets {
  std::vector<Rect> cards;  // those that are not moved
  Rect page;
};

struct SnapResult {
  int dx = 0;  // to add to the move
  int dy = 0;
  std::vector<GuideLine> lines;
};

inline constexpr int kGuideReach = 5;  // pixels

// What pulls a rectangle that has just been moved.
SnapResult SnapToGuides(const Rect& moved, const SnapTargets& targets, int reach = kGuideReach);

// A move kept to the axis along which it has gone further.
Point KeepAxis(Point from, Point to);

}  // namespace xrpt
