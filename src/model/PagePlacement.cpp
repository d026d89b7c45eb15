#include "model/PagePlacement.h"

#include <cmath>

namespace xrpt {
namespace {

bool IsExtent(double value) { return std::isfinite(value) && value > 0.0; }

}  // namespace

bool PagePlacement::IsValid() const { return IsExtent(pageWidthPx) && IsExtent(pageHeightPx); }

Rect PagePlacement::PageRect() const {
  const int left = ToPixel(offsetX);
  const int top = ToPixel(offsetY);
  return {left, top, left + ToPixel(pageWidthPx), top + ToPixel(pageHeightPx)};
}

}  // namespace xrpt
