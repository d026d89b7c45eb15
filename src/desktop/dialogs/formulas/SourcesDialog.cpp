#include "desktop/dialogs/formulas/SourcesDialog.h"

#include <QAction>
#include <QGroupBox>
#include <QHeaderView>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeWidget>

#include "desktop/TextIds.h"
#include "desktop/dialogs/CDlgIntroduceIdentification.h"
#include "desktop/dialogs/DialogParts.h"
#include "desktop/dialogs/DialogSize.h"
#include "desktop/dialogs/DialogTexts.h"
#include "desktop/dialogs/formulas/UseQuestions.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"
#include "editor/RVEditControlWnd.h"
#include "editor/ReportDialogs.h"

namespace xrpt {

using Setup = RVDlgReportVirtualDeviceSetup;

namespace {
constexpr qsizetype kMostUsers = 12;  // that a question lists
}

SourcesDialog::SourcesDialog(RVEditControlWnd& frame, QWidget* parent)
    : QDialog(parent),
      frame_(frame),
      setup_(OpenSources(frame, *this)),
      devices_{text::kVirtualDevices, setup_.devices, &Setup::OnAdd, &Setup::OnModify, &Setup::OnDelete},
      goBacks_{text::kGoBackVariables, setup_.goBacks, &Setup::OnGoBackAdd, &Setup::OnGoBackModify,
               &Setup::OnGoBackDelete} {
  setWindowTitle(Translated(text::kVirtualDevices));
  auto* column = new QVBoxLayout(this);
  auto* row = new QHBoxLayout();
  AddPart(*row, devices_);
  AddPart(*row, goBacks_);
  column->addLayout(row, 1);
  column->addWidget(AddClosingButtons(*this));
  setMinimumSize(480, 260);
  KeepSize(*this, L"sources", {640, 360});
  devices_.shown->setFocus();
}

void SourcesDialog::AddPart(QBoxLayout& row, Part& part) {
  auto* box = new QGroupBox(Translated(part.titleText), this);
  auto* column = new QVBoxLayout(box);
  part.shown = NewList(part);
  column->addWidget(part.shown, 1);
  AddActions(part);
  auto* buttons = new QHBoxLayout();
  for (QAction* action : part.shown->actions()) buttons->addWidget(ButtonFor(*action, box));
  column->addLayout(buttons);
  row.addWidget(box, 1);
  UpdateList(part, 0);
}

QTreeWidget* SourcesDialog::NewList(const Part& part) {
  auto* list = new QTreeWidget(this);
  list->setAccessibleName(Translated(part.titleText));
  list->header()->setAccessibleName(Translated(part.titleText));
  list->setHeaderLabels({Translated(text::kNameColumn), Translated(text::kIdentifier), Translated(text::kUses)});
  list->setRootIsDecorated(false);
  list->setAllColumnsShowFocus(true);
  list->setContextMenuPolicy(Qt::ActionsContextMenu);
  list->header()->setStretchLastSection(false);
  list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  list->header()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
  return list;
}

void SourcesDialog::AddActions(Part& part) {
  QTreeWidget* list = part.shown;
  const auto add = [&](int textId, const char* icon, const QList<QKeySequence>& keys, auto run) {
    auto* action = new QAction(ThemedIcon(QLatin1String(icon)), Translated(textId), list);
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, run);
    list->addAction(action);
    return action;
  };
  add(text::kNewEntry, "new", {Qt::Key_Insert, QKeySequence::New}, [this, &part] {
    if ((setup_.*part.add)()) UpdateList(part, part.list.Size() - 1);
  });
  QAction* modify = add(text::kModifyEntry, "replace", {Qt::Key_Return, Qt::Key_Enter, Qt::Key_F2}, [this, &part] {
    if ((setup_.*part.modify)(RowOf(part))) UpdateList(part, RowOf(part));
  });
  QAction* remove = add(text::kRemoveRow, "delete", {QKeySequence::Delete}, [this, &part] {
    const std::size_t row = RowOf(part);
    if ((setup_.*part.remove)(row)) UpdateList(part, row);
  });
  connect(list, &QTreeWidget::itemDoubleClicked, modify, &QAction::trigger);
  connect(list, &QTreeWidget::currentItemChanged, modify, [list, modify, remove] {
    modify->setEnabled(list->currentItem());
    remove->setEnabled(list->currentItem());
  });
  modify->setEnabled(false);
  remove->setEnabled(false);
}

// The row, or the last one when that is gone, is the current one.
void SourcesDialog::UpdateList(const Part& part, std::size_t row) {
  part.shown->clear();
  for (std::size_t i = 0; i < part.list.Size(); ++i) {
    const QString uses = QString::number(UsesOf(setup_.uses, part.list.ids[i]));
    auto* item = new QTreeWidgetItem(part.shown, {ToQString(part.list.names[i]), ToQString(part.list.ids[i]), uses});
    item->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
  }
  const int last = part.shown->topLevelItemCount() - 1;
  part.shown->setCurrentItem(last < 0 ? nullptr : part.shown->topLevelItem(std::min(static_cast<int>(row), last)));
}

std::size_t SourcesDialog::RowOf(const Part& part) {
  return static_cast<std::size_t>(part.shown->indexOfTopLevelItem(part.shown->currentItem()));
}

void SourcesDialog::accept() { AcceptSources(frame_, setup_) ? QDialog::accept() : QDialog::reject(); }

std::optional<std::wstring> SourcesDialog::AskIdentification(int promptText, int titleText,
                                                             const std::wstring& initial) {
  CDlgIntroduceIdentification prompt(this);
  prompt.Setup(Translated(promptText), Translated(titleText), ToQString(initial));
  if (prompt.exec() != QDialog::Accepted) return std::nullopt;
  return prompt.Name().toStdWString();
}

void SourcesDialog::ShowMessage(int textId) { QMessageBox::warning(this, windowTitle(), Translated(textId)); }

bool SourcesDialog::AskUpdateUses(const std::wstring& from, const std::wstring& to, std::size_t uses) {
  return AskToUpdateUses(from, to, uses, this);
}

// The first of the places that use it, as the report has them now.
QString SourcesDialog::UsersOf(const std::wstring& id) const {
  QStringList users;
  for (const TextUse& use : UsersOfSource(frame_.Report(), id)) {
    if (users.size() == kMostUsers) {
      users.append(QString(QChar(0x2026)));
      break;
    }
    users.append(TextOfPlace(use.place, use.owner));
  }
  return users.join(QLatin1Char('\n'));
}

bool SourcesDialog::AskDeleteUsed(const std::wstring& id, std::size_t uses) {
  return AskToRemoveUsed(id, uses, UsersOf(id).toStdWString(), this);
}

bool EditSources(RVEditControlWnd& frame, QWidget* parent) {
  return SourcesDialog(frame, parent).exec() == QDialog::Accepted;
}

}  // namespace xrpt
