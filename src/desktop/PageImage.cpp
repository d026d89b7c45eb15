#include "desktop/PageImage.h"

#include <QPainter>
#include <cstring>

#include "canvas/RVEditTemplateWnd.h"
#include "host/qt/QtGraphics.h"

namespace xrpt {

const QImage& PageImage::Paint(RVEditTemplateWnd& window, QSize size, double scale) {
  if (IsStale(window, size, scale)) PaintPage(window, size, scale);
  PaintOverlay(window, scale);
  return shown_;
}

bool PageImage::IsStale(const RVEditTemplateWnd& window, QSize size, double scale) const {
  return window_ != &window || page_.size() != size * scale || page_.devicePixelRatio() != scale ||
         window.NeedsRedraw();
}

void PageImage::PaintPage(RVEditTemplateWnd& window, QSize size, double scale) {
  if (page_.size() != size * scale) page_ = QImage(size * scale, QImage::Format_RGB32);
  page_.setDevicePixelRatio(scale);
  QPainter painter(&page_);
  QtGraphics graphics(painter, pictures_);
  window.PaintPage(graphics);
  window_ = &window;
  ++paintings_;
}

void PageImage::PaintOverlay(RVEditTemplateWnd& window, double scale) {
  if (shown_.size() != page_.size()) shown_ = QImage(page_.size(), page_.format());
  shown_.setDevicePixelRatio(scale);
  if (shown_.isNull()) return;
  std::memcpy(shown_.bits(), page_.constBits(), static_cast<std::size_t>(page_.sizeInBytes()));
  PixelBuffer buffer;
  buffer.bits = reinterpret_cast<std::uint32_t*>(shown_.bits());
  buffer.width = shown_.width();
  buffer.height = shown_.height();
  buffer.stride = shown_.bytesPerLine() / 4;
  buffer.scale = scale;
  window.PaintOverlay(buffer);
}

}  // namespace xrpt
