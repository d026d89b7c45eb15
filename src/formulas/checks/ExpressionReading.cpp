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

// Asked without formulas first: an expression that uses none is the same in every report.
ExpressionReading ReadOne(const Host& host, std::wstring_view text, const FormulaSource& formulas, bool& usesFormulas) {
  const std::unique_ptr<RVEvaluator> evaluator = host.expressions->NewEvaluator(text);
  evaluator->SetFlags({kReportFeature, -1});
  evaluator->EnableDiscriminators(true);
  ExpressionReading reading;
  double value = 0.0;
  reading.analysis = evaluator->AnalizeExpression();
  reading.evaluation = evaluator->Evaluate(value, reading.type);
  usesFormulas = reading.evaluation == kUndefinedNames;
  if (usesFormulas && formulas.Document()) {
    evaluator->SetFormules(*formulas.Document());
    reading.evaluation = evaluator->Evaluate(value, reading.type);
  }
  reading.hasModule = reading.evaluation == kEvaluationFails && host.expressions->isThereAModuleInExpression(text);
  reading.variables = VariablesOf(host, *evaluator);
  return reading;
}

// Every piece with its length in front, so that no two tables read alike.
void AppendPiece(std::string& text, const XmlNode& piece) {
  std::string joined;
  const std::string_view own = piece.WholeText(joined);
  text += std::to_string(own.size());
  text += ':';
  text += own;
}

}  // namespace

FormulaSource::FormulaSource(const XmlNode& table) : table_(table) {
  if (!table) return;
  std::string text;
  for (const XmlNode& formula : table) {
    if (formula.Tag() != "formule") continue;
    AppendPiece(text, formula.Node("name"));
    AppendPiece(text, formula.Node("text"));
  }
  text_ = std::make_shared<const std::string>(std::move(text));
}

const XmlDocument* FormulaSource::Document() const {
  if (!table_) return nullptr;
  if (!document_) {
    document_ = std::make_unique<XmlDocument>("formules");
    document_->Root().Assign(table_);
  }
  return document_.get();
}

void ExpressionReadings::Use(const FormulaSource& formulas) {
  if (table_ == formulas.Text()) return;
  const bool isAlike = table_ && formulas.Text() && *table_ == *formulas.Text();
  if (!isAlike) linked_.Clear();
  table_ = formulas.Text();
}

const ExpressionReading& ExpressionReadings::Read(const Host& host, std::string_view utf8,
                                                  const FormulaSource& formulas) {
  if (const ExpressionReading* known = plain_.Find(utf8)) return *known;
  Use(formulas);
  if (const ExpressionReading* known = linked_.Find(utf8)) return *known;
  bool usesFormulas = false;
  ExpressionReading reading = ReadOne(host, FromUtf8(utf8), formulas, usesFormulas);
  return (usesFormulas ? linked_ : plain_).Add(utf8, std::move(reading));
}

void ExpressionReadings::Clear() {
  plain_.Clear();
  linked_.Clear();
}

}  // namespace xrpt
