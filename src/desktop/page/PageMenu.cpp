#include "desktop/page/PageMenu.h"

#include <QMenu>

#include "desktop/look/Texts.h"
#include "desktop/ribbon/Actions.h"

namespace xrpt {

namespace {

// The numbers by which pages know the commands of the catalogue.
constexpr std::pair<int, const char*> kCommands[] = {{57635, "Cut"},    {57634, "Copy"},   {57637, "Paste"},
                                                     {57643, "Undo"},   {415, "Delete"},   {57642, "SelectAll"},
                                                     {57636, "Search"}, {57641, "Replace"}};

// From here on the entries are the window's own parts, shown or hidden.
bool IsToolbar(int command) { return command >= 800 && command <= 850; }

void AddItem(QMenu& menu, const MenuItem& item, const Actions& actions) {
  QAction* entry = menu.addAction(Translated(item.textId));
  entry->setData(item.command);
  entry->setCheckable(item.checked);
  entry->setChecked(item.checked);
  const QAction* command = ActionOfCommand(item.command, actions);
  // A command the catalogue does not have is one nobody can carry out yet.
  entry->setEnabled(command ? command->isEnabled() : item.enabled && IsToolbar(item.command));
  if (!command) return;
  entry->setIcon(command->icon());
  entry->setShortcut(command->shortcut());
  entry->setShortcutContext(Qt::WidgetShortcut);
}

void AddItems(QMenu& menu, const std::vector<MenuItem>& items, const Actions& actions) {
  for (const MenuItem& item : items) {
    if (!item.submenu.empty()) {
      AddItems(*menu.addMenu(Translated(item.textId)), item.submenu, actions);
    } else if (item.command == 0) {
      menu.addSeparator();
    } else {
      AddItem(menu, item, actions);
    }
  }
}

}  // namespace

QAction* ActionOfCommand(int command, const Actions& actions) {
  for (const auto& [number, name] : kCommands) {
    if (number == command) return actions.Find(name);
  }
  return nullptr;
}

int RunPageMenu(const std::vector<MenuItem>& items, QPoint at, const Actions& actions, QWidget* parent) {
  QMenu menu(parent);
  AddItems(menu, items, actions);
  const QAction* chosen = menu.exec(at);
  return chosen ? chosen->data().toInt() : 0;
}

}  // namespace xrpt
