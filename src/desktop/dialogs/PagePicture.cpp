#include "desktop/dialogs/PagePicture.h"

#include <QPainter>

#include "canvas/RenderPage.h"
#include "host/qt/QtGraphics.h"

namespace xrpt {

QImage PictureOf(const RVReportPage& page, const QSize& room) {
  const double width = page.properties.width;
  const double height = page.properties.height;
  if (!(width > 0.0 && height > 0.0)) return {};
  const double pixelsPerMm = std::min(room.width() / width, room.height() / height);
  const QSize size = QSize(roundi(width * pixelsPerMm), roundi(height * pixelsPerMm)).expandedTo({1, 1});
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  PictureCache pictures;
  QtGraphics graphics(painter, pictures);
  RenderPage(graphics, page, pixelsPerMm * 25.4);
  return image;
}

}  // namespace xrpt
