#include "formulas/ExpressionJudgement.h"

#include "formulas/FormulaTexts.h"
#include "platform/Characters.h"
#include "platform/Host.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

ExpressionJudgement Refused(int textId, const ExpressionReport& report) {
  return {HostText(textId), report.error, report.position, false};
}

// What the dialog says of undefined names and the like stands for logical expressions, too.
ExpressionJudgement JudgeCondition(const std::wstring& condition, const FormulaTable& formulas) {
  const ExpressionReport report = ReportOn(condition, FormulasDocument(kFormulesRoot, formulas), {});
  if (report.analysis == kNumericExpression) return Refused(text::kConditionNotLogical, report);
  if (!report.IsExpression()) return Refused(text::kExpressionNotAnalysed, report);
  if (report.evaluation == kUndefinedNames) {
    const std::wstring count = std::to_wstring(report.undefined.size());
    return {FormatText(HostText(text::kUndefinedVariables), count), report.error, report.position, true};
  }
  if (!report.HasValue()) return Refused(text::kExpressionFails, report);
  const std::wstring value = HostText(report.value != 0.0 ? text::kConditionHolds : text::kConditionDoesNotHold);
  return {report.evaluation == kNoLiveValue ? value + L" *" : value, {}, 0, true};
}

std::optional<std::size_t> Opposite(const std::vector<RVToken>& tokens, std::size_t index) {
  const int own = tokens[index].GetType();
  const bool forward = own == kTokenOpen;
  int depth = 0;
  for (std::size_t i = index; i < tokens.size(); forward ? ++i : --i) {
    if (tokens[i].GetType() != kTokenOpen && tokens[i].GetType() != kTokenClose) continue;
    depth += tokens[i].GetType() == own ? 1 : -1;
    if (depth == 0) return i;
  }
  return std::nullopt;
}

}  // namespace

std::wstring ExpressionJudgement::Line() const {
  if (error.empty() || error == shown) return shown;
  return shown + L" · " + (position > 0 ? std::to_wstring(position) + L": " : std::wstring()) + error;
}

ExpressionJudgement JudgementOf(const CDlgNewFormule& dialog) {
  const FormulaResult& result = dialog.Result();
  const bool isExplained = result.textId != 0 && result.textId != text::kNameNotValid &&
                           result.textId != text::kNameAlreadyUsed && result.textId != text::kExpressionEmpty;
  const ExpressionReport& report = dialog.Report();
  return {result.shown, isExplained ? report.error : std::wstring(), isExplained ? report.position : 0,
          result.accepted};
}

ExpressionJudgement JudgeExpression(const std::wstring& expression, const FormulaTable& formulas, ExpressionKind kind) {
  if (Trimmed(expression).empty()) return {{}, {}, 0, true};
  if (kind == ExpressionKind::Logical) return JudgeCondition(expression, formulas);
  CDlgNewFormule dialog(formulas);
  dialog.text = expression;
  dialog.EvaluateExpression();
  return JudgementOf(dialog);
}

ExpressionJudgement JudgeInTable(const std::wstring& expression, const XmlDocument& formulas) {
  const ExpressionReport report = ReportOn(expression, formulas, {});
  if (report.analysis != kNumericExpression) return Refused(text::kExpressionNotAnalysed, report);
  const FormulaResult result = JudgeEvaluation(report, expression);
  return {result.shown, report.error, report.position, result.accepted};
}

std::optional<ParenthesisPair> PairAt(const std::vector<RVToken>& tokens, std::size_t cursor) {
  for (const std::size_t at : {cursor, cursor - 1}) {  // the one behind the cursor first
    for (std::size_t i = 0; i < tokens.size(); ++i) {
      const bool isParenthesis = tokens[i].GetType() == kTokenOpen || tokens[i].GetType() == kTokenClose;
      if (!isParenthesis || tokens[i].Position() != at) continue;
      const std::optional<std::size_t> other = Opposite(tokens, i);
      return ParenthesisPair{at, other ? tokens[*other].Position() : at};
    }
  }
  return std::nullopt;
}

}  // namespace xrpt
