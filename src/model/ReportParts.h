// A report's text, read a page after another, so that no tree of the report is ever in memory.
#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "model/RVReportPage.h"
#include "platform/Xml.h"

namespace xrpt {

struct ReportParts {
  std::vector<std::shared_ptr<RVReportPage>> pages;
  XmlDocument rest{"reportLayout"};  // the root's element with all but the pages
};

// Nothing for a text that has to be read as a tree, if it can be read at all; see platform/XmlStretches.h.
std::optional<ReportParts> ReadReportParts(std::string_view text, ModelServices& services);

}  // namespace xrpt
