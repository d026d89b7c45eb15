#include "host/expressions/Evaluator.h"

#include "host/expressions/ExpressionTexts.h"
#include "host/expressions/Machine.h"
#include "host/expressions/NameMap.h"
#include "platform/SampleData.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

RVToken TokenOf(int type, const Reference& reference) {
  return {type, std::wstring(reference.text), reference.position, reference.length};
}

// The expression's own first, then its formulas' in the order they were found; each name once.
template <class References>
std::vector<RVToken> TokensOf(const Linked& linked, int type, References references) {
  std::vector<RVToken> tokens;
  NameMap<bool> seen;
  for (const auto& unit : linked.units) {
    for (const Reference& reference : references(*unit)) {
      if (seen.Find(reference.text)) continue;
      seen.Add(reference.text, true);
      tokens.push_back(TokenOf(type, reference));
    }
  }
  return tokens;
}

// The position, from 1, of a token that stands in the expression itself; 0 for one of a formula it uses.
std::size_t PlaceOf(const Linked& linked, const RVToken& token) {
  for (const Reference& name : linked.units.front()->program.names) {
    if (name.text == token.GetText()) return name.position + 1;
  }
  return 0;
}

// The reading of each variable, asked for once however many formulas use it.
class Readings {
 public:
  explicit Readings(ValueService& values) : values_(values) {}

  double Of(std::wstring_view variable) {
    if (const double* known = known_.Find(variable)) return *known;
    const double reading = Ask(variable);
    known_.Add(variable, reading);
    return reading;
  }
  bool AllLive() const { return allLive_; }

 private:
  double Ask(std::wstring_view variable) {
    const std::optional<double> reading = values_.Reading(variable);
    allLive_ = allLive_ && reading.has_value();
    return reading ? *reading : SampleReading(variable);
  }

  ValueService& values_;
  NameMap<double> known_;
  bool allLive_ = true;
};

}  // namespace

void Evaluator::SetFormules(const XmlDocument& formules) {
  formules_ = &formules;
  ready_ = false;
}

void Evaluator::Ready() {
  if (ready_) return;
  FormulaTexts formulas(formules_);
  linked_ = Link(text_, formulas);
  ready_ = true;
}

int Evaluator::Fail(int code, ExpressionError error) {
  error_ = std::move(error);
  return code;
}

int Evaluator::AnalizeExpression() {
  Ready();
  error_ = Own().error;
  if (error_.text != 0) return kNotAnalysed;
  return Own().logical ? kLogicalExpression : kNumericExpression;
}

int Evaluator::Evaluate(double& value, int& type) {
  Ready();
  const int obstacle = Judge();
  if (obstacle != kEvaluated) return obstacle;
  bool allLive = true;
  value = Compute(allLive);
  type = Own().logical ? kLogicalValue : kNumericValue;
  return allLive ? kEvaluated : Fail(kNoLiveValue, {text::kNoLiveValueYet});
}

// What keeps the expression from being computed. Names that are not defined are told before all else that fails.
int Evaluator::Judge() {
  error_ = Own().error;
  if (error_.text != 0) return kNotAnalysed;
  const std::vector<RVToken> undefined = GetUndefinedTokens();
  if (!undefined.empty()) {
    return Fail(kUndefinedNames,
                {text::kNameNotDefined, undefined.front().GetText(), PlaceOf(linked_, undefined.front())});
  }
  if (linked_.error.text != 0) return Fail(kEvaluationFails, linked_.error);
  for (const auto& unit : linked_.units) {
    if (unit->program.module) return Fail(kEvaluationFails, {text::kRefersToModule});
  }
  return kEvaluated;
}

double Evaluator::Compute(bool& allLive) {
  Readings readings(*host_.values);
  Machine machine;
  std::vector<double> results(linked_.units.size());
  std::vector<double> names, variables;
  for (std::size_t at : linked_.order) {
    const Unit& unit = *linked_.units[at];
    names.clear();
    for (std::size_t name : unit.names) names.push_back(results[name]);
    variables.clear();
    for (const Reference& variable : unit.program.variables) variables.push_back(readings.Of(variable.text));
    results[at] = machine.Run(unit.program, names, variables);
  }
  allLive = readings.AllLive();
  return results.front();
}

std::vector<RVToken> Evaluator::GetUndefinedTokens() const {
  return TokensOf(linked_, kTokenName, [](const Unit& unit) {
    std::vector<Reference> undefined;
    for (std::size_t i = 0; i < unit.names.size(); ++i) {
      if (unit.names[i] == Unit::kUndefined) undefined.push_back(unit.program.names[i]);
    }
    return undefined;
  });
}

void Evaluator::GetDeviceVariables(std::vector<RVToken>& tokens) const {
  tokens = TokensOf(linked_, kTokenDriverVariable, [](const Unit& unit) { return unit.program.variables; });
}

std::wstring Evaluator::ErrorText() const {
  return error_.text ? FormatText(host_.texts->Text(error_.text), error_.argument) : std::wstring();
}

}  // namespace xrpt
