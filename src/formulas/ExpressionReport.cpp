#include "formulas/ExpressionReport.h"

#include "platform/Host.h"

namespace xrpt {
namespace {

std::vector<std::wstring> TextsOf(const std::vector<RVToken>& tokens) {
  std::vector<std::wstring> texts;
  for (const RVToken& token : tokens) texts.push_back(token.GetText());
  return texts;
}

}  // namespace

bool ExpressionReport::HasValue() const { return evaluation == kEvaluated || evaluation == kNoLiveValue; }

ExpressionReport ReportOn(std::wstring_view expression, const XmlDocument& formules,
                          const EvaluatorSettings& settings) {
  const auto evaluator = CurrentHost().expressions->NewEvaluator(expression);
  evaluator->SetFlags(settings.features);
  evaluator->EnableDiscriminators(settings.discriminators);
  ExpressionReport report;
  report.analysis = evaluator->AnalizeExpression();
  if (report.analysis == kNumericExpression || report.analysis == kLogicalExpression) {
    evaluator->SetFormules(formules);
    report.evaluation = evaluator->Evaluate(report.value, report.type);
  }
  report.undefined = TextsOf(evaluator->GetUndefinedTokens());
  std::vector<RVToken> variables;
  evaluator->GetDeviceVariables(variables);
  report.variables = TextsOf(variables);
  report.error = evaluator->ErrorText();
  report.position = evaluator->ErrorPosition();
  return report;
}

}  // namespace xrpt
