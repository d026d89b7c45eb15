// Thousands of random arithmetic expressions must give what an evaluator of other people's gives.
#include <gtest/gtest.h>
#include <muParser.h>

#include <cmath>
#include <random>

#include "support/TestHost.h"

namespace xrpt {
namespace {

// Writes expressions of the language that both evaluators have: no sign behind a sign, which the other one refuses.
class RandomExpression {
 public:
  explicit RandomExpression(unsigned seed) : random_(seed) {}

  std::string Text(int depth = 4) {
    std::string text = Operand(depth);
    for (int more = Below(3); more > 0; --more) text += Pick({" + ", "-", "*", " / ", "^"}) + Operand(depth);
    return text;
  }

 private:
  int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }
  std::string Pick(std::initializer_list<const char*> words) {
    return words.begin()[Below(static_cast<int>(words.size()))];
  }
  std::string Operand(int depth) {
    if (depth == 0 || Below(3) == 0) return Number();
    switch (Below(4)) {
      case 0:
        return "(-" + Operand(depth - 1) + ")";
      case 1:
        return "(" + Text(depth - 1) + ")";
      case 2:
        return Pick({"abs", "sqrt", "exp", "ln", "log10", "sin", "cos", "tan", "atan", "sign"}) + "(" +
               Text(depth - 1) + ")";
      default:
        return Pick({"min", "max", "sum", "avg"}) + "(" + Text(depth - 1) + ", " + Text(depth - 1) + ")";
    }
  }
  std::string Number() {
    const std::string whole = std::to_string(Below(20));
    return Below(2) ? whole : whole + "." + std::to_string(Below(100));
  }

  std::mt19937 random_;
};

double Ours(const std::string& text) {
  const auto evaluator = CurrentHost().expressions->NewEvaluator(FromUtf8(text));
  double value = 0.0;
  int type = 0;
  EXPECT_EQ(evaluator->AnalizeExpression(), 0) << text;
  EXPECT_EQ(evaluator->Evaluate(value, type), 0) << text;
  return value;
}

double Theirs(const std::string& text) {
  mu::Parser parser;
  parser.SetExpr(text);
  return parser.Eval();
}

bool LosesNaN(const std::string& text) {
  return text.find("min") != text.npos || text.find("max") != text.npos || text.find("sign") != text.npos;
}

// The other one computes small whole powers by multiplying, so the last digits may differ; and its min, max and sign
// make a number of what is none.
bool Agree(const std::string& text, double ours, double theirs) {
  if (std::isnan(ours) && LosesNaN(text)) return true;
  if (std::isnan(ours) || std::isnan(theirs)) return std::isnan(ours) == std::isnan(theirs);
  if (ours == theirs) return true;
  return std::abs(ours - theirs) <= 1e-9 * std::max(std::abs(ours), std::abs(theirs));
}

class ExpressionDifferentialTest : public HostTest {};

TEST_F(ExpressionDifferentialTest, ArithmeticAgrees) {
  RandomExpression random(20240917);
  int finite = 0;
  for (int i = 0; i < 6000; ++i) {
    const std::string text = random.Text();
    const double ours = Ours(text);
    EXPECT_TRUE(Agree(text, ours, Theirs(text))) << text << ": " << ours << ", not " << Theirs(text);
    finite += std::isfinite(ours) ? 1 : 0;
  }
  EXPECT_GT(finite, 3000);
}

}  // namespace
}  // namespace xrpt
