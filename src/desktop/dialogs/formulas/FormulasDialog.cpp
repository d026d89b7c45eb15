#include "desktop/dialogs/formulas/FormulasDialog.h"

#include <QAction>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>

#include "desktop/TextIds.h"
#include "desktop/dialogs/DialogParts.h"
#include "desktop/dialogs/DialogSize.h"
#include "desktop/dialogs/DialogTexts.h"
#include "desktop/dialogs/formulas/FormulaDialog.h"
#include "desktop/dialogs/formulas/FormulaModel.h"
#include "desktop/dialogs/formulas/UseQuestions.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"
#include "editor/RVEditControlWnd.h"
#include "editor/ReportDialogs.h"

namespace xrpt {

FormulasDialog::FormulasDialog(RVEditControlWnd& frame, const std::wstring& shown, QWidget* parent)
    : QDialog(parent), frame_(frame), table_(OpenFormulas(frame, *this)) {
  setWindowTitle(Translated(text::kFormulas));
  BuildList();
  BuildActions();
  auto* column = new QVBoxLayout(this);
  auto* row = new QHBoxLayout();
  row->addWidget(list_, 1);
  AddButtons(*row);
  column->addLayout(row, 1);
  column->addWidget(AddClosingButtons(*this));
  KeepSize(*this, L"formulas", {720, 440});
  const Formula* first = FindFormula(table_.Rows(), shown);
  if (first) {
    table_.Select({static_cast<std::size_t>(first - table_.Rows().data())});
  } else {
    table_.Select({0});
  }
  ShowSelection();
  list_->setFocus();
}

// Enter modifies; closing with Enter takes the OK button.
void FormulasDialog::BuildList() {
  model_ = new FormulaModel(table_, this);
  list_ = new QTreeView(this);
  list_->setModel(model_);
  list_->setAccessibleName(Translated(text::kFormulas));
  list_->header()->setAccessibleName(Translated(text::kFormulas));
  list_->setRootIsDecorated(false);
  list_->setAllColumnsShowFocus(true);
  list_->setUniformRowHeights(true);
  list_->setAlternatingRowColors(true);
  list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  list_->setContextMenuPolicy(Qt::ActionsContextMenu);
  list_->header()->setStretchLastSection(false);
  list_->header()->setSectionResizeMode(FormulaModel::kText, QHeaderView::Stretch);
  list_->header()->resizeSection(FormulaModel::kName, 150);
  list_->header()->resizeSection(FormulaModel::kValue, 110);
  list_->header()->resizeSection(FormulaModel::kUses, 60);
  connect(list_, &QTreeView::doubleClicked, this, [this] { modify_->trigger(); });
  connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { TakeSelection(); });
}

void FormulasDialog::BuildActions() {
  AddAction(text::kNewEntry, "new", {Qt::Key_Insert, QKeySequence::New}, &CDlgFormules::OnXciAdd);
  modify_ =
      AddAction(text::kModifyEntry, "replace", {Qt::Key_Return, Qt::Key_Enter, Qt::Key_F2}, &CDlgFormules::OnXciModify);
  remove_ = AddAction(text::kRemoveRow, "delete", {QKeySequence::Delete}, &CDlgFormules::OnXciDelete);
  copy_ = new QAction(ThemedIcon(QStringLiteral("copy")), Translated(text::kCopyEntries), this);
  copy_->setShortcut(QKeySequence::Copy);
  connect(copy_, &QAction::triggered, this, [this] { table_.CopyToClipboard(); });
  list_->addAction(copy_);
  AddAction(text::kPasteEntries, "paste", {QKeySequence::Paste}, &CDlgFormules::PasteFromClipboard);
  for (QAction* action : list_->actions()) action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
}

QAction* FormulasDialog::AddAction(int textId, const char* icon, const QList<QKeySequence>& keys,
                                   bool (CDlgFormules::*run)()) {
  auto* action = new QAction(ThemedIcon(QLatin1String(icon)), Translated(textId), this);
  action->setShortcuts(keys);
  connect(action, &QAction::triggered, this, [this, run] { Run(run); });
  list_->addAction(action);
  return action;
}

void FormulasDialog::AddButtons(QBoxLayout& row) {
  auto* column = new QVBoxLayout();
  for (QAction* action : list_->actions()) column->addWidget(ButtonFor(*action, this));
  column->addStretch(1);
  row.addLayout(column);
}

void FormulasDialog::Run(bool (CDlgFormules::*operation)()) {
  TakeSelection();
  if ((table_.*operation)()) model_->Reload();
  ShowSelection();
}

void FormulasDialog::TakeSelection() {
  std::vector<std::size_t> rows;
  for (const QModelIndex& index : list_->selectionModel()->selectedRows())
    rows.push_back(static_cast<std::size_t>(index.row()));
  table_.Select(std::move(rows));
  UpdateButtons();
}

void FormulasDialog::ShowSelection() {
  QItemSelection selection;
  const std::vector<std::size_t> rows = table_.Selection();
  for (const std::size_t row : rows) {
    const QModelIndex index = model_->index(static_cast<int>(row), 0);
    selection.select(index, index);
  }
  QItemSelectionModel* selected = list_->selectionModel();
  if (!rows.empty())
    selected->setCurrentIndex(model_->index(static_cast<int>(rows.back()), 0), QItemSelectionModel::NoUpdate);
  selected->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  UpdateButtons();
}

void FormulasDialog::UpdateButtons() {
  const CDlgFormules::Buttons buttons = table_.UpdateButtons();
  modify_->setEnabled(buttons.modify);
  remove_->setEnabled(buttons.remove);
  copy_->setEnabled(buttons.copy);
}

void FormulasDialog::accept() {
  if (AcceptFormulas(frame_, table_)) QDialog::accept();
}

// A formula may use all others.
bool FormulasDialog::EditFormule(CDlgNewFormule& formula) {
  ExpressionSources sources = SourcesOf(frame_);
  sources.formulas = table_.Rows();
  std::erase_if(sources.formulas, [&](const Formula& other) { return other.name == formula.FormerName(); });
  return FormulaDialog(formula, sources, this).exec() == QDialog::Accepted;
}

bool FormulasDialog::AskUpdateUses(const std::wstring& from, const std::wstring& to, std::size_t uses) {
  return AskToUpdateUses(from, to, uses, this);
}

void FormulasDialog::ShowMessage(int textId) { QMessageBox::warning(this, windowTitle(), Translated(textId)); }

bool EditFormulas(RVEditControlWnd& frame, QWidget* parent, const std::wstring& shown) {
  return FormulasDialog(frame, shown, parent).exec() == QDialog::Accepted;
}

}  // namespace xrpt
