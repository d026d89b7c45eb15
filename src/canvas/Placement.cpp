#include "canvas/Placement.h"

#include <cmath>

namespace xrpt {
namespace {

constexpr int kInitialPixels = 30;
constexpr double kInitialMillimetres = 10.0;

bool IsExtent(double value) { return std::isfinite(value) && value > 0.0; }

// The offset of a centred page, or of one scrolled because it does not fit.
double Offset(int client, double pagePx, int scroll) {
  const double centred = (client - pagePx) * 0.5;
  return std::round(centred) < 0.0 ? -static_cast<double>(scroll) : centred;
}

// One axis of the weak snap: the near edge, then the far edge it leaves.
void AdjustAxis(double& near, double& size, double step, double tolerance) {
  if (!IsActive(step)) return;
  const double nearLine = SnapToGrid(near, step);
  if (std::abs(nearLine - near) < tolerance) near = nearLine;
  const double farLine = SnapToGrid(near + size, step);
  if (std::abs(farLine - (near + size)) < tolerance) size = farLine - near;
}

int InitialSize(double step, double pixelsPerMm) {
  return IsActive(step) ? roundi(step * pixelsPerMm) : kInitialPixels;
}

// Moves a stretch of pixels back onto the page.
int KeepInside(int near, int size, int pageNear, int pageSize) {
  const int excess = near + size - (pageNear + pageSize - 1);
  if (excess > 0) return near - excess - 1;
  return std::max(near, pageNear);
}

void SnapAxis(double& near, double& size, double step) {
  if (!IsActive(step)) return;
  const double far = near + size;
  near = SnapToGrid(near, step);
  size = SnapToGrid(far, step) - near;
}

}  // namespace

bool PagePlacement::IsValid() const { return IsExtent(pageWidthPx) && IsExtent(pageHeightPx); }

Rect PagePlacement::PageRect() const {
  const int left = roundi(offsetX);
  const int top = roundi(offsetY);
  return {left, top, roundi(static_cast<double>(left) + roundi(pageWidthPx)),
          roundi(static_cast<double>(top) + roundi(pageHeightPx))};
}

PagePlacement PlacePage(const RVGlobalProperties& page, const PixelsPerMm& scale, double zoom, const Rect& client,
                        int scrollX, int scrollY) {
  const double z = std::abs(zoom);
  PagePlacement place;
  place.pageWidth = page.width;
  place.pageHeight = page.height;
  place.pixelsPerMm = {scale.x * z, scale.y * z};
  place.pageWidthPx = page.width * scale.x * z;
  place.pageHeightPx = page.height * scale.y * z;
  place.roundedPxX = scale.x * page.rounded * z;
  place.roundedPxY = scale.y * page.rounded * z;
  place.offsetX = Offset(client.Width(), place.pageWidthPx, scrollX);
  place.offsetY = Offset(client.Height(), place.pageHeightPx, scrollY);
  return place;
}

CardRect RectOf(const RVCardControl& card) { return {card.x, card.y, card.width, card.height}; }

void SetRect(RVCardControl& card, const CardRect& rect) {
  card.x = rect.x;
  card.y = rect.y;
  card.width = rect.width;
  card.height = rect.height;
}

// Width and height are rounded apart from the corner, so that a card's size in pixels does not wobble while it moves.
Rect ToPixels(const PagePlacement& place, const CardRect& rect) {
  const int left = roundi(std::round(place.offsetX) + place.pageWidthPx * rect.x / place.pageWidth);
  const int top = roundi(std::round(place.offsetY) + place.pageHeightPx * rect.y / place.pageHeight);
  const int width = roundi(place.pageWidthPx * rect.width / place.pageWidth);
  const int height = roundi(place.pageHeightPx * rect.height / place.pageHeight);
  return {left, top, roundi(static_cast<double>(left) + width), roundi(static_cast<double>(top) + height)};
}

CardRect ToMillimetres(const PagePlacement& place, const Rect& rect) {
  return {(rect.left - place.offsetX) * place.pageWidth / place.pageWidthPx,
          (rect.top - place.offsetY) * place.pageHeight / place.pageHeightPx,
          (static_cast<double>(rect.right) - rect.left) * place.pageWidth / place.pageWidthPx,
          (static_cast<double>(rect.bottom) - rect.top) * place.pageHeight / place.pageHeightPx};
}

double ZoomOfMode(int mode, double current, const RVGlobalProperties& page, const PixelsPerMm& scale,
                  const Rect& client) {
  const double acrossZoom = client.Width() / scale.x / page.width;
  const double downZoom = client.Height() / scale.y / page.height;
  if (mode == 0) return -std::min(downZoom, acrossZoom);
  if (mode == 101) return -acrossZoom;
  if (mode == 100) return current;
  return mode >= 1 && mode <= 4 ? mode : 1.0;
}

GridSteps GridOf(const RVGlobalProperties& page) { return {page.xgrid, page.ygrid}; }

// A step so fine that its lines cannot be counted snaps to nothing.
double SnapToGrid(double value, double step) {
  const double snapped = std::round(value / step) * step;
  return std::isfinite(snapped) ? snapped : value;
}

void IntelligentAdjustToGrid(CardRect& rect, const GridSteps& grid, const PagePlacement& place) {
  if (!place.IsValid()) return;
  AdjustAxis(rect.x, rect.width, grid.x, place.PixelWidth());
  AdjustAxis(rect.y, rect.height, grid.y, place.PixelHeight());
}

CardRect InitialCardRect(const PagePlacement& place, const GridSteps& grid, const PixelsPerMm& scale, double zoom,
                         Point pointer) {
  CardRect rect{0.0, 0.0, kInitialMillimetres, kInitialMillimetres};
  if (place.IsValid()) {
    const Rect page = place.PageRect();
    const int width = InitialSize(grid.x, scale.x * std::abs(zoom));
    const int height = InitialSize(grid.y, scale.y * std::abs(zoom));
    const int left = KeepInside(pointer.x, width, page.left, page.Width());
    const int top = KeepInside(pointer.y, height, page.top, page.Height());
    rect = {(left - page.left) * place.PixelWidth(), (top - page.top) * place.PixelHeight(), width * place.PixelWidth(),
            height * place.PixelHeight()};
  }
  SnapAxis(rect.x, rect.width, grid.x);
  SnapAxis(rect.y, rect.height, grid.y);
  return rect;
}

}  // namespace xrpt
