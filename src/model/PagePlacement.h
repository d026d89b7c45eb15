// Where a page lies on a device, and how large a millimetre is there.
#pragma once

#include <cmath>

#include "platform/Geometry.h"

namespace xrpt {

struct PixelsPerMm {
  double x = 96.0 / 25.4;
  double y = 96.0 / 25.4;
};

struct PagePlacement {
  double offsetX = 0.0;  // pixels, of the page's top-left corner
  double offsetY = 0.0;
  double pageWidthPx = 0.0;
  double pageHeightPx = 0.0;
  double roundedPxX = 0.0;
  double roundedPxY = 0.0;
  double pageWidth = 210.0;  // millimetres
  double pageHeight = 297.0;
  PixelsPerMm pixelsPerMm;  // at the zoom

  // A page without extent, or one that is no number, has no place.
  bool IsValid() const;
  // Pixels the page covers.
  Rect PageRect() const;
  // One pixel in millimetres.
  double PixelWidth() const { return pageWidth / pageWidthPx; }
  double PixelHeight() const { return pageHeight / pageHeightPx; }
};

// A card's rectangle on the device, for hit tests, outlines and painting alike. Width and height are rounded apart from
// the corner, so that a card's size does not wobble while it is moved.
inline Rect CardPixelRect(const PagePlacement& page, double x, double y, double width, double height) {
  const int left = ToPixel(std::round(page.offsetX) + page.pageWidthPx * x / page.pageWidth);
  const int top = ToPixel(std::round(page.offsetY) + page.pageHeightPx * y / page.pageHeight);
  return {left, top, left + ToPixel(page.pageWidthPx * width / page.pageWidth),
          top + ToPixel(page.pageHeightPx * height / page.pageHeight)};
}

}  // namespace xrpt
