// Helps to write an expression: everything it may use to choose from, the expression itself, and its value while it is
// put together.
#pragma once

#include <QDialog>
#include <optional>

#include "formulas/ExpressionChoices.h"
#include "formulas/ExpressionJudgement.h"

namespace xrpt {

class ChoiceTree;
class ExpressionField;

class FormulaWizard final : public QDialog {
 public:
  FormulaWizard(const ExpressionSources& sources, ExpressionKind kind, const std::wstring& expression, QWidget* parent);

  // The expression the user ended with; nothing when cancelled.
  static std::optional<std::wstring> Ask(const ExpressionSources& sources, ExpressionKind kind,
                                         const std::wstring& expression, QWidget* parent);

  ChoiceTree& Choices() { return *choices_; }
  ExpressionField& Field() { return *field_; }

 private:
  ChoiceTree* choices_;
  ExpressionField* field_;
};

}  // namespace xrpt
