#include "desktop/dialogs/ReportListDialog.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "desktop/TextIds.h"
#include "desktop/dialogs/DialogSize.h"
#include "desktop/dialogs/QuestionBox.h"
#include "desktop/dialogs/ReportPreview.h"
#include "desktop/dialogs/SaveDialog.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"
#include "editor/CommandTexts.h"
#include "editor/EditorTexts.h"
#include "platform/FileTexts.h"
#include "platform/Host.h"
#include "platform/SystemNames.h"

namespace xrpt {

namespace {

// Opening puts the ending on again, as on a name.
QString WithoutEnding(const QString& file) {
  const QString ending = ToQString(kReportEnding);
  return file.endsWith(ending) ? file.chopped(ending.size()) : file;
}

// Long names of files may go on in the next line behind each of their parts.
QString Breakable(QString text) {
  static const QRegularExpression kPartEnd(QStringLiteral("([-._/])"));
  return text.replace(kPartEnd, QStringLiteral("\\1\u200B"));
}

QTreeWidgetItem* MakeItem(const ListedReport& report) {
  const QFileInfo info(ToQString(report.file.wstring()));
  auto* item =
      new QTreeWidgetItem({ToQString(report.name), QLocale().toString(info.lastModified(), QLocale::ShortFormat),
                           QLocale().formattedDataSize(info.size(), 0), info.fileName()});
  item->setIcon(0, ThemedIcon(report.sharesName ? QStringLiteral("warning") : QStringLiteral("portrait")));
  item->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
  item->setToolTip(0, info.fileName());
  return item;
}

}  // namespace

ReportListDialog::ReportListDialog(const std::wstring& current, const Path& open, QWidget* parent)
    : QDialog(parent), list_(*this, current, open) {
  setWindowTitle(Translated(text::kOpenReport));
  auto* column = new QVBoxLayout(this);
  AddFilter(*column);
  auto* row = new QHBoxLayout();
  column->addLayout(row, 1);
  AddList(*row);
  AddDetails(*row);
  AddButtons(*column);
  Fill();
  KeepSize(*this, L"Reports", {820, 480});
  filter_->setFocus();
}

void ReportListDialog::AddFilter(QBoxLayout& column) {
  filter_ = new QLineEdit(this);
  filter_->setPlaceholderText(Translated(text::kFilterReports));
  filter_->setAccessibleName(Translated(text::kFilterReports));
  filter_->setClearButtonEnabled(true);
  filter_->installEventFilter(this);
  connect(filter_, &QLineEdit::textChanged, this, [this](const QString& typed) {
    list_.SetFilter(typed.toStdWString());
    Fill();
  });
  column.addWidget(filter_);
}

void ReportListDialog::AddList(QBoxLayout& row) {
  rows_ = new QTreeWidget(this);
  rows_->setAccessibleName(Translated(text::kReports));
  rows_->setHeaderLabels({Translated(text::kReportName), Translated(text::kChangedOn), Translated(text::kFileSize),
                          Translated(text::kFileColumn)});
  rows_->setRootIsDecorated(false);
  rows_->setAlternatingRowColors(true);
  rows_->setUniformRowHeights(true);
  rows_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  rows_->setFrameShape(QFrame::StyledPanel);
  QHeaderView* header = rows_->header();
  header->setAccessibleName(Translated(text::kReports));
  header->setSectionsClickable(true);
  header->setSortIndicatorShown(true);
  header->setStretchLastSection(false);
  header->setSectionResizeMode(QHeaderView::ResizeToContents);
  connect(header, &QHeaderView::sectionClicked, this, [this](int section) {
    list_.OrderList(static_cast<ReportColumn>(section));
    Fill();
  });
  connect(rows_, &QTreeWidget::itemSelectionChanged, this, [this] { TakeSelection(); });
  connect(rows_, &QTreeWidget::itemDoubleClicked, this, [this] { Open(); });
  row.addWidget(rows_, 1);
}

void ReportListDialog::AddDetails(QBoxLayout& row) {
  auto* column = new QVBoxLayout();
  preview_ = new ReportPreview(this);
  preview_->setFixedWidth(210);
  details_ = new QLabel(this);
  details_->setFixedWidth(210);
  details_->setWordWrap(true);
  details_->setTextFormat(Qt::PlainText);
  details_->setAccessibleName(Translated(text::kReportDetails));
  details_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  column->addWidget(preview_, 3);
  column->addWidget(details_, 1);
  row.addLayout(column);
}

void ReportListDialog::AddButtons(QBoxLayout& column) {
  auto* buttons = new QDialogButtonBox(this);
  open_ = buttons->addButton(Translated(text::kOpen), QDialogButtonBox::AcceptRole);
  open_->setDefault(true);
  buttons->addButton(Translated(text::kCancel), QDialogButtonBox::RejectRole);
  rename_ = AddAction(*buttons, text::kRenameButton, "F2", &CDlgInformesList::OnRename);
  duplicate_ = AddAction(*buttons, text::kDuplicateButton, "Ctrl+D", &CDlgInformesList::OnDuplicate);
  remove_ = AddAction(*buttons, text::kDeleteButton, "Del", &CDlgInformesList::OnDelete);
  QPushButton* browse = buttons->addButton(Translated(text::kBrowse), QDialogButtonBox::ActionRole);
  browse->setAutoDefault(false);
  connect(browse, &QPushButton::clicked, this, [this] { Browse(); });
  connect(buttons, &QDialogButtonBox::accepted, this, [this] { Open(); });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column.addWidget(buttons);
}

// The key works in the list: in the filter it belongs to what is typed.
QPushButton* ReportListDialog::AddAction(QDialogButtonBox& buttons, int textId, const char* keys,
                                         bool (CDlgInformesList::*act)()) {
  QPushButton* button = buttons.addButton(Translated(textId), QDialogButtonBox::ActionRole);
  const QKeySequence sequence(QLatin1String{keys});
  button->setAutoDefault(false);
  button->setToolTip(sequence.toString(QKeySequence::NativeText));
  connect(button, &QPushButton::clicked, this, [this, act] { Run(act); });
  auto* shortcut = new QShortcut(sequence, rows_);
  shortcut->setContext(Qt::WidgetShortcut);
  connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
  return button;
}

void ReportListDialog::Run(bool (CDlgInformesList::*act)()) {
  (list_.*act)();
  if (!list_.IsFiltered()) filter_->clear();
  Fill();
}

// Reports of one name are told apart by their files.
void ReportListDialog::Fill() {
  const QSignalBlocker quiet(rows_);
  rows_->clear();
  bool hasSeveral = false;
  QList<QTreeWidgetItem*> items;
  for (const ListedReport& report : list_.Rows()) {
    items.append(MakeItem(report));
    hasSeveral = hasSeveral || report.sharesName;
  }
  rows_->addTopLevelItems(items);
  rows_->setColumnHidden(3, !hasSeveral);
  rows_->header()->setSectionResizeMode(0, hasSeveral ? QHeaderView::ResizeToContents : QHeaderView::Stretch);
  rows_->header()->setSectionResizeMode(3, QHeaderView::Stretch);
  rows_->header()->setSortIndicator(static_cast<int>(list_.Order()),
                                    list_.IsDescending() ? Qt::DescendingOrder : Qt::AscendingOrder);
  ShowSelection();
  Refresh();
}

void ReportListDialog::ShowSelection() {
  const std::vector<std::size_t> selection = list_.Selection();
  for (const std::size_t row : selection) rows_->topLevelItem(static_cast<int>(row))->setSelected(true);
  if (selection.empty()) return;
  QTreeWidgetItem* first = rows_->topLevelItem(static_cast<int>(selection.front()));
  rows_->setCurrentItem(first, 0, QItemSelectionModel::NoUpdate);
  rows_->scrollToItem(first);
}

void ReportListDialog::TakeSelection() {
  std::vector<std::size_t> rows;
  for (QTreeWidgetItem* item : rows_->selectedItems())
    rows.push_back(static_cast<std::size_t>(rows_->indexOfTopLevelItem(item)));
  list_.Select(rows);
  Refresh();
}

void ReportListDialog::Refresh() {
  const CDlgInformesList::Buttons buttons = list_.UpdateButtons();
  open_->setEnabled(buttons.open);
  rename_->setEnabled(buttons.rename);
  duplicate_->setEnabled(buttons.duplicate);
  remove_->setEnabled(buttons.remove);
  ShowDetails();
}

void ReportListDialog::ShowDetails() {
  const std::vector<std::size_t> selection = list_.Selection();
  if (selection.size() != 1) {
    details_->clear();
    return preview_->Show({}, {});
  }
  const ListedReport& report = list_.Rows()[selection.front()];
  preview_->Show(report.file, report.stamp);
  QStringList lines = {Breakable(ToQString(report.file.filename().wstring())),
                       Breakable(Translated(text::kLiesIn, ToQString(report.file.parent_path().wstring())))};
  if (!report.id.empty()) lines.append(Breakable(Translated(text::kReportId, ToQString(report.id))));
  if (const QString notice = NoticeOn(report); !notice.isEmpty()) lines.append(notice);
  details_->setText(lines.join(QStringLiteral("\n\n")));
}

QString ReportListDialog::NoticeOn(const ListedReport& report) const {
  if (list_.IsOpen(report)) return Translated(text::kIsOpenNow);
  if (!report.sharesName) return {};
  return Translated(report.isFound ? text::kNameFindsThis : text::kNameFindsAnother);
}

// The arrows move through the list while the keyboard stays in the filter.
bool ReportListDialog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown)
      return QApplication::sendEvent(rows_, event);
  }
  return QDialog::eventFilter(watched, event);
}

// --- What the list asks ---

std::size_t ReportListDialog::Decide(const Question& question) { return AskInBox(question, this); }

std::optional<std::wstring> ReportListDialog::AskForName(int titleTextId, const std::wstring& proposed) {
  return SaveDialog::ChooseName(proposed, this, {titleTextId, text::kRenameAnswer});
}

void ReportListDialog::TellFailure(const std::wstring& sentence) {
  QMessageBox::warning(this, windowTitle(), ToQString(sentence));
}

// --- The end ---

void ReportListDialog::Open() {
  chosen_ = list_.Chosen();
  if (!chosen_.empty()) accept();
}

void ReportListDialog::Browse() {
  const QString folder = ToQString(CurrentHost().setup->CfgPath().wstring());
  const QString file = QFileDialog::getOpenFileName(
      this, Translated(text::kOpenReport), folder,
      QStringLiteral("%1 (*%2)").arg(Translated(text::kReports), ToQString(kReportEnding)));
  if (file.isEmpty()) return;
  chosen_ = WithoutEnding(file).toStdWString();
  accept();
}

std::optional<std::wstring> ReportListDialog::Choose(const std::wstring& current, const Path& open, QWidget* parent) {
  ReportListDialog dialog(current, open, parent);
  if (dialog.exec() != QDialog::Accepted || dialog.chosen_.empty()) return std::nullopt;
  return dialog.chosen_;
}

}  // namespace xrpt
