#include "formulas/checks/BarLimits.h"

namespace xrpt {
namespace {

// Limits that must each exceed the one before; those that are not there are passed over.
class Ascent {
 public:
  bool Takes(const std::optional<double>& limit) {
    if (!limit) return true;
    const bool rises = !last_ || *limit > *last_;
    last_ = limit;
    return rises;
  }

 private:
  std::optional<double> last_;
};

bool IsBelow(const std::optional<double>& limit, double bound) { return !limit || *limit < bound; }
bool IsAbove(const std::optional<double>& limit, double bound) { return !limit || *limit > bound; }
bool IsAtLeast(const std::optional<double>& limit, double bound) { return !limit || !(*limit < bound); }
bool IsAtMost(const std::optional<double>& limit, double bound) { return !limit || !(*limit > bound); }

}  // namespace

bool AreAscending(const BarLimits& limits) {
  Ascent all;
  return all.Takes(limits.minimum) && all.Takes(limits.alarmMinimum) && all.Takes(limits.preMinimum) &&
         all.Takes(limits.preMaximum) && all.Takes(limits.alarmMaximum) && all.Takes(limits.maximum);
}

bool ArePowerFactorLimits(const BarLimits& limits, PowerFactorBands bands) {
  Ascent lower;
  Ascent upper;
  const double least = bands == PowerFactorBands::MaximumOnly ? -1.0 : 0.0;
  const double most = bands == PowerFactorBands::MinimumOnly ? 1.0 : 0.0;
  return IsAtLeast(limits.minimum, least) && lower.Takes(limits.minimum) && lower.Takes(limits.alarmMinimum) &&
         lower.Takes(limits.preMinimum) && IsBelow(limits.preMinimum, 1.0) && IsAbove(limits.preMaximum, -1.0) &&
         upper.Takes(limits.preMaximum) && upper.Takes(limits.alarmMaximum) && upper.Takes(limits.maximum) &&
         IsAtMost(limits.maximum, most);
}

}  // namespace xrpt
