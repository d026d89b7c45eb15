// The drawing context handed to every card: where the page lies on the device and how large a millimetre is there.
#pragma once

#include <cstdint>

#include "platform/Geometry.h"

namespace xrpt {

struct tagDraw {
  Rect clip;             // what is being painted, device units
  double offsetX = 0.0;  // of the page's top-left corner
  double offsetY = 0.0;
  double pageWidthPx = 0.0;
  double pageHeightPx = 0.0;
  double roundedPxX = 0.0;  // radius of the page's corners
  double roundedPxY = 0.0;
  double pageWidth = 210.0;  // millimetres
  double pageHeight = 297.0;
  double zoom = 1.0;          // as stored: negative follows the window; cards use its absolute value
  double pixelsPerMmX = 0.0;  // at zoom 1
  double pixelsPerMmY = 0.0;
  std::int32_t flag1 = 1;  // 0 leaves out what helps editing only, such as the mark of a conditioned card
  std::int32_t flag2 = 1;
  double fontFactor = 1.0;
  std::int32_t reserved1 = 0;
  // Milliseconds since the page began to be shown: where moving texts and pictures are on their way. 0 draws all at
  // rest.
  std::int32_t animationTime = 0;
};

// A card's rectangle on the device, for hit tests, outlines and painting alike. Width and height are rounded apart from
// the corner, so that a card's size does not wobble while it is moved. `Page` says where the page lies there: a
// tagDraw, or a window's placement.
template <class Page>
Rect CardPixelRect(const Page& page, double x, double y, double width, double height) {
  const int left = ToPixel(std::round(page.offsetX) + page.pageWidthPx * x / page.pageWidth);
  const int top = ToPixel(std::round(page.offsetY) + page.pageHeightPx * y / page.pageHeight);
  return {left, top, left + ToPixel(page.pageWidthPx * width / page.pageWidth),
          top + ToPixel(page.pageHeightPx * height / page.pageHeight)};
}

}  // namespace xrpt
