// The embedded evaluator: the host's RVEvaluator over programs, a report's formulas and the host's readings.
#pragma once

#include <memory>

#include "host/expressions/Formulas.h"
#include "platform/Expressions.h"
#include "platform/Host.h"

namespace xrpt {

class Evaluator final : public RVEvaluator {
 public:
  Evaluator(Host& host, std::wstring_view text) : host_(host), text_(text) {}

  using RVEvaluator::SetFlags;
  // One set of features, which is always on.
  void SetFlags(std::span<const int>) override {}
  void EnableDiscriminators(bool) override {}

  int AnalizeExpression() override;
  void SetFormules(const XmlDocument& formules) override;
  int Evaluate(double& value, int& type) override;
  std::vector<RVToken> GetUndefinedTokens() const override;
  void GetDeviceVariables(std::vector<RVToken>& tokens) const override;
  std::wstring ErrorText() const override;
  std::size_t ErrorPosition() const override { return error_.position; }

  // Any code that is no analysis and no evaluation.
  static constexpr int kNotAnalysed = 2;

 private:
  const Program& Own() const { return linked_.units.front()->program; }
  // Compiles, when nobody did since the formulas were set.
  void Ready();
  int Fail(int code, ExpressionError error);
  int Judge();
  // Values of the units' variables and names, one unit after the other; says whether every variable had a reading.
  double Compute(bool& allLive);

  Host& host_;
  std::wstring text_;
  const XmlDocument* formules_ = nullptr;
  Linked linked_;
  bool ready_ = false;
  ExpressionError error_;
};

}  // namespace xrpt
