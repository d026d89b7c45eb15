// Runs the editor's own checks over cards and reports.
#pragma once

#include "formulas/checks/CheckChoice.h"
#include "formulas/checks/EditorChecks.h"
#include "model/RVReport.h"

namespace xrpt {

// Asks the screen for its resolution.
PageShape ShapeOf(const RVReportPage& page);

// What a card's own checks find. The findings' places say the alternative at most. `element` may be a handle on
// nothing.
std::vector<Finding> InspectCard(const RVCardControl& card, const XmlNode& element, const PageShape& page,
                                 const CheckChoice& choice);
// The same of a page's background picture.
std::vector<Finding> InspectBackground(const RVCardControl& background, const PageShape& page,
                                       const CheckChoice& choice);
// What the checks over all cards find, placed.
std::vector<Finding> InspectFacts(const ReportFacts& report, const CheckChoice& choice);

// A whole report, made of the "reportLayout" element `root`: first what belongs to a card, page by page, then the rest.
std::vector<Finding> InspectReport(const RVReport& report, const XmlNode& root, const CheckChoice& choice);

}  // namespace xrpt
