// What a field shows of the expression that is typed in it: its value or what is wrong, where, and which stretches of
// it are what.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "formulas/CDlgNewFormule.h"
#include "platform/Expressions.h"

namespace xrpt {

// Formulas and thresholds are numeric, conditions logical.
enum class ExpressionKind { Numeric, Logical };

struct ExpressionJudgement {
  std::wstring shown;        // the value, or the verdict
  std::wstring error;        // what is wrong, more closely; empty for nothing
  std::size_t position = 0;  // of the error: characters from 1, 0 for none
  bool accepted = false;

  // "The expression cannot be analysed. · 4: An operator is missing before 2." in one line.
  std::wstring Line() const;
};

// `formulas`: those the expression may use. An expression that is not written yet shows nothing and is accepted.
ExpressionJudgement JudgeExpression(const std::wstring& expression, const FormulaTable& formulas, ExpressionKind kind);
// The same for a formula of a table, which is in the document among the others.
ExpressionJudgement JudgeInTable(const std::wstring& expression, const XmlDocument& formulas);
// The same from a formula dialog that has evaluated.
ExpressionJudgement JudgementOf(const CDlgNewFormule& dialog);

// The other one of a pair of parentheses when the cursor stands beside one of them; the one at the cursor alone, twice,
// when it has no other. Characters from 0.
struct ParenthesisPair {
  std::size_t first;
  std::size_t second;
  bool IsAlone() const { return first == second; }
};
std::optional<ParenthesisPair> PairAt(const std::vector<RVToken>& tokens, std::size_t cursor);

}  // namespace xrpt
