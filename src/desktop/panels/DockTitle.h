// The title of a dock: its name and a button that hides it.
#pragma once

class QDockWidget;

namespace xrpt {

void GiveTitle(QDockWidget& dock);

}  // namespace xrpt
