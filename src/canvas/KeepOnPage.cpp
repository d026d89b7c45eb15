#include "canvas/KeepOnPage.h"

#include <algorithm>
#include <cmath>

namespace xrpt {

namespace {

// One axis of a card.
struct Stretch {
  double near;
  double extent;
};

double Finite(double value) { return std::isfinite(value) ? value : 0.0; }

double OnPage(double near, double extent, double page) { return std::clamp(near, 0.0, std::max(0.0, page - extent)); }

Stretch Keep(Stretch wanted, const Stretch& before, double page) {
  if (wanted.extent != before.extent) {
    const double room = std::max(kSmallestExtent, page - std::max(0.0, Finite(wanted.near)));
    wanted.extent = std::clamp(Finite(wanted.extent), kSmallestExtent, room);
  }
  if (wanted.near != before.near) wanted.near = OnPage(Finite(wanted.near), Finite(wanted.extent), page);
  return wanted;
}

Stretch BringBack(const Stretch& stretch, double page) {
  const double extent = std::clamp(Finite(stretch.extent), kSmallestExtent, std::max(kSmallestExtent, page));
  return {OnPage(Finite(stretch.near), extent, page), extent};
}

// A comparison with what is no number is false.
bool IsInSight(const Stretch& stretch, double page) {
  return stretch.extent > 0.0 && stretch.near < page && stretch.near + stretch.extent > 0.0;
}

CardRect RectFrom(const Stretch& across, const Stretch& down) {
  return {across.near, down.near, across.extent, down.extent};
}
Stretch Across(const CardRect& rect) { return {rect.x, rect.width}; }
Stretch Down(const CardRect& rect) { return {rect.y, rect.height}; }

}  // namespace

CardRect KeepOnPage(const CardRect& wanted, const CardRect& before, const SizeD& page) {
  return RectFrom(Keep(Across(wanted), Across(before), page.width), Keep(Down(wanted), Down(before), page.height));
}

bool IsOutOfSight(const CardRect& rect, const SizeD& page) {
  return !IsInSight(Across(rect), page.width) || !IsInSight(Down(rect), page.height);
}

CardRect BroughtBack(const CardRect& rect, const SizeD& page) {
  return RectFrom(BringBack(Across(rect), page.width), BringBack(Down(rect), page.height));
}

}  // namespace xrpt
