// A colour as a small square, for lists and menus.
#pragma once

#include <QIcon>

#include "platform/Color.h"

namespace xrpt {

QColor ToolkitColor(Color color);
QIcon Swatch(Color color);

}  // namespace xrpt
