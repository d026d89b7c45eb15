// How bad a problem is, told by shape as much as by colour. Lists, status bar and page show the same marks.
#pragma once

#include <QIcon>

#include "formulas/checks/CheckCode.h"

namespace xrpt {

QIcon SeverityIcon(Severity severity);
// Into a square, with a light edge that sets it off from whatever is under it.
void PaintSeverity(QPainter& painter, const QRectF& square, Severity severity);

}  // namespace xrpt
