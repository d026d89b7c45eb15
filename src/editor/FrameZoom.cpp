// The zoom of the page shown: its steps, its ends, and the entries of the zoom box.
#include <algorithm>
#include <cmath>

#include "editor/RVEditControlWnd.h"

namespace xrpt {
namespace {

constexpr double kZoomStep = 0.5;

}  // namespace

double NextZoomIn(double zoom) {
  if (zoom >= 0.0) return zoom + kZoomStep;
  const double next = (std::floor(-zoom / kZoomStep) + 1.0) * kZoomStep;
  return std::max(next, RVEditControlWnd::kSmallestZoom) <= RVEditControlWnd::kLargestZoom
             ? std::max(next, RVEditControlWnd::kSmallestZoom)
             : -zoom;
}

double NextZoomOut(double zoom) {
  if (zoom >= 0.0) return zoom - kZoomStep;
  const double next = std::min((std::ceil(-zoom / kZoomStep) - 1.0) * kZoomStep, RVEditControlWnd::kLargestZoom);
  return next >= RVEditControlWnd::kSmallestZoom ? next : -zoom;
}

bool RVEditControlWnd::ZoomIn() { return SetZoom(NextZoomIn(CurrentPage().Zoom())); }

bool RVEditControlWnd::ZoomOut() { return SetZoom(NextZoomOut(CurrentPage().Zoom())); }

bool RVEditControlWnd::SetZoom(double zoom) {
  if (!(zoom >= kSmallestZoom && zoom <= kLargestZoom)) return false;
  if (!CurrentPage().SetZoom(zoom)) return false;
  port_.StateChanged();
  return true;
}

bool RVEditControlWnd::FitPage() { return Fit(Viewport::kFitPageMode); }

bool RVEditControlWnd::FitWidth() { return Fit(Viewport::kFitWidthMode); }

bool RVEditControlWnd::Fit(int mode) {
  const bool changed = CurrentPage().SetMode(mode);
  CurrentPage().InitializeScrollBars(false);
  CurrentPage().RedrawBackground();
  port_.StateChanged();
  return changed;
}

bool RVEditControlWnd::ZoomToSelection() {
  constexpr double kRoomAround = 0.85;  // of the window, for the selection
  RVEditTemplateWnd& page = CurrentPage();
  const Rect client = PagePort(current_).ClientRect();
  const Rect area = page.SelectedArea();
  if (area.Width() <= 0 || area.Height() <= 0) return false;
  const double grows = kRoomAround * std::min(static_cast<double>(client.Width()) / area.Width(),
                                              static_cast<double>(client.Height()) / area.Height());
  page.SetZoom(std::clamp(std::abs(page.Zoom()) * grows, kSmallestZoom, kLargestZoom));
  const Rect now = page.SelectedArea();
  page.ScrollTo(page.HorizontalScroll().position + (now.left + now.right - client.Width()) / 2,
                page.VerticalScroll().position + (now.top + now.bottom - client.Height()) / 2);
  port_.StateChanged();
  return true;
}

int RVEditControlWnd::ZoomEntry() const {
  const double zoom = CurrentPage().Zoom();
  if (zoom < 0.0) return CurrentPage().Fit() == ZoomFit::Width ? kFitWidthEntry : kFitPageEntry;
  return roundi(2.0 * zoom + 1.0);
}

bool RVEditControlWnd::SetZoomEntry(int entry) {
  if (entry == kFitPageEntry) return FitPage();
  if (entry == kFitWidthEntry) return FitWidth();
  return SetZoom((entry - 1) * kZoomStep);
}

}  // namespace xrpt
