#include "canvas/DragRules.h"

#include <algorithm>

#include <cmath>

namespace xrpt {
namespace {

// Grid lines closer than this cannot be told apart on any screen, and counting them could overflow.
constexpr double kFinestGrid = 1e-3;
constexpr int kArrowPixels = 1;
constexpr int kControlArrowPixels = 5;

double GridPixels(const DragAxis& axis) { return axis.step * axis.pixelsPerMm; }

// The number of the grid line nearest to a pixel, from the page's near edge on.
double LineNumber(const DragAxis& axis, double pixel) {
  return std::round(std::max(0.0, (pixel - axis.offset) / axis.pixelsPerMm) / axis.step);
}

int LinePixel(const DragAxis& axis, double number) {
  return ToPixel(number * axis.step * axis.pixelsPerMm + axis.offset);
}

// The least number of whole steps back after which a stretch ending at `far` ends on the page.
double StepsBack(const DragAxis& axis, int far) {
  const double excess = static_cast<double>(far) + 1 - axis.Far();
  if (excess < 0.0) return 0.0;
  const double grid = GridPixels(axis);
  double steps = std::max(0.0, std::ceil((excess + 0.5) / grid) - 1.0);
  while (std::round(steps * grid) <= excess) ++steps;
  return steps;
}

int MoveOnGrid(const DragAxis& axis, int near, int far, int delta) {
  const double line = LineNumber(axis, static_cast<double>(near) + delta);
  const int moved = LinePixel(axis, line) - near;
  const double back = StepsBack(axis, far + moved);
  return back > 0.0 ? LinePixel(axis, std::max(0.0, line - back)) - near : moved;
}

int ResizeOnGrid(const DragAxis& axis, int edge, int delta) {
  double line = LineNumber(axis, static_cast<double>(edge) + delta);
  const double last = std::max(0.0, std::ceil((axis.Far() - axis.offset) / GridPixels(axis)));
  line = std::min(line, last);
  while (line > 0.0 && LinePixel(axis, line) >= axis.Far()) --line;
  return LinePixel(axis, line) - edge;
}

}  // namespace

bool DragAxis::HasGrid() const {
  const double grid = GridPixels(*this);
  return IsActive(step) && grid >= kFinestGrid && std::isfinite(grid);
}

DragAxis HorizontalAxis(const PagePlacement& place, const GridSteps& grid) {
  return {place.offsetX, place.pageWidthPx, grid.x, place.pixelsPerMm.x};
}

DragAxis VerticalAxis(const PagePlacement& place, const GridSteps& grid) {
  return {place.offsetY, place.pageHeightPx, grid.y, place.pixelsPerMm.y};
}

int MoveDelta(const DragAxis& axis, int near, int far, int delta) {
  if (axis.HasGrid()) return MoveOnGrid(axis, near, far, delta);
  if (near + delta < axis.Near()) return axis.Near() - near;
  if (far + delta >= axis.Far()) return axis.Far() - 1 - far;
  return delta;
}

int ResizeDelta(const DragAxis& axis, int edge, int delta) {
  if (axis.HasGrid()) return ResizeOnGrid(axis, edge, delta);
  const int target = std::max(axis.Near(), std::min(edge + delta, axis.Far() - 1));
  return target - edge;
}

int SnapPixel(const DragAxis& axis, int pixel) {
  return axis.HasGrid() ? LinePixel(axis, LineNumber(axis, pixel)) : pixel;
}

int ArrowStep(const DragAxis& axis, bool control) {
  if (axis.HasGrid()) return std::max(1, trunci(std::min<double>(GridPixels(axis), kFarPixel)));
  return control ? kControlArrowPixels : kArrowPixels;
}

int ScrollStep(int pointer, int near, int far) {
  constexpr int kMost = 40;
  if (pointer < near) return std::max(-kMost, (pointer - near) / 2 - 4);
  if (pointer >= far) return std::min(kMost, (pointer - far) / 2 + 4);
  return 0;
}

}  // namespace xrpt
