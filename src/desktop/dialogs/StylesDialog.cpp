#include "desktop/dialogs/StylesDialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTreeWidget>

#include "desktop/TextIds.h"
#include "desktop/dialogs/DialogSize.h"
#include "desktop/dialogs/StyleDialog.h"
#include "desktop/look/Swatch.h"
#include "desktop/look/Texts.h"
#include "editor/CommandTexts.h"
#include "model/FieldTexts.h"

namespace xrpt {

namespace {

constexpr double kLargestSample = 16.0;  // points, so that one style does not fill the list

QTreeWidgetItem* MakeItem(const tagStyleCfg& style) {
  auto* item = new QTreeWidgetItem({ToQString(style.name), ToQString(style.font.face),
                                    QLocale().toString(style.font.size), Translated(text::kStyleSampleText)});
  item->setIcon(0, Swatch(style.color));
  item->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
  item->setFont(3, ToolkitFont(style, std::min(style.font.size, kLargestSample)));
  return item;
}

}  // namespace

StylesDialog::StylesDialog(QWidget* parent) : QDialog(parent), list_(*this) {
  setWindowTitle(Translated(text::kStyles));
  auto* column = new QVBoxLayout(this);
  auto* row = new QHBoxLayout();
  column->addLayout(row, 1);
  AddList(*row);
  AddButtons(*row);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  if (!list_.Rows().empty()) list_.Select({0});
  Fill();
  KeepSize(*this, L"Styles", {640, 420});
}

void StylesDialog::AddList(QBoxLayout& row) {
  rows_ = new QTreeWidget(this);
  rows_->setAccessibleName(Translated(text::kStyles));
  rows_->setHeaderLabels({Translated(text::kStyleName), Translated(text::kFontFace), Translated(text::kFontSize),
                          Translated(text::kStyleSample)});
  rows_->setRootIsDecorated(false);
  rows_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  rows_->setFrameShape(QFrame::StyledPanel);
  rows_->header()->setAccessibleName(Translated(text::kStyles));
  rows_->header()->setSectionsClickable(true);
  rows_->header()->setStretchLastSection(true);
  rows_->header()->resizeSection(0, 180);
  connect(rows_->header(), &QHeaderView::sectionClicked, this, [this](int section) {
    if (section > static_cast<int>(StyleColumn::Size)) return;
    list_.OrderList(static_cast<StyleColumn>(section));
    Fill();
  });
  connect(rows_, &QTreeWidget::itemSelectionChanged, this, [this] { TakeSelection(); });
  // Return is the default button's.
  connect(rows_, &QTreeWidget::itemDoubleClicked, this, [this] { Run(&CDlgAddRemoveStyle::OnStyleModify); });
  row.addWidget(rows_, 1);
}

void StylesDialog::AddButtons(QBoxLayout& row) {
  auto* column = new QVBoxLayout();
  row.addLayout(column);
  AddButton(*column, text::kNewStyleButton, &CDlgAddRemoveStyle::OnStyleNew, "Ctrl+N");
  modify_ = AddButton(*column, text::kModifyButton, &CDlgAddRemoveStyle::OnStyleModify);
  modify_->setDefault(true);
  duplicate_ = AddButton(*column, text::kDuplicateButton, &CDlgAddRemoveStyle::OnStyleDuplicate, "Ctrl+D");
  remove_ = AddButton(*column, text::kRemoveButton, &CDlgAddRemoveStyle::OnStyleRemove, "Del");
  column->addSpacing(12);
  copy_ = new QPushButton(Translated(text::kCopy), this);
  copy_->setAutoDefault(false);
  connect(copy_, &QPushButton::clicked, this, [this] { Copy(); });
  connect(new QShortcut(QKeySequence::Copy, this), &QShortcut::activated, copy_, &QPushButton::click);
  column->addWidget(copy_);
  AddButton(*column, text::kPaste, &CDlgAddRemoveStyle::PasteFromClipboard, "Ctrl+V");
  column->addStretch(1);
}

QPushButton* StylesDialog::AddButton(QBoxLayout& column, int textId, bool (CDlgAddRemoveStyle::*act)(),
                                     const char* keys) {
  auto* button = new QPushButton(Translated(textId), this);
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [this, act] { Run(act); });
  if (*keys)
    connect(new QShortcut(QKeySequence(QLatin1String(keys)), this), &QShortcut::activated, button, &QPushButton::click);
  column.addWidget(button);
  return button;
}

void StylesDialog::Run(bool (CDlgAddRemoveStyle::*act)()) {
  if (!(list_.*act)()) {
    if (act == &CDlgAddRemoveStyle::PasteFromClipboard) Tell(text::kNoStylesToPaste);
    return;
  }
  Fill();
  if (changed) changed(list_.TakeRenamings());
}

void StylesDialog::Copy() { list_.CopyToClipboard(); }

void StylesDialog::Fill() {
  const QSignalBlocker quiet(rows_);
  rows_->clear();
  for (const tagStyleCfg& style : list_.Rows()) rows_->addTopLevelItem(MakeItem(style));
  const std::vector<std::size_t> selection = list_.Selection();
  for (const std::size_t row : selection) rows_->topLevelItem(static_cast<int>(row))->setSelected(true);
  if (!selection.empty()) {
    QTreeWidgetItem* first = rows_->topLevelItem(static_cast<int>(selection.front()));
    rows_->setCurrentItem(first, 0, QItemSelectionModel::NoUpdate);
    rows_->scrollToItem(first);
  }
  Refresh();
}

void StylesDialog::TakeSelection() {
  std::vector<std::size_t> rows;
  for (QTreeWidgetItem* item : rows_->selectedItems())
    rows.push_back(static_cast<std::size_t>(rows_->indexOfTopLevelItem(item)));
  list_.Select(rows);
  Refresh();
}

void StylesDialog::Refresh() {
  const CDlgAddRemoveStyle::Buttons buttons = list_.UpdateButtons();
  modify_->setEnabled(buttons.modify);
  duplicate_->setEnabled(buttons.modify);
  remove_->setEnabled(buttons.remove);
  copy_->setEnabled(buttons.copy);
}

bool StylesDialog::EditStyle(CDlgNewModifyStyle& dialog) { return StyleDialog(dialog, this).exec() == Accepted; }

Answer StylesDialog::Ask(int textId) {
  QWidget* over = QApplication::activeModalWidget();
  const auto answer = QMessageBox::question(over ? over : this, windowTitle(), Translated(textId));
  return answer == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

void StylesDialog::Tell(int textId) { TellFailure(HostText(textId)); }

void StylesDialog::TellFailure(const std::wstring& sentence) {
  QWidget* over = QApplication::activeModalWidget();
  QMessageBox::warning(over ? over : this, windowTitle(), ToQString(sentence));
}

}  // namespace xrpt
