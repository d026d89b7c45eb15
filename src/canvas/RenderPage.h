// Pages on paper and in pictures: the set-up of a drawing that needs no window. The page fills the device, and what
// helps editing only is left out.
#pragma once

#include "canvas/PagePainter.h"

namespace xrpt {

// Device units a page takes at so many dots per inch.
SizeD OutputSize(const RVReportPage& page, double dpi);

// The whole page, or the part of it inside a rectangle (millimetres), from the device's top-left corner on.
tagDraw OutputDraw(const RVReportPage& page, double dpi);
tagDraw OutputDraw(const RVReportPage& page, double dpi, const RectD& millimetres);

void RenderPage(Graphics& graphics, const RVReportPage& page, double dpi);

}  // namespace xrpt
