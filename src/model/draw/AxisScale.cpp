#include "model/draw/AxisScale.h"

#include <algorithm>
#include <cmath>

namespace xrpt {
namespace {

constexpr double kLargest = 1e15;
constexpr double kTolerance = 1e-9;

double RoundStep(double least) {
  const double power = std::pow(10.0, std::floor(std::log10(least)));
  for (double factor : {1.0, 2.0, 5.0}) {
    if (factor * power >= least * (1.0 - kTolerance)) return factor * power;
  }
  return 10.0 * power;
}

// A range that can be divided: finite, in order, and wider than a double's own steps.
void MakeUsable(double& low, double& high) {
  const auto bounded = [](double v) { return std::isfinite(v) ? std::clamp(v, -kLargest, kLargest) : 0.0; };
  low = bounded(low);
  high = bounded(high);
  if (low > high) std::swap(low, high);
  const double least = std::max({std::abs(low), std::abs(high), 1e-6}) * 1e-6;
  if (high - low < least) high = low + std::max(1.0, std::abs(low) * 0.1);
}

int DecimalsOf(double step) { return std::clamp(static_cast<int>(std::ceil(-std::log10(step) - kTolerance)), 0, 9); }

}  // namespace

std::vector<double> AxisScale::Ticks() const {
  std::vector<double> ticks;
  const double slack = step * 1e-6;
  double index = std::ceil((low - slack) / step);
  for (int left = 64; left > 0 && index * step <= high + slack; --left, ++index) {
    ticks.push_back(index == 0.0 ? 0.0 : index * step);
  }
  return ticks;
}

AxisScale MakeAxisScale(double low, double high, int mostTicks, bool fixLow, bool fixHigh) {
  MakeUsable(low, high);
  const int most = std::clamp(mostTicks, 3, 20);
  AxisScale scale{low, high, RoundStep((high - low) / (most - 1)), 0};
  // Going out to whole steps may add a tick at either end; then the steps are too small by one size.
  for (;;) {
    scale.low = fixLow ? low : std::floor(low / scale.step + kTolerance) * scale.step;
    scale.high = fixHigh ? high : std::ceil(high / scale.step - kTolerance) * scale.step;
    if ((scale.high - scale.low) / scale.step <= most - 1 + kTolerance) break;
    scale.step = RoundStep(scale.step * 1.5);
  }
  scale.decimals = DecimalsOf(scale.step);
  return scale;
}

std::optional<double> UsableEnd(bool fixed, double value) {
  if (!fixed || !std::isfinite(value) || std::abs(value) > kLargest) return std::nullopt;
  return value;
}

}  // namespace xrpt
