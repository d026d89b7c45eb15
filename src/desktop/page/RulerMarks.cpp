#include "desktop/page/RulerMarks.h"

#include <cmath>

namespace xrpt {

namespace {

constexpr double kLabelRoom = 48.0;  // pixels
constexpr int kParts = 10;           // minor marks of a step

RulerMarkKind KindOf(long long number) {
  if (number % kParts == 0) return RulerMarkKind::Major;
  return number % (kParts / 2) == 0 ? RulerMarkKind::Middle : RulerMarkKind::Minor;
}

}  // namespace

double RulerStep(double pixelsPerMm) {
  const double wanted = kLabelRoom / pixelsPerMm;
  const double power = std::pow(10.0, std::floor(std::log10(wanted)));
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (factor * power >= wanted) return factor * power;
  }
  return 10.0 * power;
}

std::vector<RulerMark> RulerMarks(const RulerScale& scale, double from, double to) {
  std::vector<RulerMark> marks;
  if (!(scale.pixelsPerMm > 1e-6) || !(to > from)) return marks;
  const double part = RulerStep(scale.pixelsPerMm) / kParts;
  const double pixels = part * scale.pixelsPerMm;
  const auto first = static_cast<long long>(std::ceil((from - scale.origin) / pixels));
  const auto last = static_cast<long long>(std::floor((to - scale.origin) / pixels));
  for (long long number = first; number <= last; ++number) {
    const double at = static_cast<double>(number);
    marks.push_back({scale.origin + at * pixels, at * part, KindOf(number)});
  }
  return marks;
}

}  // namespace xrpt
