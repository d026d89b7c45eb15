#include "model/draw/GraphAxes.h"

#include <algorithm>

namespace xrpt {
namespace {

// A series that fills less of an axis than this reads better on one of its own.
constexpr double kFairPart = 0.3;
// Values that start within this part of their height above 0 are shown from 0.
constexpr double kNearZero = 0.4;

struct Group {
  std::optional<double> fixedLow;
  std::optional<double> fixedHigh;
  double low = 0.0;
  double high = 0.0;
  bool used = false;
  bool fromZero = false;  // has bars, which stand on 0

  bool IsFixed() const { return fixedLow && fixedHigh; }
  void Take(const GraphSeries& series) {
    const auto [least, most] = std::minmax_element(series.values.begin(), series.values.end());
    low = used ? std::min(low, *least) : *least;
    high = used ? std::max(high, *most) : *most;
    used = true;
    fromZero = fromZero || series.type == SeriesType::Bar;
  }
};

bool HasEndsOf(const Group& group, const GraphSeries& series) {
  return group.fixedLow == series.low && group.fixedHigh == series.high;
}

bool FillsFairly(const GraphSeries& series, const Group& group) {
  if (!group.IsFixed() || series.low || series.high) return false;
  const auto [least, most] = std::minmax_element(series.values.begin(), series.values.end());
  const double height = *group.fixedHigh - *group.fixedLow;
  return *least >= *group.fixedLow && *most <= *group.fixedHigh && *most - *group.fixedLow >= height * kFairPart;
}

std::size_t GroupFor(std::vector<Group>& groups, const GraphSeries& series) {
  for (std::size_t i = 0; i < groups.size(); ++i) {
    if (HasEndsOf(groups[i], series) || FillsFairly(series, groups[i])) return i;
  }
  if (groups.size() < 2) {
    groups.push_back({series.low, series.high});
    return groups.size() - 1;
  }
  // The second axis now serves strangers, so none of them fixes it.
  for (double end : {groups[1].fixedLow.value_or(0.0), groups[1].fixedHigh.value_or(0.0)}) {
    groups[1].low = std::min(groups[1].low, end);
    groups[1].high = std::max(groups[1].high, end);
  }
  groups[1].fixedLow = groups[1].fixedHigh = std::nullopt;
  return 1;
}

AxisScale ScaleOf(const Group& group, int mostTicks) {
  const double height = group.high - std::min(group.low, 0.0);
  const bool toZero = group.low > 0.0 && (group.fromZero || group.low < height * kNearZero);
  const double low = group.fixedLow.value_or(toZero ? 0.0 : group.low);
  const double high = group.fixedHigh.value_or(group.high);
  return MakeAxisScale(low, high, mostTicks, group.fixedLow.has_value(), group.fixedHigh.has_value());
}

}  // namespace

GraphAxes AxesOf(const std::vector<const GraphSeries*>& series, int mostTicks) {
  // Fixed ends first, so that free series find them.
  std::vector<std::size_t> order(series.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
  std::stable_partition(order.begin(), order.end(), [&](std::size_t i) { return series[i]->low && series[i]->high; });

  std::vector<Group> groups;
  GraphAxes axes;
  axes.axisOf.resize(series.size());
  for (std::size_t i : order) {
    axes.axisOf[i] = GroupFor(groups, *series[i]);
    groups[axes.axisOf[i]].Take(*series[i]);
  }
  if (groups.empty()) groups.push_back({0.0, 1.0});
  for (const Group& group : groups) axes.scales.push_back(ScaleOf(group, mostTicks));
  // The first series' axis stands on the left.
  if (axes.scales.size() == 2 && axes.axisOf[0] == 1) {
    std::swap(axes.scales[0], axes.scales[1]);
    for (std::size_t& axis : axes.axisOf) axis = 1 - axis;
  }
  return axes;
}

}  // namespace xrpt
