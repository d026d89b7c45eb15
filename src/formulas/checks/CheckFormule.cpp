// Formula cards: the expression, what it evaluates to, and what it refers to.
#include "formulas/FormulaTexts.h"
#include "formulas/checks/HostChecks.h"
#include "formulas/checks/HostCodes.h"
#include "formulas/checks/ReferenceCheck.h"

namespace xrpt {
namespace {

struct FormuleCodes {
  const CheckCode& empty;
  const CheckCode& expression;
  const CheckCode& virtualDevice;
  const CheckCode& goBack;
};

constexpr FormuleCodes kOwnCodes{
    HostCode(L"FORMULECTRL_FORMULE_EMPTY"), HostCode(L"FORMULECTRL_FORMULE_EXPRESSION_ERROR"),
    HostCode(L"FORMULECTRL_VIRTUAL_DEVICE_ERROR"), HostCode(L"FORMULECTRL_GOBACK_VARIABLE_ERROR")};
constexpr FormuleCodes kConditionedCodes{
    HostCode(L"CONDITIONALCTRL_FORMULE_EMPTY"), HostCode(L"CONDITIONALCTRL_FORMULE_EXPRESSION_ERROR"),
    HostCode(L"CONDITIONALCTRL_VIRTUAL_DEVICE_ERROR"), HostCode(L"CONDITIONALCTRL_GOBACK_VARIABLE_ERROR")};

// A module is the host's own; nothing the report's author does would let it be computed here.
bool CheckEvaluation(const Inspector& inspector, const ExpressionReading& expression, const tagSDebugData& data,
                     const CheckCode& code) {
  if (expression.IsEvaluated()) return true;
  const Host& host = inspector.TheHost();
  if (expression.hasModule) return inspector.Raise(code, data, host.texts->Text(text::kModuleInExpression), true);
  return inspector.Raise(code, data, host.expressions->ErrorMsg(expression.evaluation));
}

}  // namespace

bool CheckFormule(Inspector& inspector, const XmlNode& card, tagSDebugData& data, bool conditioned) {
  const FormuleCodes& codes = conditioned ? kConditionedCodes : kOwnCodes;
  const XmlNode value = card.Node("value");
  std::string joined;
  if (value.WholeText(joined).empty()) return inspector.Raise(codes.empty, data);
  const ExpressionReading& expression = inspector.Read(value, data);
  if (expression.analysis != kNumericExpression) {
    return inspector.Raise(codes.expression, data, inspector.TheHost().texts->Text(text::kExpressionNotAnalysed));
  }
  const bool evaluates = CheckEvaluation(inspector, expression, data, codes.expression);
  return ReferenceCheck(inspector, data, codes.virtualDevice, codes.goBack).All(expression) && evaluates;
}

}  // namespace xrpt
