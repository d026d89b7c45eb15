#include "desktop/EditedWindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

#include "desktop/dialogs/search/SearchDialog.h"
#include "desktop/panels/AlternativesEditor.h"
#include "desktop/panels/FieldForm.h"
#include "desktop/panels/ListButtons.h"
#include "desktop/panels/Outline.h"
#include "desktop/panels/StatusBar.h"
#include "desktop/ribbon/CornerBar.h"
#include "desktop/ribbon/FontGroup.h"
#include "editor/CommandCatalogue.h"
#include "model/CardRegistry.h"

namespace xrpt {

void EditedWindow::WriteReport() {
  RVReport report;
  report.name = kReport;
  double place = 7.3;
  const auto add = [&place](RVReportPage& page, const CardClass& kind) {
    std::unique_ptr<RVCardControl> card = kind.Create();
    card->InitializeId();
    SetRect(*card, {place, 2.0 * place, 38.5 - place / 8.0, 17.25 + place / 9.0});
    place += 9.1;
    page.cards.PushBack(std::move(card));
  };
  for (const RegistryRow& row : CardRegistry()) {
    if (row.onPage) add(*report.pages[0], row.kind());
  }
  for (RVReportPage* page : {report.pages[0].get(), &report.AddPage()}) {
    add(*page, *PageCardKind("label"));
    add(*page, *PageCardKind("label"));
  }
  report.AddPage();
  ASSERT_TRUE(report.Save());
}

// --- What can be done ---

std::vector<QWidget*> EditedWindow::UsableParts(const QWidget& within) {
  std::vector<QWidget*> parts;
  for (QWidget* part : within.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    const bool isUsable = part->focusPolicy() != Qt::NoFocus || part->focusProxy();
    if (isUsable && part->isEnabled() && part->isVisible()) parts.push_back(part);
  }
  return parts;
}

// Widgets of fields are made anew when other fields are shown, so they are looked for when it is their turn.
std::vector<Deed> EditedWindow::EditorDeeds(int turn) {
  std::vector<Deed> deeds;
  for (const FieldForm* form : PartsOf<FieldForm>(Window().Properties())) {
    for (const QWidget* body : form->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      for (const QWidget* part : UsableParts(*body)) {
        const QString name = part->objectName();
        const bool isTitle = name == QStringLiteral("sectionTitle");  // folds its section
        if (name.isEmpty() || isTitle) continue;
        deeds.push_back({"field " + name.toStdString(),
                         [this, name, turn] { UsePart(Window().Properties().findChild<QWidget*>(name), turn); }, true});
      }
    }
  }
  if (QWidget& condition = Window().Properties().Alternatives().Condition(); condition.isVisible())
    deeds.push_back({"condition", [this, &condition, turn] { UsePart(&condition, turn); }, true});
  for (QWidget* part : UsableParts(PartOf<FontGroup>(Window()))) {
    const std::string name = "ribbon's " + part->accessibleName().toStdString();
    deeds.push_back({name, [this, part, turn] { UsePart(part, turn + 3); }, true});
  }
  return deeds;
}

std::vector<Deed> EditedWindow::ListDeeds(int turn) {
  std::vector<Deed> deeds;
  for (const ListButtons* buttons : PartsOf<ListButtons>(Window().Properties())) {
    for (QWidget* part : UsableParts(*buttons)) {
      const std::string name =
          part->parentWidget()->parentWidget()->findChild<QListWidget*>()->accessibleName().toStdString();
      deeds.push_back(
          {name + ": " + part->accessibleName().toStdString(), [this, part, turn] { UsePart(part, turn); }});
    }
  }
  for (QListWidget* list : Window().Properties().findChildren<QListWidget*>()) {
    if (list->isVisible())
      deeds.push_back({"lines of " + list->accessibleName().toStdString(), [this, list] { UsePart(list, 0); }});
  }
  return deeds;
}

void EditedWindow::FillLists() {
  for (ListButtons* buttons : PartsOf<ListButtons>(Window().Properties())) {
    const int kinds = buttons->Add().menu() ? static_cast<int>(buttons->Add().menu()->actions().size()) : 2;
    for (int kind = 0; kind < kinds && buttons->isVisible(); ++kind)
      EXPECT_TRUE(DoThereAndBack({"adding to a list", [&] { UsePart(&buttons->Add(), kind); }}));
  }
}

void EditedWindow::ChooseLines(bool last) {
  for (QListWidget* list : Window().Properties().findChildren<QListWidget*>()) {
    if (!list->isVisible() || list->count() == 0) continue;
    Do({"choosing a line",
        [&] { list->setCurrentRow(last ? list->count() - 1 : 0, QItemSelectionModel::ClearAndSelect); }});
  }
}

std::vector<Deed> EditedWindow::CommandDeeds(bool byKeys) {
  std::vector<Deed> deeds;
  for (QAction* action : Window().AllActions().All()) {
    const std::string name = action->objectName().toStdString();
    if (name == "Undo" || name == "Redo" || !action->isEnabled()) continue;
    if (!byKeys) {
      deeds.push_back({name, [action] { action->trigger(); }});
      continue;
    }
    for (const QKeySequence& key : action->shortcuts())
      deeds.push_back({name + " by key", [this, key] { PressKey(key); }});
  }
  return deeds;
}

std::vector<Deed> EditedWindow::KeyDeeds() {
  std::vector<Deed> deeds;
  for (const int key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Delete, Qt::Key_Backspace,
                        Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Space, Qt::Key_Return}) {
    for (const Qt::KeyboardModifiers held : kHeld)
      deeds.push_back({"key " + std::to_string(key) + " with " + std::to_string(held.toInt()), [this, key, held] {
                         View().setFocus();
                         Key(key, held);
                       }});
  }
  return deeds;
}

std::vector<Deed> EditedWindow::GestureDeeds() {
  std::vector<Deed> deeds;
  for (const Qt::KeyboardModifiers held : kHeld) {
    const std::string with = " with " + std::to_string(held.toInt());
    for (const QAction* tool : Tools())
      deeds.push_back({tool->objectName().toStdString() + " drawn" + with, [this, tool, held] {
                         Run(tool->objectName().toLatin1());
                         DragHeld({300, 60}, {90, 50}, held);
                       }});
    for (int across = -1; across <= 1; ++across) {
      for (int down = -1; down <= 1; ++down)
        deeds.push_back(
            {"drag at " + std::to_string(across) + "," + std::to_string(down) + with, [this, across, down, held] {
               DragHeld(PointOfSelected(across, down), {23, 31}, held);
             }});
    }
    deeds.push_back({"click" + with, [this, held] { Click(PointOfSelected(0, 0), held); }});
    deeds.push_back({"click beside" + with, [this, held] { Click({3, 3}, held); }});
    deeds.push_back({"band" + with, [this, held] { DragHeld({3, 3}, {400, 300}, held); }});
    deeds.push_back({"drag let go of" + with, [this, held] {
                       Press(PointOfSelected(0, 0), held);
                       Move(PointOfSelected(0, 0) + QPoint(40, 40));
                       Key(Qt::Key_Escape);
                       Release(PointOfSelected(0, 0));
                     }});
  }
  return deeds;
}

std::vector<Deed> EditedWindow::MenuDeeds() {
  const auto open = [this](int entry) {
    answers_.entry = entry;
    QTest::mouseClick(View().viewport(), Qt::RightButton, {}, PointOfSelected(0, 0));
    Rest();
  };
  open(Answers::kNone);
  std::vector<Deed> deeds;
  for (int entry = 0; entry < answers_.entriesSeen; ++entry)
    deeds.push_back({"menu " + std::to_string(entry), [open, entry] { open(entry); }});
  return deeds;
}

std::vector<Deed> EditedWindow::SearchDeeds(int turn) {
  std::vector<Deed> deeds;
  for (const SearchDialog* dialog : PartsOf<SearchDialog>(Window())) {
    for (QWidget* part : dialog->findChildren<QWidget*>()) {
      const bool isMeant = qobject_cast<QLineEdit*>(part) || qobject_cast<QPushButton*>(part) ||
                           qobject_cast<QComboBox*>(part) || qobject_cast<QCheckBox*>(part);
      if (isMeant && part->isVisible() && part->isEnabled())
        deeds.push_back(
            {"search's " + part->accessibleName().toStdString(), [this, part, turn] { UsePart(part, turn); }});
    }
  }
  return deeds;
}

std::vector<Deed> EditedWindow::LookDeeds(int turn) {
  std::vector<Deed> deeds;
  for (QWidget* bar :
       {static_cast<QWidget*>(&PartOf<CornerBar>(Window())), static_cast<QWidget*>(&PartOf<StatusBar>(Window()))}) {
    for (QWidget* part : bar->findChildren<QWidget*>()) {
      if (part->focusPolicy() == Qt::NoFocus || !part->isVisible() || qobject_cast<QAbstractButton*>(part)) continue;
      deeds.push_back({"bar's " + part->accessibleName().toStdString(), [this, part, turn] { UsePart(part, turn); }});
    }
  }
  for (QListView* list : PartsOf<QListView>(PartOf<Outline>(Window()))) {
    for (const Qt::KeyboardModifiers held : kHeld)
      deeds.push_back({"list " + list->accessibleName().toStdString(), [list, turn, held] {
                         const QModelIndex line =
                             list->model()->index((turn + 1) % std::max(1, list->model()->rowCount()), 0);
                         QTest::mouseClick(list->viewport(), Qt::LeftButton, held, list->visualRect(line).center());
                       }});
  }
  return deeds;
}

// --- What hands need to know ---

std::vector<QAction*> EditedWindow::Tools() {
  std::vector<QAction*> tools;
  for (QAction* action : Window().AllActions().All()) {
    if (Actions::CommandOf(*action).tab == RibbonTab::Insert && Actions::CommandOf(*action).isChecked)
      tools.push_back(action);
  }
  return tools;
}

void EditedWindow::UsePart(QWidget* part, int turn) {
  if (part) Use(*part, turn, answers_);
}

QPoint EditedWindow::PointOfSelected(int across, int down) {
  const std::vector<std::size_t> selected = Page().SelectedIndexes();
  if (selected.empty() || selected.back() >= CardCount()) return {200, 200};
  const Rect rect = ToPixels(Page().Placement(), RectOf(Page().Page().cards[selected.back()]));
  return {(rect.left + rect.right) / 2 + across * (rect.Width() / 2 - 1),
          (rect.top + rect.bottom) / 2 + down * (rect.Height() / 2 - 1)};
}

void EditedWindow::DragHeld(QPoint from, QPoint by, Qt::KeyboardModifiers held) {
  Press(from, held);
  for (int part = 1; part <= 3; ++part) {
    QMouseEvent move(QEvent::MouseMove, QPointF(from + by * part / 3),
                     View().viewport()->mapToGlobal(QPointF(from + by * part / 3)), Qt::NoButton, Qt::LeftButton, held);
    QApplication::sendEvent(View().viewport(), &move);
  }
  QTest::mouseRelease(View().viewport(), Qt::LeftButton, held, from + by);
}

void EditedWindow::PressKey(const QKeySequence& keys) {
  Window().activateWindow();  // the search window may have the keyboard
  Settle();
  View().setFocus();
  QTest::keyClick(&View(), keys[0].key(), keys[0].keyboardModifiers());
}

}  // namespace xrpt
