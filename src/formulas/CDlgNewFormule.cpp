#include "formulas/CDlgNewFormule.h"

#include "formulas/FormulaTexts.h"
#include "model/NumberFormat.h"
#include "platform/Host.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

// Stands for a formula that has no name yet.
constexpr const wchar_t* kNameless = L"abc123def456ghi789jkl";

FormulaResult Refused(int textId) { return {textId, HostText(textId), false}; }
FormulaResult Accepted(int textId) { return {textId, HostText(textId), true}; }

std::wstring ValueText(double value) {
  const LocaleService& locale = *CurrentHost().locale;
  return FormatDouble(value, NumberFormat(), {locale.DecimalSeparator(), locale.ThousandsSeparator()});
}

}  // namespace

CDlgNewFormule::CDlgNewFormule(FormulaTable table, std::wstring formerName) : formerName_(std::move(formerName)) {
  if (const Formula* former = FindFormula(table, formerName_)) {
    name = former->name;
    text = former->text;
  }
  std::erase_if(table, [this](const Formula& formula) { return formula.name == formerName_; });
  others_ = std::move(table);
}

XmlDocument CDlgNewFormule::BuildFormulesDoc() const { return FormulasDocument(kFormulesRoot, others_); }

const FormulaResult& CDlgNewFormule::Evaluate() { return result_ = Judge(true); }

const FormulaResult& CDlgNewFormule::EvaluateExpression() { return result_ = Judge(false); }

// The first fault counts. What the evaluator says is kept whatever the judgement.
FormulaResult CDlgNewFormule::Judge(bool withName) {
  report_ = ReportOn(text, BuildFormulesDoc(), settings);
  if (text.empty()) return Refused(text::kExpressionEmpty);
  if (withName && !IsValidName()) return Refused(text::kNameNotValid);
  if (withName && FindFormula(others_, name)) return Refused(text::kNameAlreadyUsed);
  if (report_.analysis != kNumericExpression) return Refused(text::kExpressionNotAnalysed);
  if (RefersToItself()) return Refused(text::kRefersToItself);
  return JudgeEvaluation(report_, text);
}

bool CDlgNewFormule::RefersToItself() const {
  FormulaTable all = {{name.empty() ? kNameless : name, text}};
  all.insert(all.end(), others_.begin(), others_.end());
  return CheckBucles(all, 1) == 1;
}

FormulaResult JudgeEvaluation(const ExpressionReport& report, std::wstring_view expression) {
  switch (*report.evaluation) {
    case kEvaluated:
      return {0, ValueText(report.value), true};
    case kNoLiveValue:
      return {0, ValueText(report.value) + L" *", true};
    case kUndefinedNames: {
      const std::wstring count = std::to_wstring(report.undefined.size());
      return {text::kUndefinedVariables, FormatText(HostText(text::kUndefinedVariables), count), true};
    }
    case kEvaluationFails: {
      const bool module = CurrentHost().expressions->isThereAModuleInExpression(expression);
      return module ? Accepted(text::kModuleInExpression) : Refused(text::kExpressionFails);
    }
    default:
      return Refused(text::kExpressionNotEvaluated);
  }
}

}  // namespace xrpt
