// Conditioned cards: each alternative's condition, and the card it shows.
#include "formulas/FormulaTexts.h"
#include "formulas/checks/CheckTexts.h"
#include "formulas/checks/HostChecks.h"
#include "formulas/checks/HostCodes.h"
#include "formulas/checks/ReferenceCheck.h"

namespace xrpt {
namespace {

constexpr const CheckCode& kNoCondition = HostCode(L"CONDITIONALCTRL_NO_CONDITION");
constexpr const CheckCode& kEmpty = HostCode(L"CONDITIONALCTRL_CONDITION_EMPTY");
constexpr const CheckCode& kExpression = HostCode(L"CONDITIONALCTRL_CONDITION_EXPRESSION_ERROR");
constexpr const CheckCode& kVirtualDevice = HostCode(L"CONDITIONALCTRL_CONDITION_VIRTUAL_DEVICE_ERROR");
constexpr const CheckCode& kGoBack = HostCode(L"CONDITIONALCTRL_GOBACK_VARIABLE_ERROR");

bool CheckResult(const Inspector& inspector, const ExpressionReading& condition, const tagSDebugData& data) {
  const Host& host = inspector.TheHost();
  if (!condition.IsEvaluated()) {
    return inspector.Raise(kExpression, data, host.expressions->ErrorMsg(condition.evaluation));
  }
  if (condition.type == kLogicalValue) return true;
  return inspector.Raise(kExpression, data, host.texts->Text(text::kNotLogical));
}

// A condition that cannot be analysed is evaluated all the same: why it fails says more.
bool CheckCondition(Inspector& inspector, const XmlNode& control, tagSDebugData& data) {
  const XmlNode text = control.Node("condition");
  std::string joined;
  if (text.WholeText(joined).empty()) return inspector.Raise(kEmpty, data);
  const ExpressionReading& condition = inspector.Read(text, data);
  bool ok = condition.analysis == kLogicalExpression;
  if (!ok) inspector.Raise(kExpression, data, inspector.TheHost().texts->Text(text::kExpressionNotAnalysed));
  ok = CheckResult(inspector, condition, data) && ok;
  return ReferenceCheck(inspector, data, kVirtualDevice, kGoBack).All(condition) && ok;
}

bool CheckContained(Inspector& inspector, const XmlNode& control, tagSDebugData& data) {
  bool ok = true;
  for (const XmlNode& card : control) {
    const HostCheckRow* row = FindHostCheck(card.Tag());
    if (row && row->insideConditioned) ok = row->check(inspector, card, data, true) && ok;
  }
  return ok;
}

}  // namespace

bool CheckConditioned(Inspector& inspector, const XmlNode& card, tagSDebugData& data, bool) {
  bool ok = true;
  int alternatives = 0;
  for (const XmlNode& control : card) {
    if (control.Tag() != "control") continue;
    data.place.inner = alternatives++;
    ok = CheckCondition(inspector, control, data) && ok;
    ok = CheckContained(inspector, control, data) && ok;
  }
  data.place.inner = -1;
  return alternatives > 0 ? ok : inspector.Raise(kNoCondition, data);
}

}  // namespace xrpt
