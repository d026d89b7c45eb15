// Points and rectangles: 32-bit integers are screen pixels, doubles are whatever unit their user names.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace xrpt {

// Round half away from zero to a 32-bit integer; values no int can hold (NaN included) are clamped, NaN gives 0.
inline int roundi(double value) {
  if (std::isnan(value)) return 0;
  return static_cast<int>(std::clamp(std::round(value), -2147483648.0, 2147483647.0));
}

// The same truncating towards zero.
inline int trunci(double value) {
  if (std::isnan(value)) return 0;
  return static_cast<int>(std::clamp(std::trunc(value), -2147483648.0, 2147483647.0));
}

// Pixels are kept this far from the ends of their type, so that sums and differences of a few of them never overflow,
// whatever a file or a script says.
inline constexpr int kFarPixel = 1 << 26;
inline int ToPixel(double value) { return std::clamp(roundi(value), -kFarPixel, kFarPixel); }

struct Point {
  int x = 0;
  int y = 0;
  bool operator==(const Point&) const = default;
};

// Left and top inclusive, right and bottom exclusive.
struct Rect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  bool operator==(const Rect&) const = default;

  int Width() const { return right - left; }
  int Height() const { return bottom - top; }
  bool Contains(Point p) const { return p.x >= left && p.x < right && p.y >= top && p.y < bottom; }
  void Offset(int dx, int dy) {
    left += dx;
    right += dx;
    top += dy;
    bottom += dy;
  }
  void Normalize() {
    if (left > right) std::swap(left, right);
    if (top > bottom) std::swap(top, bottom);
  }
};

struct PointD {
  double x = 0.0;
  double y = 0.0;
  bool operator==(const PointD&) const = default;
};

struct SizeD {
  double width = 0.0;
  double height = 0.0;
  bool operator==(const SizeD&) const = default;
};

struct RectD {
  double left = 0.0;
  double top = 0.0;
  double right = 0.0;
  double bottom = 0.0;
  bool operator==(const RectD&) const = default;

  RectD() = default;
  RectD(double l, double t, double r, double b) : left(l), top(t), right(r), bottom(b) {}
  explicit RectD(const Rect& r) : left(r.left), top(r.top), right(r.right), bottom(r.bottom) {}

  double Width() const { return right - left; }
  double Height() const { return bottom - top; }
  PointD Center() const { return {(left + right) * 0.5, (top + bottom) * 0.5}; }
};

}  // namespace xrpt
