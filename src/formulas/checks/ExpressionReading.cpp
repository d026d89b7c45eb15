#include "formulas/checks/ExpressionReading.h"

#include "formulas/VirtualLists.h"
#include "platform/Characters.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

// The feature every expression of a report may use.
constexpr int kReportFeature = 5;

std::vector<FilteredDriverVariable> SourcesOf(const Host& host, const RVEvaluator& evaluator) {
  std::vector<RVToken> tokens;
  evaluator.GetDeviceVariables(tokens);
  std::vector<FilteredDriverVariable> sources;
  for (const RVToken& token : tokens) {
    if (token.GetType() != kTokenDriverVariable) continue;
    FilteredDriverVariable parts = host.variables->SplitBackFilterDriverVariable(token.GetText());
    if (IsVirtualDevice(parts) || IsGoBack(parts)) sources.push_back(std::move(parts));
  }
  return sources;
}

// Formulas are given first: what an analysis says does not hang on them, and the evaluator links once.
ExpressionReading ReadOne(const Host& host, std::wstring_view text, const XmlDocument* formules) {
  const std::unique_ptr<RVEvaluator> evaluator = host.expressions->NewEvaluator(text);
  evaluator->SetFlags({kReportFeature, -1});
  evaluator->EnableDiscriminators(true);
  if (formules) evaluator->SetFormules(*formules);
  ExpressionReading reading;
  reading.analysis = evaluator->AnalizeExpression();
  double value = 0.0;
  reading.evaluation = evaluator->Evaluate(value, reading.type);
  reading.hasModule = reading.evaluation == kEvaluationFails && host.expressions->isThereAModuleInExpression(text);
  reading.sources = SourcesOf(host, *evaluator);
  return reading;
}

// Whether anything stands outside the brackets of variables that may be a formula's name; a function's may be one too.
bool MayUseFormulas(std::wstring_view text) {
  bool inBrackets = false;
  for (const wchar_t c : text) {
    if (c == L'[' || c == L']') inBrackets = c == L'[';
    if (!inBrackets && IsNameCharacter(c) && !IsDecimalDigit(c)) return true;
  }
  return false;
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

bool IsVirtualDevice(const FilteredDriverVariable& parts) {
  static const std::wstring_view prefix = RulesOf(SourceKind::VirtualDevice).prefix;
  return std::wstring_view(parts.device).substr(0, prefix.size()) == prefix;
}

bool IsGoBack(const FilteredDriverVariable& parts) { return parts.kind == L"GOBACK"; }

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
  const std::wstring text = FromUtf8(utf8);
  const bool usesFormulas = MayUseFormulas(text);
  ExpressionReading reading = ReadOne(host, text, usesFormulas ? formulas.Document() : nullptr);
  return (usesFormulas ? linked_ : plain_).Add(utf8, std::move(reading));
}

void ExpressionReadings::Clear() {
  plain_.Clear();
  linked_.Clear();
}

}  // namespace xrpt
