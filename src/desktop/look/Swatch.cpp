#include "desktop/look/Swatch.h"

#include <QPainter>

namespace xrpt {

namespace {
constexpr int kSide = 16;
}

QColor ToolkitColor(Color color) { return {RedOf(color), GreenOf(color), BlueOf(color)}; }

QIcon Swatch(Color color) {
  QPixmap picture(kSide, kSide);
  picture.fill(ToolkitColor(color));
  QPainter painter(&picture);
  painter.setPen(QColor(128, 128, 128));
  painter.drawRect(0, 0, kSide - 1, kSide - 1);
  return {picture};
}

}  // namespace xrpt
