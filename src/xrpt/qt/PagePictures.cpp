#include "xrpt/qt/PagePictures.h"

#include "canvas/RenderPage.h"
#include "host/qt/PageSurfaces.h"

namespace xrpt {

std::string RenderPng(const RVReportPage& page, double dpi) {
  const SizeD size = OutputSize(page, dpi);
  PngSurface surface(roundi(size.width), roundi(size.height), dpi);
  if (!surface.IsValid()) return {};
  RenderPage(surface.Graphics(), page, dpi);
  return surface.Finish();
}

std::string RenderPdf(const std::wstring& title, const std::vector<const RVReportPage*>& pages, double unitsPerInch) {
  PdfSurface surface(title, unitsPerInch);
  for (const RVReportPage* page : pages) {
    if (!surface.BeginPage({page->properties.width, page->properties.height})) continue;
    RenderPage(surface.Graphics(), *page, unitsPerInch);
  }
  return surface.Finish();
}

}  // namespace xrpt
