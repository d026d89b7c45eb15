#include "desktop/dialogs/DifferencesDialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "desktop/look/Texts.h"
#include "editor/ReportDifferences.h"
#include "platform/FileTexts.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

constexpr std::size_t kMostLines = 500;

QString Shown(const std::wstring& value) { return value.empty() ? Translated(text::kMissing) : ToQString(value); }

}  // namespace

DifferencesDialog::DifferencesDialog(const Path& file, const RVReport& here, QWidget* parent) : QDialog(parent) {
  setWindowTitle(Translated(text::kDifferences) + QStringLiteral(" — ") + ToQString(file.filename().wstring()));
  auto* column = new QVBoxLayout(this);
  RVReport onDisk;
  const LoadResult result = onDisk.LoadFile(file);
  if (result.loaded) {
    AddList(onDisk, here);
  } else {
    auto* reason = new QLabel(ToQString(TextOf(result)), this);
    reason->setWordWrap(true);
    column->addWidget(reason, 1);
  }
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  resize(760, 460);
}

void DifferencesDialog::AddList(const RVReport& onDisk, const RVReport& here) {
  auto* list = new QTreeWidget(this);
  list->setAccessibleName(Translated(text::kDifferences));
  list->setHeaderLabels(
      {Translated(text::kPlaceColumn), Translated(text::kOnDiskColumn), Translated(text::kHereColumn)});
  list->header()->setAccessibleName(Translated(text::kDifferences));
  list->setRootIsDecorated(false);
  list->setAlternatingRowColors(true);
  std::size_t left = 0;
  for (const Difference& one : DifferencesOf(onDisk, here, kMostLines, left))
    new QTreeWidgetItem(list, {ToQString(one.where), Shown(one.onDisk), Shown(one.here)});
  if (left > 0)
    new QTreeWidgetItem(list, {ToQString(FillIn(HostText(text::kMoreDifferences), {std::to_wstring(left)}))});
  if (list->topLevelItemCount() == 0) new QTreeWidgetItem(list, {Translated(text::kNoDifferences)});
  list->header()->resizeSection(0, 360);
  list->header()->resizeSection(1, 180);
  static_cast<QVBoxLayout*>(layout())->addWidget(list, 1);
}

}  // namespace xrpt
