#include "desktop/dialogs/formulas/FormulaDialog.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/dialogs/DialogParts.h"
#include "desktop/dialogs/DialogSize.h"
#include "desktop/dialogs/DialogTexts.h"
#include "desktop/dialogs/formulas/ExpressionEdit.h"
#include "desktop/dialogs/formulas/ExpressionField.h"
#include "desktop/dialogs/formulas/FormulaWizard.h"
#include "desktop/look/Texts.h"

namespace xrpt {

FormulaDialog::FormulaDialog(CDlgNewFormule& formula, const ExpressionSources& sources, QWidget* parent)
    : QDialog(parent), formula_(formula), sources_(sources) {
  setWindowTitle(Translated(text::kFormula));
  BuildFields();
  QDialogButtonBox* buttons = AddClosingButtons(*this);
  ok_ = buttons->button(QDialogButtonBox::Ok);
  QPushButton* wizard = buttons->addButton(Translated(text::kWizardButton), QDialogButtonBox::ActionRole);
  wizard->setAutoDefault(false);
  connect(wizard, &QPushButton::clicked, this, [this] { OpenWizard(); });
  static_cast<QVBoxLayout*>(layout())->addWidget(buttons);
  KeepSize(*this, L"formula", {520, 230});
  field_->Judge();
  name_->setFocus();
}

void FormulaDialog::BuildFields() {
  auto* column = new QVBoxLayout(this);
  auto* form = new QFormLayout();
  name_ = new QLineEdit(ToQString(formula_.name), this);
  name_->setAccessibleName(Translated(text::kNameColumn));
  field_ = new ExpressionField(ExpressionKind::Numeric, this);
  field_->Edit().SetLines(3, true);
  field_->SetSources(sources_);
  field_->SetText(formula_.text);
  field_->judge = [this](const std::wstring& text) {
    formula_.name = name_->text().toStdWString();
    formula_.text = text;
    formula_.Evaluate();
    return JudgementOf(formula_);
  };
  field_->judged = [this] { ok_->setEnabled(formula_.Result().accepted); };
  connect(name_, &QLineEdit::textChanged, this, [this] { field_->Judge(); });
  form->addRow(Translated(text::kNameColumn), name_);
  form->addRow(Translated(text::kFormulaExpression), field_);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  column->addLayout(form, 1);
}

void FormulaDialog::OpenWizard() {
  const auto text = FormulaWizard::Ask(sources_, ExpressionKind::Numeric, field_->Text(), this);
  if (text) field_->SetText(*text);
  field_->setFocus();
}

// Judged once more, for the last key may not have been yet.
void FormulaDialog::accept() {
  field_->Judge();
  if (formula_.Result().accepted) QDialog::accept();
}

}  // namespace xrpt
