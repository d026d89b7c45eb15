// The menu of the page: the catalogue's commands that make sense for what was clicked.
#pragma once

#include <QPoint>

class QWidget;

namespace xrpt {

class Actions;
class RVEditControlWnd;

// The chosen command has run when it returns. False when none was chosen.
bool RunPageMenu(const RVEditControlWnd& frame, QPoint at, const Actions& actions, QWidget* parent);

}  // namespace xrpt
