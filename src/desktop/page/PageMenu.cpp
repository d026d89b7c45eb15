#include "desktop/page/PageMenu.h"

#include <QMenu>

#include "desktop/ribbon/Actions.h"
#include "editor/CommandHelp.h"

namespace xrpt {

bool RunPageMenu(const RVEditControlWnd& frame, QPoint at, const Actions& actions, QWidget* parent) {
  QMenu menu(parent);
  for (const Command* command : PageMenuCommands(frame)) {
    command ? menu.addAction(actions.Find(command->name)) : static_cast<void>(menu.addSeparator());
  }
  return !menu.isEmpty() && menu.exec(at) != nullptr;
}

}  // namespace xrpt
