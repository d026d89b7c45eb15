#include "desktop/dialogs/Export.h"

#include <QPageSize>
#include <QPainter>
#include <QPrinter>

#include "canvas/RenderPage.h"
#include "host/SvgGraphics.h"
#include "host/qt/PageSurfaces.h"
#include "model/RVReport.h"

namespace xrpt {

namespace {

// Lines and texts have no resolution; a fine unit keeps rounding to units out of sight.
constexpr double kVectorDpi = 720.0;

SizeD MillimetresOf(const RVReportPage& page) { return {page.properties.width, page.properties.height}; }

void SetPaper(QPrinter& printer, const RVReportPage& page) {
  const QSizeF size(page.properties.width, page.properties.height);
  printer.setPageSize(QPageSize(size, QPageSize::Millimeter, QString(), QPageSize::FuzzyMatch));
  printer.setFullPage(true);
}

}  // namespace

std::string PdfOf(const RVReport& report, const PageNumbers& pages) {
  PdfSurface surface(report.name, kVectorDpi);
  for (const std::size_t number : pages) {
    const RVReportPage& page = *report.pages[number];
    if (surface.BeginPage(MillimetresOf(page))) RenderPage(surface.Graphics(), page, kVectorDpi);
  }
  return surface.Finish();
}

std::vector<std::string> PngsOf(const RVReport& report, const PageNumbers& pages, int dpi) {
  std::vector<std::string> pictures;
  for (const std::size_t number : pages) {
    const RVReportPage& page = *report.pages[number];
    const SizeD size = OutputSize(page, dpi);
    PngSurface surface(roundi(size.width), roundi(size.height), dpi);
    if (surface.IsValid()) RenderPage(surface.Graphics(), page, dpi);
    pictures.push_back(surface.IsValid() ? surface.Finish() : std::string());
  }
  return pictures;
}

std::vector<std::string> SvgsOf(const RVReport& report, const PageNumbers& pages) {
  std::vector<std::string> drawings;
  for (const std::size_t number : pages) {
    const RVReportPage& page = *report.pages[number];
    const SizeD size = MillimetresOf(page);
    const bool isValid = size.width > 0.0 && size.height > 0.0;
    SvgGraphics graphics(OutputSize(page, kVectorDpi), size);
    if (isValid) RenderPage(graphics, page, kVectorDpi);
    drawings.push_back(isValid ? graphics.Finish() : std::string());
  }
  return drawings;
}

bool PrintReport(const RVReport& report, QPrinter& printer) {
  SetPaper(printer, *report.pages.front());
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  PictureCache pictures;
  for (std::size_t i = 0; i < report.pages.size(); ++i) {
    const RVReportPage& page = *report.pages[i];
    if (i > 0) {
      if (MillimetresOf(page) != MillimetresOf(*report.pages[i - 1])) SetPaper(printer, page);
      printer.newPage();
    }
    QtGraphics graphics(painter, pictures);
    RenderPage(graphics, page, printer.resolution());
  }
  return painter.end();
}

}  // namespace xrpt
