#include "desktop/page/PageImage.h"

#include <QPainter>

#include "canvas/RVEditTemplateWnd.h"
#include "desktop/look/Theme.h"
#include "host/qt/QtGraphics.h"

namespace xrpt {

namespace {

PixelBuffer BufferOf(QImage& image) {
  PixelBuffer buffer;
  buffer.bits = reinterpret_cast<std::uint32_t*>(image.bits());
  buffer.width = image.width();
  buffer.height = image.height();
  buffer.stride = image.bytesPerLine() / 4;
  buffer.scale = image.devicePixelRatio();
  return buffer;
}

Color ColorOf(const QColor& color) {
  return Rgb(static_cast<unsigned>(color.red()), static_cast<unsigned>(color.green()),
             static_cast<unsigned>(color.blue()));
}

// In canvas pixels.
Rect ClientOf(const QImage& image) {
  const QSizeF size = image.deviceIndependentSize();
  return {0, 0, roundi(size.width()), roundi(size.height())};
}

}  // namespace

const QImage& PageImage::Paint(RVEditTemplateWnd& window, QSize size, double scale) {
  if (IsStale(window, size, scale)) PaintPage(window, size, scale);
  PaintOverlay(window, scale);
  return shown_;
}

bool PageImage::IsStale(const RVEditTemplateWnd& window, QSize size, double scale) const {
  return window_ != &window || page_.size() != size * scale || page_.devicePixelRatio() != scale ||
         window.NeedsBackground();
}

void PageImage::PaintPage(RVEditTemplateWnd& window, QSize size, double scale) {
  if (page_.size() != size * scale) page_ = QImage(size * scale, QImage::Format_RGB32);
  page_.setDevicePixelRatio(scale);
  PixelBuffer pixels = BufferOf(page_);
  QPainter painter(&page_);
  QtGraphics graphics(painter, pictures_);
  PaintWindowPage(graphics, pixels, window, ClientOf(page_));
  moving_ = MovingCards(window, ClientOf(page_));
  window_ = &window;
  ++paintings_;
}

// A page that is about to be painted whole needs no parts.
void PageImage::PaintMoving(RVEditTemplateWnd& window) {
  if (window_ != &window || window.NeedsBackground()) return;
  PixelBuffer pixels = BufferOf(page_);
  QPainter painter(&page_);
  QtGraphics graphics(painter, pictures_);
  for (const Rect& part : moving_) PaintWindowPart(graphics, pixels, window, part);
  ++paintings_;
}

void PageImage::PaintOverlay(RVEditTemplateWnd& window, double scale) {
  if (shown_.size() != page_.size()) shown_ = QImage(page_.size(), page_.format());
  shown_.setDevicePixelRatio(scale);
  if (shown_.isNull()) return;
  PixelBuffer shown = BufferOf(shown_);
  overlay_.Paint(shown, BufferOf(page_), paintings_, window, ClientOf(shown_),
                 {ColorOf(CurrentTheme().guide), ColorOf(CurrentTheme().accent)});
}

}  // namespace xrpt
