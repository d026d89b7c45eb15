// The limits of an analog bar: whether they stand in an order in which a bar can be drawn. Pure rules.
#pragma once

#include <optional>

namespace xrpt {

struct BarLimits {
  std::optional<double> minimum;
  std::optional<double> alarmMinimum;
  std::optional<double> preMinimum;
  std::optional<double> preMaximum;
  std::optional<double> alarmMaximum;
  std::optional<double> maximum;
};

// Each limit above all those before it.
bool AreAscending(const BarLimits& limits);

// A power factor's scale runs from 0 up to 1 and on from -1 up to 0: the lower limits lie on the first half, the upper
// ones on the second, each half ascending. A bar that shows one half only may have its end on the other.
enum class PowerFactorBands { Both, MaximumOnly, MinimumOnly };
bool ArePowerFactorLimits(const BarLimits& limits, PowerFactorBands bands);

}  // namespace xrpt
