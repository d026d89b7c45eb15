// Report graphs: every series' variable.
#include "formulas/checks/BoundVariable.h"
#include "formulas/checks/HostChecks.h"
#include "formulas/checks/HostCodes.h"

namespace xrpt {

bool CheckReportGraph(Inspector& inspector, const XmlNode& card, tagSDebugData& data, bool) {
  static constexpr const CheckCode& kUnknown = HostCode(L"REPORTGRAPH_VAR_ERROR");
  ReferenceCheck references(inspector, data, HostCode(L"REPORTGRAPH_VIRTUAL_DEVICE_ERROR"),
                            HostCode(L"REPORTGRAPH_GOBACK_VARIABLE_ERROR"));
  bool ok = true;
  bool hasSeries = false;
  for (const XmlNode& series : card) {
    if (series.Tag() != "variable") continue;
    hasSeries = true;
    ok = CheckBoundVariable(inspector, series.Node("id"), data, references, kUnknown) && ok;
  }
  return hasSeries ? ok : inspector.Raise(HostCode(L"REPORTGRAPH_NO_VAR"), data);
}

}  // namespace xrpt
