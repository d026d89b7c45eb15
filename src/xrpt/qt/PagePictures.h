// Pages painted by the toolkit. This folder's sources see it; who includes this header does not.
#pragma once

#include <string>
#include <vector>

#include "model/RVReportPage.h"

namespace xrpt {

// Empty for a page of no size or one too large to paint.
std::string RenderPng(const RVReportPage& page, double dpi);
// Empty when no page has a size.
std::string RenderPdf(const std::wstring& title, const std::vector<const RVReportPage*>& pages, double unitsPerInch);

}  // namespace xrpt
