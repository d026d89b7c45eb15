// Icons and cursors. Icons are drawn in one colour, which is replaced by the palette's whenever they are painted, so
// that they follow light and dark, enabled and disabled, at any scale.
#pragma once

#include <QCursor>
#include <QIcon>
#include <QString>

#include "platform/Window.h"

namespace xrpt {

// An empty icon for a name nobody drew.
QIcon ThemedIcon(const QString& name);
bool HasIcon(const QString& name);
QIcon ApplicationIcon();
QCursor ToolkitCursor(Cursor cursor);

}  // namespace xrpt
