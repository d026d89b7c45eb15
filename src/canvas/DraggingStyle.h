// Which edges a gesture moves; the numbers add up. A move moves all four.
#pragma once

namespace xrpt {

enum DraggingStyle : int {
  kNoEdge = 0,
  kLeftEdge = 1,
  kRightEdge = 2,
  kBottomEdge = 4,
  kTopEdge = 8,
  kMoveAll = 15,
};

}  // namespace xrpt
