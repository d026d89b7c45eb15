// Pages as files and on paper, by the same painter as the screen.
#pragma once

#include <string>
#include <vector>

#include "editor/ExportChoice.h"

class QPrinter;

namespace xrpt {

class RVReport;

// The bytes of a PDF document of the pages; empty when there is nothing to paint.
std::string PdfOf(const RVReport& report, const PageNumbers& pages);
// The bytes of one picture a page, in order; an empty text for a page that cannot be painted.
std::vector<std::string> PngsOf(const RVReport& report, const PageNumbers& pages, int dpi);
std::vector<std::string> SvgsOf(const RVReport& report, const PageNumbers& pages);
// False when the printer cannot be started.
bool PrintReport(const RVReport& report, QPrinter& printer);

}  // namespace xrpt
