#include "desktop/dialogs/RecoveryDialog.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "desktop/TextIds.h"
#include "desktop/dialogs/DifferencesDialog.h"
#include "desktop/look/Texts.h"
#include "editor/EditorTexts.h"
#include "platform/FileTexts.h"

namespace xrpt {
namespace {

QString NameOf(const Recovered& work) { return work.name.empty() ? Translated(text::kUntitled) : ToQString(work.name); }

QString OnDisk(const Recovered& work) {
  if (work.file.empty()) return Translated(text::kNeverSaved);
  const QFileInfo info(ToQString(work.file.wstring()));
  if (!info.exists()) return Translated(text::kNotOnDisk);
  return QLocale().toString(info.lastModified(), QLocale::ShortFormat);
}

}  // namespace

RecoveryDialog::RecoveryDialog(std::vector<Recovered> left, QWidget* parent) : QDialog(parent), left_(std::move(left)) {
  setWindowTitle(Translated(text::kUnsavedWork));
  auto* column = new QVBoxLayout(this);
  auto* explanation = new QLabel(Translated(text::kUnsavedWorkDetail), this);
  explanation->setWordWrap(true);
  column->addWidget(explanation);
  AddList();
  AddButtons();
  resize(640, 320);
  Refresh();
  list_->setFocus();
}

void RecoveryDialog::AddList() {
  list_ = new QTreeWidget(this);
  list_->setAccessibleName(Translated(text::kUnsavedWork));
  list_->setHeaderLabels({Translated(text::kReportName), Translated(text::kKeptOn), Translated(text::kOnDisk)});
  list_->header()->setAccessibleName(Translated(text::kUnsavedWork));
  list_->header()->setStretchLastSection(false);
  list_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  list_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  list_->header()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
  list_->setRootIsDecorated(false);
  list_->setAlternatingRowColors(true);
  for (const Recovered& work : left_) {
    const QString kept = QLocale().toString(QDateTime::fromSecsSinceEpoch(work.since), QLocale::ShortFormat);
    auto* item = new QTreeWidgetItem(list_, {NameOf(work), kept, OnDisk(work)});
    item->setToolTip(0, ToQString(work.file.wstring()));
  }
  list_->setCurrentItem(list_->topLevelItem(0));
  connect(list_, &QTreeWidget::itemSelectionChanged, this, [this] { Refresh(); });
  connect(list_, &QTreeWidget::itemActivated, this, [this] { accept(); });
  static_cast<QVBoxLayout*>(layout())->addWidget(list_, 1);
}

void RecoveryDialog::AddButtons() {
  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(Translated(text::kOpenRecovered), QDialogButtonBox::AcceptRole)->setDefault(true);
  buttons->addButton(Translated(text::kLater), QDialogButtonBox::RejectRole);
  differences_ = buttons->addButton(Translated(text::kShowDifferences), QDialogButtonBox::ActionRole);
  QPushButton* discard = buttons->addButton(Translated(text::kDiscardRecovered), QDialogButtonBox::DestructiveRole);
  differences_->setAutoDefault(false);
  discard->setAutoDefault(false);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(differences_, &QPushButton::clicked, this, [this] { ShowDifferences(); });
  connect(discard, &QPushButton::clicked, this, [this] { Discard(); });
  layout()->addWidget(buttons);
}

const Recovered* RecoveryDialog::Current() const {
  const int row = list_->indexOfTopLevelItem(list_->currentItem());
  return row < 0 ? nullptr : &left_[static_cast<std::size_t>(row)];
}

void RecoveryDialog::Refresh() {
  const Recovered* work = Current();
  differences_->setEnabled(work && !work->file.empty() && QFileInfo::exists(ToQString(work->file.wstring())));
}

void RecoveryDialog::ShowDifferences() {
  const Recovered* work = Current();
  RVReport kept;
  if (work && kept.LoadFile(work->text).loaded) DifferencesDialog(work->file, kept, this).exec();
}

void RecoveryDialog::Discard() {
  const Recovered* work = Current();
  if (!work) return;
  const QString question = Translated(text::kDiscardForGood, NameOf(*work));
  QMessageBox box(QMessageBox::Warning, Translated(text::kProgramName), question, QMessageBox::NoButton, this);
  QPushButton* yes = box.addButton(Translated(text::kDiscardRecovered), QMessageBox::DestructiveRole);
  QPushButton* no = box.addButton(Translated(text::kCancel), QMessageBox::RejectRole);
  box.setDefaultButton(no);
  box.setEscapeButton(no);
  box.exec();
  if (box.clickedButton() != yes) return;
  CurrentHost().recovery->Discard(*work);
  const int row = list_->indexOfTopLevelItem(list_->currentItem());
  left_.erase(left_.begin() + row);
  delete list_->takeTopLevelItem(row);
  if (left_.empty()) return reject();
  Refresh();
}

std::optional<Recovered> RecoveryDialog::Choose(std::vector<Recovered> left, QWidget* parent) {
  RecoveryDialog dialog(std::move(left), parent);
  if (dialog.exec() != QDialog::Accepted || !dialog.Current()) return std::nullopt;
  return *dialog.Current();
}

}  // namespace xrpt
