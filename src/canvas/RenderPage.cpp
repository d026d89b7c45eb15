#include "canvas/RenderPage.h"

namespace xrpt {
namespace {

// The report was loaded for its services' screen; on a device of other density its fonts grow with the cards.
double DeviceFontFactor(const RVReportPage& page, double dpi) {
  const int screenDpi = page.Services().screen->DpiY();
  return screenDpi > 0 ? page.fontFactor * dpi / screenDpi : page.fontFactor;
}

}  // namespace

SizeD OutputSize(const RVReportPage& page, double dpi) {
  return {page.properties.width * dpi / 25.4, page.properties.height * dpi / 25.4};
}

tagDraw OutputDraw(const RVReportPage& page, double dpi) {
  return OutputDraw(page, dpi, {0.0, 0.0, page.properties.width, page.properties.height});
}

tagDraw OutputDraw(const RVReportPage& page, double dpi, const RectD& millimetres) {
  const double pixelsPerMm = dpi / 25.4;
  const SizeD size = OutputSize(page, dpi);
  tagDraw draw;
  draw.clip = {0, 0, roundi(std::ceil(millimetres.Width() * pixelsPerMm)),
               roundi(std::ceil(millimetres.Height() * pixelsPerMm))};
  draw.offsetX = -millimetres.left * pixelsPerMm;
  draw.offsetY = -millimetres.top * pixelsPerMm;
  draw.pageWidthPx = size.width;
  draw.pageHeightPx = size.height;
  draw.roundedPxX = draw.roundedPxY = page.properties.rounded * pixelsPerMm;
  draw.pageWidth = page.properties.width;
  draw.pageHeight = page.properties.height;
  draw.zoom = 1.0;
  draw.pixelsPerMmX = draw.pixelsPerMmY = pixelsPerMm;
  draw.flag1 = 0;
  draw.fontFactor = DeviceFontFactor(page, dpi);
  return draw;
}

void RenderPage(Graphics& graphics, const RVReportPage& page, double dpi) {
  PagePaint how;
  how.surround = false;
  PaintPage(graphics, page, OutputDraw(page, dpi), how);
}

}  // namespace xrpt
