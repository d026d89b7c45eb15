#include "desktop/dialogs/SaveDialog.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/TextIds.h"
#include "desktop/look/Texts.h"
#include "editor/EditorTexts.h"
#include "editor/ReportFiles.h"
#include "platform/FileTexts.h"
#include "platform/Host.h"
#include "platform/SystemNames.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

constexpr SaveDialog::Words kSaveWords{text::kSaveAsTitle, text::kSaveAnswer};

}  // namespace

SaveDialog::SaveDialog(const std::wstring& name, bool offersFiles, const Words& words, QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(Translated(words.title));
  auto* column = new QVBoxLayout(this);
  auto* label = new QLabel(Translated(text::kReportName), this);
  name_ = new QLineEdit(ToQString(name), this);
  name_->setAccessibleName(Translated(text::kReportName));
  label->setBuddy(name_);
  problem_ = new QLabel(this);
  problem_->setWordWrap(true);
  problem_->setMinimumHeight(2 * fontMetrics().lineSpacing());
  problem_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  column->addWidget(label);
  column->addWidget(name_);
  column->addWidget(problem_);
  AddButtons(*column, offersFiles, words.accept);
  connect(name_, &QLineEdit::textChanged, this, [this] { Check(); });
  resize(460, sizeHint().height());
  Check();
  name_->selectAll();
  name_->setFocus();
}

void SaveDialog::AddButtons(QBoxLayout& column, bool offersFiles, int acceptTextId) {
  auto* buttons = new QDialogButtonBox(this);
  save_ = buttons->addButton(Translated(acceptTextId), QDialogButtonBox::AcceptRole);
  save_->setDefault(true);
  buttons->addButton(Translated(text::kCancel), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column.addWidget(buttons);
  if (!offersFiles) return;
  QPushButton* browse = buttons->addButton(Translated(text::kSaveAsFile), QDialogButtonBox::ActionRole);
  browse->setAutoDefault(false);
  connect(browse, &QPushButton::clicked, this, [this] { Browse(); });
}

void SaveDialog::Check() {
  target_.name = name_->text().trimmed().toStdWString();
  const int problem = target_.name.empty() ? 0 : ProblemWithReportName(target_.name);
  const bool isAsOffered = !name_->isModified() && problem == text::kNameIsTaken;
  problem_->setText(problem == 0 || isAsOffered ? QString() : Translated(problem));
  save_->setEnabled(problem == 0 && !target_.name.empty());
}

// The toolkit's dialog asks before a file is replaced.
void SaveDialog::Browse() {
  const QString ending = ToQString(kReportEnding);
  QFileDialog dialog(this, Translated(text::kSaveAsTitle), ToQString(CurrentHost().setup->CfgPath().wstring()),
                     QStringLiteral("%1 (*%2)").arg(Translated(text::kReports), ending));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(ending.mid(1));
  dialog.selectFile(name_->text().trimmed());
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
  target_.file = Path(ToUtf8(dialog.selectedFiles().front().toStdWString()));
  accept();
}

std::optional<SaveTarget> SaveDialog::Choose(const std::wstring& name, QWidget* parent) {
  SaveDialog dialog(name, true, kSaveWords, parent);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.target_;
}

std::optional<std::wstring> SaveDialog::ChooseName(const std::wstring& proposed, QWidget* parent) {
  return ChooseName(proposed, parent, kSaveWords);
}

std::optional<std::wstring> SaveDialog::ChooseName(const std::wstring& proposed, QWidget* parent, const Words& words) {
  SaveDialog dialog(proposed, false, words, parent);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.target_.name;
}

}  // namespace xrpt
