// Where a ruler has its marks: pure rules over numbers.
#pragma once

#include <vector>

namespace xrpt {

enum class RulerMarkKind { Major, Middle, Minor };

struct RulerMark {
  double position = 0.0;  // pixels along the ruler
  double millimetres = 0.0;
  RulerMarkKind kind = RulerMarkKind::Minor;
};

// The scale of a ruler: where the page's corner lies and how large a millimetre is there.
struct RulerScale {
  double origin = 0.0;  // pixels
  double pixelsPerMm = 1.0;
  bool operator==(const RulerScale&) const = default;
};

// Millimetres from one labelled mark to the next, so that labels neither touch nor get lost: 1, 2 or 5 times a power of
// ten.
double RulerStep(double pixelsPerMm);

// The marks that lie between two pixels, in order. Nothing for a scale that measures nothing.
std::vector<RulerMark> RulerMarks(const RulerScale& scale, double from, double to);

}  // namespace xrpt
