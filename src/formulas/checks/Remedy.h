// Carries out what a finding proposes.
#pragma once

#include "formulas/checks/Finding.h"
#include "model/RVReport.h"

namespace xrpt {

// Makes the finding's changes in the report; false, and nothing done, when it has none or its card is no longer there.
// Whoever has a history opens one step round it.
bool ApplyRemedy(RVReport& report, const Finding& finding);

}  // namespace xrpt
