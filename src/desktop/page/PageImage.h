// What the page view shows, in device pixels: the page, painted only when its window says that it changed, and a copy
// with frames, guides and the drag outline laid over it.
#pragma once

#include <QImage>

#include "canvas/WindowPainter.h"
#include "host/qt/PictureCache.h"

namespace xrpt {

class RVEditTemplateWnd;

class PageImage {
 public:
  // `size` in canvas pixels.
  const QImage& Paint(RVEditTemplateWnd& window, QSize size, double scale);
  // Whether anything on the page moves.
  bool HasMoving() const { return !moving_.empty(); }
  // Paints what moves where it is now.
  void PaintMoving(RVEditTemplateWnd& window);
  // The next painting starts afresh.
  void Forget() { window_ = nullptr; }
  // How often the page itself was painted.
  int Paintings() const { return paintings_; }

 private:
  bool IsStale(const RVEditTemplateWnd& window, QSize size, double scale) const;
  void PaintPage(RVEditTemplateWnd& window, QSize size, double scale);
  void PaintOverlay(RVEditTemplateWnd& window, double scale);

  QImage page_;
  QImage shown_;
  PictureCache pictures_;
  WindowOverlay overlay_;
  const RVEditTemplateWnd* window_ = nullptr;  // whose page `page_` is
  std::vector<Rect> moving_;                   // canvas pixels
  int paintings_ = 0;
};

}  // namespace xrpt
