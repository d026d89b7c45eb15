#include "desktop/dialogs/CDlgIntroduceIdentification.h"

#include <QLineEdit>
#include <QPushButton>

#include "desktop/dialogs/DialogParts.h"

namespace xrpt {

CDlgIntroduceIdentification::CDlgIntroduceIdentification(QWidget* parent)
    : QDialog(parent), prompt_(new QLabel(this)), name_(new QLineEdit(this)) {
  auto* column = new QVBoxLayout(this);
  prompt_->setBuddy(name_);
  name_->setMinimumWidth(280);
  QDialogButtonBox* buttons = AddClosingButtons(*this);
  ok_ = buttons->button(QDialogButtonBox::Ok);
  connect(name_, &QLineEdit::textChanged, this, [this] { ok_->setEnabled(!Name().isEmpty()); });
  column->addWidget(prompt_);
  column->addWidget(name_);
  column->addStretch(1);
  column->addWidget(buttons);
}

void CDlgIntroduceIdentification::Setup(const QString& prompt, const QString& title, const QString& initial) {
  setWindowTitle(title);
  prompt_->setText(prompt);
  name_->setAccessibleName(prompt);
  name_->setText(initial);
  name_->selectAll();
  name_->setFocus();
  ok_->setEnabled(!Name().isEmpty());
}

QString CDlgIntroduceIdentification::Name() const { return name_->text().trimmed(); }

}  // namespace xrpt
