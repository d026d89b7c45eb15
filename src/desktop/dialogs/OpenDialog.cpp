#include "desktop/dialogs/OpenDialog.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>

#include "desktop/TextIds.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"
#include "editor/CommandTexts.h"
#include "model/RVReport.h"
#include "platform/NamedFiles.h"

namespace xrpt {

OpenDialog::OpenDialog(const std::wstring& current, QWidget* parent) : QDialog(parent) {
  setWindowTitle(Translated(text::kOpenReport));
  auto* column = new QVBoxLayout(this);
  filter_ = new QLineEdit(this);
  filter_->setPlaceholderText(Translated(text::kFilterReports));
  filter_->setAccessibleName(Translated(text::kFilterReports));
  filter_->setClearButtonEnabled(true);
  column->addWidget(filter_);
  AddList(*column);
  AddButtons(*column);
  connect(filter_, &QLineEdit::textChanged, this, [this](const QString& typed) { Filter(typed); });
  resize(560, 420);
  Fill(current);
  filter_->setFocus();
}

void OpenDialog::AddList(QBoxLayout& column) {
  list_ = new QTreeWidget(this);
  list_->setAccessibleName(Translated(text::kReports));
  list_->setHeaderLabels({Translated(text::kReportName), Translated(text::kChangedOn)});
  list_->setRootIsDecorated(false);
  list_->setAlternatingRowColors(true);
  list_->setFrameShape(QFrame::StyledPanel);
  list_->header()->setAccessibleName(Translated(text::kReports));
  list_->header()->setStretchLastSection(false);
  list_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  list_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  connect(list_, &QTreeWidget::itemSelectionChanged, this, [this] { Refresh(); });
  connect(list_, &QTreeWidget::itemActivated, this, [this] { accept(); });
  column.addWidget(list_, 1);
}

void OpenDialog::AddButtons(QBoxLayout& column) {
  auto* buttons = new QDialogButtonBox(this);
  open_ = buttons->addButton(Translated(text::kOpen), QDialogButtonBox::AcceptRole);
  open_->setDefault(true);
  buttons->addButton(Translated(text::kCancel), QDialogButtonBox::RejectRole);
  QPushButton* browse = buttons->addButton(Translated(text::kBrowse), QDialogButtonBox::ActionRole);
  browse->setAutoDefault(false);
  connect(browse, &QPushButton::clicked, this, [this] { Browse(); });
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column.addWidget(buttons);
}

void OpenDialog::Fill(const std::wstring& current) {
  for (const Path& file : CurrentHost().files->List(CurrentHost().setup->CfgPath(), kReportEnding)) {
    const QFileInfo info(ToQString(file.wstring()));
    const QString name = ToQString(NameOfFile(file, kReportEnding));
    auto* item = new QTreeWidgetItem(list_, {name, QLocale().toString(info.lastModified(), QLocale::ShortFormat)});
    item->setIcon(0, ThemedIcon(QStringLiteral("portrait")));
    if (name == ToQString(current)) list_->setCurrentItem(item);
  }
  list_->sortItems(0, Qt::AscendingOrder);
  if (!list_->currentItem() && list_->topLevelItemCount() > 0) list_->setCurrentItem(list_->topLevelItem(0));
  Refresh();
}

void OpenDialog::Filter(const QString& typed) {
  QTreeWidgetItem* first = nullptr;
  for (int row = 0; row < list_->topLevelItemCount(); ++row) {
    QTreeWidgetItem* item = list_->topLevelItem(row);
    item->setHidden(!item->text(0).contains(typed, Qt::CaseInsensitive));
    if (!first && !item->isHidden()) first = item;
  }
  if (!list_->currentItem() || list_->currentItem()->isHidden()) list_->setCurrentItem(first);
  Refresh();
}

void OpenDialog::Refresh() {
  const QTreeWidgetItem* item = list_->currentItem();
  chosen_ = item && !item->isHidden() ? item->text(0).toStdWString() : std::wstring();
  open_->setEnabled(!chosen_.empty());
}

void OpenDialog::Browse() {
  const QString folder = ToQString(CurrentHost().setup->CfgPath().wstring());
  const QString file = QFileDialog::getOpenFileName(
      this, Translated(text::kOpenReport), folder,
      QStringLiteral("%1 (*%2)").arg(Translated(text::kReports), ToQString(kReportEnding)));
  if (file.isEmpty()) return;
  // Opening puts the ending on again, as on a name.
  const QString ending = ToQString(kReportEnding);
  chosen_ = (file.endsWith(ending) ? file.chopped(ending.size()) : file).toStdWString();
  accept();
}

std::optional<std::wstring> OpenDialog::Choose(const std::wstring& current, QWidget* parent) {
  OpenDialog dialog(current, parent);
  if (dialog.exec() != QDialog::Accepted || dialog.chosen_.empty()) return std::nullopt;
  return dialog.chosen_;
}

}  // namespace xrpt
