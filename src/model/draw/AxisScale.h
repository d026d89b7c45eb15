// The numbers along an axis: few, round, and enough. A pure rule.
#pragma once

#include <optional>
#include <vector>

namespace xrpt {

struct AxisScale {
  double low = 0.0;
  double high = 1.0;
  double step = 1.0;
  int decimals = 0;  // that tell its ticks apart

  // Multiples of the step from end to end.
  std::vector<double> Ticks() const;
  // 0 at the low end, 1 at the high one.
  double Share(double value) const { return (value - low) / (high - low); }
};

// Steps are 1, 2 or 5 times a power of ten, so that there are at most `mostTicks` (3 to 20) of them. An end that is
// fixed stands exactly there; one that is free goes out to the next tick.
AxisScale MakeAxisScale(double low, double high, int mostTicks, bool fixLow, bool fixHigh);

// An end a user can fix an axis at; nothing for what cannot be drawn.
std::optional<double> UsableEnd(bool fixed, double value);

}  // namespace xrpt
