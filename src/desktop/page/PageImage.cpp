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

QRect ToQt(const Rect& rect) { return QRect(rect.left, rect.top, rect.Width(), rect.Height()); }

// Edges of what is painted by itself may be blended into the pixels beside them on dense screens.
Rect WithEdges(const Rect& part) { return {part.left - 1, part.top - 1, part.right + 1, part.bottom + 1}; }

// One rectangle for each band of the view in which there is anything: the toolkit takes long to put many small ones
// together, and copies few pixels more in no time.
QRegion BandsOf(const std::vector<Rect>& places, int height) {
  constexpr int kBand = 16;
  std::vector<QRect> bands(static_cast<std::size_t>(std::max(height, 0) / kBand + 1));
  for (const Rect& place : places) {
    const int last = std::min((place.bottom - 1) / kBand, static_cast<int>(bands.size()) - 1);
    for (int band = std::max(place.top, 0) / kBand; band <= last; ++band) {
      QRect& whole = bands[static_cast<std::size_t>(band)];
      whole |= QRect(place.left, band * kBand, place.Width(), kBand);
    }
  }
  std::erase_if(bands, [](const QRect& band) { return band.isEmpty(); });
  QRegion region;
  region.setRects(bands.data(), static_cast<int>(bands.size()));
  return region;
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
  pictures_.ForgetWanted();
  QtGraphics graphics(painter, pictures_);
  PaintWindowPage(graphics, pixels, window, ClientOf(page_));
  FindMoving(window);
  window_ = &window;
  ++paintings_;
}

void PageImage::FindMoving(const RVEditTemplateWnd& window) {
  sight_ = SightOf(window, ClientOf(page_));
  moving_ = MovingParts(window, sight_);
  movingPlaces_.clear();
  for (const PagePart& part : moving_) movingPlaces_.push_back(WithEdges(part.rect));
  hasMoved_ = false;
  arrivedPlaces_.clear();
}

// A page that is about to be painted whole needs no parts.
bool PageImage::IsShownBy(const RVEditTemplateWnd& window) const {
  return window_ == &window && !window.NeedsBackground();
}

void PageImage::PaintParts(const RVEditTemplateWnd& window, std::span<const PagePart> parts) {
  PixelBuffer pixels = BufferOf(page_);
  QPainter painter(&page_);
  QtGraphics graphics(painter, pictures_);
  for (const PagePart& part : parts) PaintWindowPart(graphics, pixels, window, part);
}

QRegion PageImage::PaintMoving(RVEditTemplateWnd& window) {
  if (!IsShownBy(window)) return ToQt(ClientOf(page_));
  PaintParts(window, moving_);
  hasMoved_ = true;
  return BandsOf(movingPlaces_, ClientOf(page_).bottom);
}

QRegion PageImage::PaintArrived(RVEditTemplateWnd& window) {
  const std::vector<QRectF> places = pictures_.TakeArrived();
  if (!IsShownBy(window)) return ToQt(ClientOf(page_));
  std::vector<PagePart> parts;
  std::vector<Rect> arrived;
  for (const QRectF& place : places) {
    const QRect pixels = place.toAlignedRect();
    parts.push_back(PartAt(sight_, {pixels.left(), pixels.top(), pixels.right() + 1, pixels.bottom() + 1}));
    arrived.push_back(WithEdges(parts.back().rect));
  }
  PaintParts(window, parts);
  arrivedPlaces_.insert(arrivedPlaces_.end(), arrived.begin(), arrived.end());
  return BandsOf(arrived, ClientOf(page_).bottom);
}

void PageImage::PaintOverlay(RVEditTemplateWnd& window, double scale) {
  if (shown_.size() != page_.size()) shown_ = QImage(page_.size(), page_.format());
  shown_.setDevicePixelRatio(scale);
  if (shown_.isNull()) return;
  PixelBuffer shown = BufferOf(shown_);
  const OverlayColors colors{ColorOf(CurrentTheme().guide), ColorOf(CurrentTheme().accent)};
  if (shownPainting_ == paintings_) overlay_.TakeParts(BufferOf(page_), window, arrivedPlaces_);
  arrivedPlaces_.clear();
  if (hasMoved_ && shownPainting_ == paintings_) {
    overlay_.PaintMoved(shown, BufferOf(page_), paintings_, window, ClientOf(shown_), colors, movingPlaces_);
  } else {
    overlay_.Paint(shown, BufferOf(page_), paintings_, window, ClientOf(shown_), colors);
  }
  shownPainting_ = paintings_;
  hasMoved_ = false;
}

}  // namespace xrpt
