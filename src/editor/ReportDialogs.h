// The dialogs over a report's formulas and data sources, between the report and its door: they open on what the report
// holds, and what they end with becomes one step, the texts that follow a renaming included.
#pragma once

#include "formulas/CDlgFormules.h"
#include "formulas/ExpressionChoices.h"
#include "formulas/RVDlgReportVirtualDeviceSetup.h"

namespace xrpt {

class RVEditControlWnd;

// What the report's expressions may use.
ExpressionSources SourcesOf(const RVEditControlWnd& frame);

CDlgFormules OpenFormulas(const RVEditControlWnd& frame, FormulesPort& port);
// OK. False, and nothing changed, when the dialog refuses to close.
bool AcceptFormulas(RVEditControlWnd& frame, CDlgFormules& dialog);

RVDlgReportVirtualDeviceSetup OpenSources(const RVEditControlWnd& frame, VirtualSetupPort& port);
// False when nothing was modified.
bool AcceptSources(RVEditControlWnd& frame, const RVDlgReportVirtualDeviceSetup& dialog);

}  // namespace xrpt
