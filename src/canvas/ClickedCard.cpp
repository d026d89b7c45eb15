#include "canvas/ClickedCard.h"

#include <algorithm>
#include <cmath>

namespace xrpt {
namespace {

constexpr double kWholeMillimetre = 1.0;

void PlaceAxis(double& near, double& size, double page, double at, double wanted, double step) {
  const double unit = IsActive(step) ? step : kWholeMillimetre;
  const double most = std::max(unit, std::floor(page / unit) * unit);
  size = std::min(std::max(unit, SnapToGrid(wanted, unit)), most);
  const double last = std::max(0.0, std::floor((page - size) / unit) * unit);
  near = std::clamp(SnapToGrid(at, unit), 0.0, last);
}

}  // namespace

CardRect ClickedCardRect(SizeD page, const GridSteps& grid, SizeD size, PointD at) {
  CardRect rect;
  PlaceAxis(rect.x, rect.width, page.width, at.x, size.width, grid.x);
  PlaceAxis(rect.y, rect.height, page.height, at.y, size.height, grid.y);
  return rect;
}

}  // namespace xrpt
