// How much of the page the window shows and how large: the screen's resolution, the zoom and the scroll positions.
// Looking at a page is no change of it, so none of this is in a report or its history.
#pragma once

#include "canvas/Placement.h"
#include "platform/Window.h"

namespace xrpt {

// A zoom that follows the window fits the whole page, or its width.
enum class ZoomFit { None, Page, Width };

class Viewport {
 public:
  static constexpr int kFitPageMode = 0;
  static constexpr int kFitWidthMode = 101;

  void SetDpi(int dpiX, int dpiY) { scale_ = {dpiX / 25.4, dpiY / 25.4}; }
  const PixelsPerMm& Scale() const { return scale_; }

  // As stored: negative follows the window.
  double Zoom() const { return zoom_; }
  ZoomFit Fit() const { return zoom_ < 0.0 ? fit_ : ZoomFit::None; }
  // See ZoomOfMode. True when the stored zoom changed.
  bool SetMode(int mode, const RVGlobalProperties& page, const Rect& client);
  // A scale of one's own, finite and not 0. True when it changed.
  bool SetZoom(double zoom);

  PagePlacement Place(const RVGlobalProperties& page, const Rect& client) const;

  const ScrollInfo& Horizontal() const { return scrollX_; }
  const ScrollInfo& Vertical() const { return scrollY_; }
  // Sets the bars up for a page of that placement; an axis on which it fits has none.
  void FitBars(const PagePlacement& place, const Rect& client, bool hide);
  // False on an axis on which the page fits: there is nothing to scroll.
  bool Scroll(ScrollAxis axis, ScrollCommand command, int thumb);

 private:
  PixelsPerMm scale_;
  mutable double zoom_ = 1.0;  // an undetermined one is settled when the page is first placed
  ZoomFit fit_ = ZoomFit::None;
  ScrollInfo scrollX_;
  ScrollInfo scrollY_;
};

}  // namespace xrpt
