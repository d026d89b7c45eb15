#include "canvas/Placement.h"

#include <cmath>

#include "model/tagDraw.h"

namespace xrpt {
namespace {

constexpr int kInitialPixels = 30;
constexpr double kInitialMillimetres = 10.0;

// The offset of a centred page, or of one scrolled because it does not fit. A position from the time when it was larger
// never scrolls it out of sight.
double Offset(int client, double pagePx, int scroll) {
  const double centred = (client - pagePx) * 0.5;
  if (!(std::round(centred) < 0.0)) return centred;
  return -static_cast<double>(std::min(scroll, std::max(0, ToPixel(pagePx) - client)));
}

// One axis of the weak snap: the near edge, then the far edge it leaves.
void AdjustAxis(double& near, double& size, double step, double tolerance) {
  if (!IsActive(step)) return;
  const double nearLine = SnapToGrid(near, step);
  if (std::abs(nearLine - near) < tolerance) near = nearLine;
  if (std::abs(SnapToGrid(near + size, step) - (near + size)) < tolerance) SnapFarEdge(near, size, step);
}

int InitialSize(double step, double pixelsPerMm) {
  return IsActive(step) ? std::max(1, ToPixel(step * pixelsPerMm)) : kInitialPixels;
}

// Moves a stretch of pixels back onto the page; at the far edge it ends one pixel inside.
int KeepInside(int near, int size, int pageNear, int pageFar) {
  if (near + size > pageFar - 1) return pageFar - 1 - size;
  return std::max(near, pageNear);
}

void SnapAxis(double& near, double& size, double step) {
  if (!IsActive(step)) return;
  near = SnapToGrid(near, step);
  SnapFarEdge(near, size, step);
}

}  // namespace

Point Bounded(Point point) {
  return {std::clamp(point.x, -kFarPixel, kFarPixel), std::clamp(point.y, -kFarPixel, kFarPixel)};
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

Rect ToPixels(const PagePlacement& place, const CardRect& rect) {
  return CardPixelRect(place, rect.x, rect.y, rect.width, rect.height);
}

CardRect ToMillimetres(const PagePlacement& place, const Rect& rect) {
  return {(rect.left - place.offsetX) * place.pageWidth / place.pageWidthPx,
          (rect.top - place.offsetY) * place.pageHeight / place.pageHeightPx,
          rect.Width() * place.pageWidth / place.pageWidthPx, rect.Height() * place.pageHeight / place.pageHeightPx};
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

void SnapFarEdge(double near, double& size, double step) {
  const double snapped = SnapToGrid(near + size, step) - near;
  if (snapped >= kLeastExtent) size = snapped;
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
    pointer = Bounded(pointer);
    const int left = KeepInside(pointer.x, width, page.left, page.right);
    const int top = KeepInside(pointer.y, height, page.top, page.bottom);
    rect = {(left - page.left) * place.PixelWidth(), (top - page.top) * place.PixelHeight(), width * place.PixelWidth(),
            height * place.PixelHeight()};
  }
  SnapAxis(rect.x, rect.width, grid.x);
  SnapAxis(rect.y, rect.height, grid.y);
  return rect;
}

}  // namespace xrpt
