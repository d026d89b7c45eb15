// What the page view shows, in device pixels: the page, painted only when its window says that it changed, and a copy
// with frames, guides and the drag outline laid over it. What moves on the page is painted by itself, over what was
// there.
#pragma once

#include <QImage>
#include <QRegion>
#include <functional>
#include <span>
#include <utility>
#include <vector>

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
  // Paints what moves where it is now, and says where to show it: canvas pixels, a little more than what moves when
  // that is in many places.
  QRegion PaintMoving(RVEditTemplateWnd& window);
  // From now on the page is shown before its pictures are decoded. `arrived` is called in another thread when there are
  // some to show, once until they are painted.
  void LoadPicturesApart(std::function<void()> arrived) { pictures_.LoadApart(std::move(arrived)); }
  // Paints the pictures that have arrived, and says where to show them.
  QRegion PaintArrived(RVEditTemplateWnd& window);
  // The next painting starts afresh.
  void Forget() { window_ = nullptr; }
  // How often the page itself was painted.
  int Paintings() const { return paintings_; }

 private:
  bool IsStale(const RVEditTemplateWnd& window, QSize size, double scale) const;
  void PaintPage(RVEditTemplateWnd& window, QSize size, double scale);
  void FindMoving(const RVEditTemplateWnd& window);
  bool IsShownBy(const RVEditTemplateWnd& window) const;
  void PaintParts(const RVEditTemplateWnd& window, std::span<const PagePart> parts);
  void PaintOverlay(RVEditTemplateWnd& window, double scale);

  QImage page_;
  QImage shown_;
  PictureCache pictures_;
  WindowOverlay overlay_;
  const RVEditTemplateWnd* window_ = nullptr;  // whose page `page_` is
  CardsInSight sight_;
  std::vector<PagePart> moving_;
  std::vector<Rect> movingPlaces_;   // canvas pixels; those of `moving_` with a pixel round them
  bool hasMoved_ = false;            // there, since `shown_` was filled
  std::vector<Rect> arrivedPlaces_;  // canvas pixels; where pictures arrived since
  int paintings_ = 0;
  int shownPainting_ = -1;  // what `shown_` holds
};

}  // namespace xrpt
