#include "model/draw/GraphAxes.h"

#include <algorithm>
#include <cmath>

namespace xrpt {
namespace {

// A series that fills less of an axis than this reads better on one of its own.
constexpr double kFairPart = 0.3;
// Series this many times smaller than their neighbours would lie flat on the ground.
constexpr double kComparable = 10.0;
// Values that start within this part of their height above 0 are shown from 0.
constexpr double kNearZero = 0.4;

struct Group {
  bool isFixed = false;  // both ends stand
  std::optional<double> fixedLow;
  std::optional<double> fixedHigh;
  double low = 0.0;
  double high = 0.0;
  bool used = false;
  bool fromZero = false;  // has bars, which stand on 0
};

std::pair<double, double> ExtentOf(const GraphSeries& series) {
  const auto [least, most] = std::minmax_element(series.values.begin(), series.values.end());
  return {*least, *most};
}

double Magnitude(double low, double high) { return std::max(std::abs(low), std::abs(high)); }

// An end that one series fixes stands for all that share the axis, if none of them goes beyond it.
void Take(Group& group, const GraphSeries& series) {
  const auto [least, most] = ExtentOf(series);
  group.low = group.used ? std::min(group.low, least) : least;
  group.high = group.used ? std::max(group.high, most) : most;
  if (series.low) group.fixedLow = std::min(*series.low, group.fixedLow.value_or(*series.low));
  if (series.high) group.fixedHigh = std::max(*series.high, group.fixedHigh.value_or(*series.high));
  group.used = true;
  group.fromZero = group.fromZero || series.type == SeriesType::Bar;
}

bool FillsFairly(const GraphSeries& series, const Group& group) {
  if (series.low || series.high) return false;
  const auto [least, most] = ExtentOf(series);
  const double height = *group.fixedHigh - *group.fixedLow;
  return least >= *group.fixedLow && most <= *group.fixedHigh && most - *group.fixedLow >= height * kFairPart;
}

bool Suits(const GraphSeries& series, const Group& group) {
  const bool isFixed = series.low && series.high;
  if (group.isFixed && isFixed) return group.fixedLow == series.low && group.fixedHigh == series.high;
  if (group.isFixed) return FillsFairly(series, group);
  const auto [least, most] = ExtentOf(series);
  const double own = Magnitude(least, most);
  const double theirs = Magnitude(group.low, group.high);
  return !isFixed && own <= theirs * kComparable && theirs <= own * kComparable;
}

std::size_t GroupFor(std::vector<Group>& groups, const GraphSeries& series) {
  for (std::size_t i = 0; i < groups.size(); ++i) {
    if (Suits(series, groups[i])) return i;
  }
  if (groups.size() < 2) {
    groups.emplace_back().isFixed = series.low && series.high;
    return groups.size() - 1;
  }
  groups[1].isFixed = false;
  return 1;
}

AxisScale ScaleOf(const Group& group, int mostTicks) {
  const bool lowStands = group.fixedLow && (group.isFixed || *group.fixedLow <= group.low);
  const bool highStands = group.fixedHigh && (group.isFixed || *group.fixedHigh >= group.high);
  const bool toZero = group.low > 0.0 && (group.fromZero || group.low < group.high * kNearZero);
  const double low = lowStands ? *group.fixedLow : (toZero ? 0.0 : group.low);
  const double high = highStands ? *group.fixedHigh : group.high;
  return MakeAxisScale(low, high, mostTicks, lowStands, highStands);
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
    Take(groups[axes.axisOf[i]], *series[i]);
  }
  if (groups.empty()) groups.emplace_back();
  for (const Group& group : groups) axes.scales.push_back(ScaleOf(group, mostTicks));
  // The first series' axis stands on the left.
  if (axes.scales.size() == 2 && axes.axisOf[0] == 1) {
    std::swap(axes.scales[0], axes.scales[1]);
    for (std::size_t& axis : axes.axisOf) axis = 1 - axis;
  }
  return axes;
}

}  // namespace xrpt
