#include "desktop/dialogs/formulas/FormulaWizard.h"

#include "desktop/dialogs/DialogParts.h"
#include "desktop/dialogs/DialogSize.h"
#include "desktop/dialogs/DialogTexts.h"
#include "desktop/dialogs/formulas/ChoiceTree.h"
#include "desktop/dialogs/formulas/ExpressionEdit.h"
#include "desktop/dialogs/formulas/ExpressionField.h"
#include "desktop/look/Texts.h"

namespace xrpt {

FormulaWizard::FormulaWizard(const ExpressionSources& sources, ExpressionKind kind, const std::wstring& expression,
                             QWidget* parent)
    : QDialog(parent), choices_(new ChoiceTree(sources, this)), field_(new ExpressionField(kind, this)) {
  setWindowTitle(Translated(text::kWizard));
  auto* column = new QVBoxLayout(this);
  column->addWidget(choices_, 1);
  column->addWidget(field_);
  column->addWidget(AddClosingButtons(*this));
  choices_->chosen = [this](const std::wstring& text, std::size_t caretBack) {
    field_->Edit().Insert(text, caretBack);
  };
  field_->SetSources(sources);
  field_->SetText(expression);
  KeepSize(*this, L"wizard", {680, 560});
  choices_->FocusFilter();
}

std::optional<std::wstring> FormulaWizard::Ask(const ExpressionSources& sources, ExpressionKind kind,
                                               const std::wstring& expression, QWidget* parent) {
  FormulaWizard wizard(sources, kind, expression, parent);
  if (wizard.exec() != QDialog::Accepted) return std::nullopt;
  return wizard.field_->Text();
}

}  // namespace xrpt
