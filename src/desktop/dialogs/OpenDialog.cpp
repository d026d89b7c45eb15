#include "desktop/dialogs/OpenDialog.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <map>

#include "desktop/TextIds.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"
#include "editor/CommandTexts.h"
#include "model/RVReport.h"
#include "platform/FileTexts.h"
#include "platform/NamedFiles.h"

namespace xrpt {

namespace {

// Opening puts the ending on again, as on a name.
QString WithoutEnding(const QString& file) {
  const QString ending = ToQString(kReportEnding);
  return file.endsWith(ending) ? file.chopped(ending.size()) : file;
}

}  // namespace

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
  list_->setHeaderLabels({Translated(text::kReportName), Translated(text::kChangedOn), Translated(text::kFileColumn)});
  list_->setRootIsDecorated(false);
  list_->setAlternatingRowColors(true);
  list_->setFrameShape(QFrame::StyledPanel);
  list_->header()->setAccessibleName(Translated(text::kReports));
  list_->header()->setStretchLastSection(false);
  list_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  list_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  list_->header()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
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

// Reports of one name are told apart by their files.
void OpenDialog::Fill(const std::wstring& current) {
  const std::vector<Path> files = CurrentHost().files->List(CurrentHost().setup->CfgPath(), kReportEnding);
  std::map<std::wstring, int> count;
  for (const Path& file : files) ++count[NameOfFile(file, kReportEnding)];
  bool hasSeveral = false;
  for (const Path& file : files) {
    const bool isOneOfSeveral = count[NameOfFile(file, kReportEnding)] > 1;
    AddFile(file, isOneOfSeveral, current);
    hasSeveral = hasSeveral || isOneOfSeveral;
  }
  list_->setColumnHidden(2, !hasSeveral);
  list_->sortItems(0, Qt::AscendingOrder);
  if (!list_->currentItem() && list_->topLevelItemCount() > 0) list_->setCurrentItem(list_->topLevelItem(0));
  Refresh();
}

void OpenDialog::AddFile(const Path& file, bool isOneOfSeveral, const std::wstring& current) {
  const QFileInfo info(ToQString(file.wstring()));
  const QString name = ToQString(NameOfFile(file, kReportEnding));
  auto* item = new QTreeWidgetItem(
      list_, {name, QLocale().toString(info.lastModified(), QLocale::ShortFormat), info.fileName()});
  item->setIcon(0, ThemedIcon(QStringLiteral("portrait")));
  item->setData(0, Qt::UserRole, isOneOfSeveral ? WithoutEnding(info.absoluteFilePath()) : name);
  if (name == ToQString(current)) list_->setCurrentItem(item);
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
  chosen_ = item && !item->isHidden() ? item->data(0, Qt::UserRole).toString().toStdWString() : std::wstring();
  open_->setEnabled(!chosen_.empty());
}

void OpenDialog::Browse() {
  const QString folder = ToQString(CurrentHost().setup->CfgPath().wstring());
  const QString file = QFileDialog::getOpenFileName(
      this, Translated(text::kOpenReport), folder,
      QStringLiteral("%1 (*%2)").arg(Translated(text::kReports), ToQString(kReportEnding)));
  if (file.isEmpty()) return;
  chosen_ = WithoutEnding(file).toStdWString();
  accept();
}

std::optional<std::wstring> OpenDialog::Choose(const std::wstring& current, QWidget* parent) {
  OpenDialog dialog(current, parent);
  if (dialog.exec() != QDialog::Accepted || dialog.chosen_.empty()) return std::nullopt;
  return dialog.chosen_;
}

}  // namespace xrpt
