// The vertical axes of a plot against time: which series share one, and their scales. A pure rule.
#pragma once

#include <array>

#include "model/draw/AxisScale.h"
#include "model/draw/GraphData.h"

namespace xrpt {

struct GraphAxes {
  std::vector<AxisScale> scales;    // one or two: left and right
  std::vector<std::size_t> axisOf;  // of each series
};

// Series with the same two fixed ends share an axis, and so do all others of comparable size. Free ones use a fixed
// axis when they fill a fair part of it. What would need a third axis shares the second, which then covers both.
GraphAxes AxesOf(const std::vector<const GraphSeries*>& series, int mostTicks);

}  // namespace xrpt
