#include "canvas/Viewport.h"

#include <algorithm>
#include <cmath>

namespace xrpt {
namespace {

constexpr int kScrollPage = 10;

void FitBar(ScrollInfo& info, int client, double pagePx, bool hide) {
  const int page = roundi(pagePx);
  info.visible = !hide && client < page - 1;
  if (!info.visible) return;
  info.minimum = 0;
  info.maximum = page - client + kScrollPage - 1;
  info.page = kScrollPage;
  info.position = std::min(info.position, page - client);
}

// Where a command leads from a position; positions run from `first` to `last`.
int ScrollTarget(ScrollCommand command, int at, int page, int first, int last, int thumb) {
  switch (command) {
    case ScrollCommand::LineBack:
      return at > first ? at - 1 : at;
    case ScrollCommand::LineForward:
      return at < last ? at + 1 : at;
    case ScrollCommand::PageBack:
      return at > first ? std::max(first, at - page) : at;
    case ScrollCommand::PageForward:
      return at < last ? std::min(last, at + page) : at;
    case ScrollCommand::Thumb:
      return std::max(first, std::min(thumb, last));
    case ScrollCommand::First:
      return first;
    case ScrollCommand::Last:
      return last;
  }
  return at;
}

}  // namespace

bool Viewport::SetMode(int mode, const RVGlobalProperties& page, const Rect& client) {
  const double before = zoom_;
  const double wanted = ZoomOfMode(mode, zoom_, page, scale_, client);
  zoom_ = std::isfinite(wanted) && wanted != 0.0 ? wanted : kUndeterminedZoom;
  if (zoom_ < 0.0 && mode == kFitPageMode) fit_ = ZoomFit::Page;
  if (zoom_ < 0.0 && mode == kFitWidthMode) fit_ = ZoomFit::Width;
  return zoom_ != before;
}

bool Viewport::SetZoom(double zoom) {
  if (zoom == zoom_ || !std::isfinite(zoom) || zoom == 0.0) return false;
  zoom_ = zoom;
  return true;
}

PagePlacement Viewport::Place(const RVGlobalProperties& page, const Rect& client) const {
  if (zoom_ == kUndeterminedZoom) zoom_ = 1.0;
  return PlacePage(page, scale_, zoom_, client, scrollX_.position, scrollY_.position);
}

void Viewport::FitBars(const PagePlacement& place, const Rect& client, bool hide) {
  FitBar(scrollX_, client.Width(), place.pageWidthPx, hide);
  FitBar(scrollY_, client.Height(), place.pageHeightPx, hide);
}

bool Viewport::Scroll(ScrollAxis axis, ScrollCommand command, int thumb) {
  ScrollInfo& info = axis == ScrollAxis::Horizontal ? scrollX_ : scrollY_;
  if (!info.visible) return false;
  info.position = ScrollTarget(command, info.position, info.page, info.minimum, info.maximum - info.page + 1, thumb);
  return true;
}

}  // namespace xrpt
