// The menu that a page's window opens under the pointer, with the icons and keys of the catalogue's commands.
#pragma once

#include <QPoint>
#include <vector>

#include "platform/Window.h"

class QAction;
class QWidget;

namespace xrpt {

class Actions;

// The catalogue's action for a command of the menu; null for one the page carries out itself.
QAction* ActionOfCommand(int command, const Actions& actions);

// The chosen command's number, 0 for none.
int RunPageMenu(const std::vector<MenuItem>& items, QPoint at, const Actions& actions, QWidget* parent);

}  // namespace xrpt
