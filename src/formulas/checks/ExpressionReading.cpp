#include "formulas/checks/ExpressionReading.h"

#include "platform/Text.h"

namespace xrpt {
namespace {

// The feature every expression of a report may use.
constexpr int kReportFeature = 5;

std::vector<FilteredDriverVariable> VariablesOf(const Host& host, const RVEvaluator& evaluator) {
  std::vector<RVToken> tokens;
  evaluator.GetDeviceVariables(tokens);
  std::vector<FilteredDriverVariable> variables;
  for (const RVToken& token : tokens) {
    if (token.GetType() != kTokenDriverVariable) continue;
    variables.push_back(host.variables->SplitBackFilterDriverVariable(token.GetText()));
  }
  return variables;
}

ExpressionReading ReadOne(const Host& host, std::wstring_view text, const XmlDocument* formules) {
  const std::unique_ptr<RVEvaluator> evaluator = host.expressions->NewEvaluator(text);
  evaluator->SetFlags({kReportFeature, -1});
  evaluator->EnableDiscriminators(true);
  ExpressionReading reading;
  reading.analysis = evaluator->AnalizeExpression();
  if (formules) evaluator->SetFormules(*formules);
  double value = 0.0;
  reading.evaluation = evaluator->Evaluate(value, reading.type);
  reading.hasModule = reading.evaluation == kEvaluationFails && host.expressions->isThereAModuleInExpression(text);
  reading.variables = VariablesOf(host, *evaluator);
  return reading;
}

}  // namespace

const ExpressionReading& ExpressionReadings::Read(const Host& host, std::string_view utf8,
                                                  const XmlDocument* formules) {
  const auto known = readings_.find(utf8);
  if (known != readings_.end()) return known->second;
  return readings_.emplace(utf8, ReadOne(host, FromUtf8(utf8), formules)).first->second;
}

}  // namespace xrpt
