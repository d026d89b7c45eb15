// One formula: its name, its expression and what both are worth while they are typed.
#pragma once

#include <QDialog>

#include "formulas/CDlgNewFormule.h"
#include "formulas/ExpressionChoices.h"

class QLineEdit;
class QPushButton;

namespace xrpt {

class ExpressionField;

class FormulaDialog final : public QDialog {
 public:
  // `formula` is what the dialog does, `sources` what its expression may use; both must outlive it.
  FormulaDialog(CDlgNewFormule& formula, const ExpressionSources& sources, QWidget* parent);

  void accept() override;

 private:
  void BuildFields();
  void OpenWizard();

  CDlgNewFormule& formula_;
  const ExpressionSources& sources_;
  QLineEdit* name_;
  ExpressionField* field_;
  QPushButton* ok_;
};

}  // namespace xrpt
