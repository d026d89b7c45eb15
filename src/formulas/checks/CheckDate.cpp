// Date cards: bound to a field, or with a moment of their own that can be read.
#include "formulas/checks/HostChecks.h"
#include "formulas/checks/HostCodes.h"

namespace xrpt {

bool CheckDate(Inspector& inspector, const XmlNode& card, tagSDebugData& data, bool conditioned) {
  if (card.Node("field")) return true;
  if (inspector.IsMoment(card.Node("value"))) return true;
  return inspector.Raise(conditioned ? HostCode(L"CONDITIONALCTRL_DATE_ERROR") : HostCode(L"DATECTRL_DATE_ERROR"),
                         data);
}

}  // namespace xrpt
