// One formula being written: its name, its expression, and what is thought of them while they are typed.
#pragma once

#include "formulas/ExpressionReport.h"
#include "formulas/FormulaTable.h"

namespace xrpt {

// What the result field shows, and whether OK may close the dialog.
struct FormulaResult {
  int textId = 0;  // 0: the value is shown
  std::wstring shown;
  bool accepted = false;
};

// What is said of a numeric expression that was evaluated.
FormulaResult JudgeEvaluation(const ExpressionReport& report, std::wstring_view expression);

class CDlgNewFormule {
 public:
  // `formerName`: the name of the formula that is modified; empty for a new one. The table is copied.
  explicit CDlgNewFormule(FormulaTable table, std::wstring formerName = {});

  const std::wstring& FormerName() const { return formerName_; }
  Formula GetFormule() const { return {name, text}; }

  bool IsValidName() const { return IsValidFormulaName(name); }
  // All formulas of the table but the one that is modified.
  XmlDocument BuildFormulesDoc() const;
  // Judges name and expression; `Result` and `Report` keep what was found.
  const FormulaResult& Evaluate();
  // Judges the expression alone, whoever will bear it.
  const FormulaResult& EvaluateExpression();
  // Judges once more; true when the dialog may close.
  bool OnOK() { return Evaluate().accepted; }

  const FormulaResult& Result() const { return result_; }
  const ExpressionReport& Report() const { return report_; }

  std::wstring name;
  std::wstring text;
  EvaluatorSettings settings;

 private:
  FormulaResult Judge(bool withName);
  bool RefersToItself() const;

  FormulaTable others_;
  std::wstring formerName_;
  ExpressionReport report_;
  FormulaResult result_;
};

}  // namespace xrpt
