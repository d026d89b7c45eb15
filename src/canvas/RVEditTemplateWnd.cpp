// The page window's set-up: zoom, scrolling, placement, timers, and what painting asks for. Gestures, commands and
// clipboard have sources of their own.
#include "canvas/RVEditTemplateWnd.h"

#include <cmath>

#include "canvas/MouseState.h"
#include "canvas/UndoTexts.h"
#include "model/DateFormat.h"
#include "model/NumberFormat.h"
#include "model/RVCardImage.h"

namespace xrpt {
namespace {

constexpr int kFitPageMode = 0;
constexpr int kScrollPage = 10;

}  // namespace

RVEditTemplateWnd::RVEditTemplateWnd(RVReportPage& page, WindowPort& port, MessageQueue& queue, MessageTarget& parent)
    : page_(page), port_(port), queue_(queue), parent_(parent) {
  AddUndoInfo(true);
}

RVEditTemplateWnd::~RVEditTemplateWnd() { PauseTimer(); }

bool RVEditTemplateWnd::SetTemplate(const XmlNode& page) {
  DropGesture();
  if (!page_.SetTemplate(page)) return false;
  ClearSelection();
  pickedId_.clear();
  history_.Clear();
  AddUndoInfo(true);
  RedrawBackground();
  return true;
}

void RVEditTemplateWnd::SetSurround(Color color) {
  page_.properties.backcolor = color;
  history_.SetSurround(color);
  RedrawBackground();
}

void RVEditTemplateWnd::SetDpi(int dpiX, int dpiY) {
  scale_ = {dpiX / 25.4, dpiY / 25.4};
  RedrawBackground();
}

void RVEditTemplateWnd::SetFontFactor(double factor) {
  page_.fontFactor = factor;
  RedrawBackground();
}

void RVEditTemplateWnd::SetSupport(unsigned bit, bool on) { support_ = on ? support_ | bit : support_ & ~bit; }

// --- Zoom and orientation ---

bool RVEditTemplateWnd::SetMode(int mode) {
  const double before = zoom_;
  const double wanted = ZoomOfMode(mode, zoom_, page_.properties, scale_, port_.ClientRect());
  zoom_ = std::isfinite(wanted) && wanted != 0.0 ? wanted : kUndeterminedZoom;
  return zoom_ != before;
}

bool RVEditTemplateWnd::SetZoom(double zoom) {
  if (zoom == zoom_ || !std::isfinite(zoom) || zoom == 0.0) return false;
  zoom_ = zoom;
  InitializeScrollBars(false);
  RedrawBackground();
  return true;
}

bool RVEditTemplateWnd::SetOrientation(int orientation) {
  orientation_ = orientation;
  RVGlobalProperties& page = page_.properties;
  const bool swap = orientation == 0 ? page.width < page.height : page.height < page.width;
  if (swap) std::swap(page.width, page.height);
  page.Background().width = page.width;
  page.Background().height = page.height;
  if (!swap) return false;
  if (zoom_ < 0.0) SetMode(kFitPageMode);
  AddUndoInfo(false, {text::kTurnPage, 0});
  RedrawBackground();
  return true;
}

// --- Scrolling ---

void RVEditTemplateWnd::InitializeScrollBars(bool hide) {
  const Rect client = port_.ClientRect();
  const PagePlacement place = Placement();
  SetScroll(scrollX_, ScrollAxis::Horizontal, client.Width(), place.pageWidthPx, hide);
  SetScroll(scrollY_, ScrollAxis::Vertical, client.Height(), place.pageHeightPx, hide);
}

void RVEditTemplateWnd::SetScroll(ScrollInfo& info, ScrollAxis axis, int client, double pagePx, bool hide) {
  const int page = roundi(pagePx);
  info.visible = !hide && client < page - 1;
  if (info.visible) {
    info.minimum = 0;
    info.maximum = page - client + kScrollPage - 1;
    info.page = kScrollPage;
    info.position = std::min(info.position, page - client);
  }
  port_.SetScrollInfo(axis, info);
}

void RVEditTemplateWnd::OnHScroll(ScrollCommand command, int thumb) {
  Scroll(scrollX_, ScrollAxis::Horizontal, command, thumb);
}

void RVEditTemplateWnd::OnVScroll(ScrollCommand command, int thumb) {
  Scroll(scrollY_, ScrollAxis::Vertical, command, thumb);
}

// An axis on which the page fits has nothing to scroll.
void RVEditTemplateWnd::Scroll(ScrollInfo& info, ScrollAxis axis, ScrollCommand command, int thumb) {
  if (!info.visible) return;
  const int first = info.minimum;
  const int last = info.maximum - info.page + 1;
  int& at = info.position;
  switch (command) {
    case ScrollCommand::LineBack:
      if (at > first) --at;
      break;
    case ScrollCommand::LineForward:
      if (at < last) ++at;
      break;
    case ScrollCommand::PageBack:
      if (at > first) at = std::max(first, at - info.page);
      break;
    case ScrollCommand::PageForward:
      if (at < last) at = std::min(last, at + info.page);
      break;
    case ScrollCommand::Thumb:
      at = std::max(first, std::min(thumb, last));
      break;
    case ScrollCommand::First:
      at = first;
      break;
    case ScrollCommand::Last:
      at = last;
      break;
  }
  port_.SetScrollInfo(axis, info);
  RedrawBackground();
}

void RVEditTemplateWnd::ScrollTo(int x, int y) {
  OnHScroll(ScrollCommand::Thumb, x);
  OnVScroll(ScrollCommand::Thumb, y);
}

void RVEditTemplateWnd::OnSize() {
  InitializeScrollBars(false);
  RedrawBackground();
}

// --- Placement ---

PagePlacement RVEditTemplateWnd::Placement() const { return Placement(port_.ClientRect()); }

PagePlacement RVEditTemplateWnd::Placement(const Rect& client) const {
  if (zoom_ == kUndeterminedZoom) zoom_ = 1.0;
  return PlacePage(page_.properties, scale_, zoom_, client, scrollX_.position, scrollY_.position);
}

bool RVEditTemplateWnd::GetTemplateDimensions(double& offsetX, double& offsetY, double& pageWidthPx,
                                              double& pageHeightPx, double& roundedPxX, double& roundedPxY) const {
  const PagePlacement place = Placement();
  offsetX = place.offsetX;
  offsetY = place.offsetY;
  pageWidthPx = place.pageWidthPx;
  pageHeightPx = place.pageHeightPx;
  roundedPxX = place.roundedPxX;
  roundedPxY = place.roundedPxY;
  return place.IsValid();
}

bool RVEditTemplateWnd::GetMinimumControlDimensions(double& pageWidthPx, double& pageHeightPx) const {
  const PagePlacement place = Placement();
  pageWidthPx = place.pageWidthPx;
  pageHeightPx = place.pageHeightPx;
  return place.IsValid();
}

bool RVEditTemplateWnd::GetInitialControlDimensions(double& x, double& y, double& width, double& height) const {
  const PagePlacement place = Placement();
  const CardRect rect = InitialCardRect(place, GridOf(page_.properties), scale_, zoom_, lastPoint_);
  x = rect.x;
  y = rect.y;
  width = rect.width;
  height = rect.height;
  return place.IsValid();
}

bool RVEditTemplateWnd::IsVisible(const Rect& a, const Rect& b) {
  if (b.bottom < a.top || b.top > a.bottom || b.right < a.left) return false;
  return b.left <= a.right;
}

// --- Timers and animation ---

void RVEditTemplateWnd::OnTimer() {
  if (selection_.IsEmpty()) {
    port_.KillTimer(kSelectionTimer);
    timerId_ = 0;
    phase_ = 0;
  } else {
    phase_ = (phase_ + 1) % 6;
  }
  port_.Invalidate();
}

void RVEditTemplateWnd::StartTimer() {
  port_.SetTimer(kSelectionTimer, kTimerPeriod);
  timerId_ = kSelectionTimer;
}

void RVEditTemplateWnd::PlayTimer() {
  if (timerId_ == 0 && !selection_.IsEmpty()) StartTimer();
}

void RVEditTemplateWnd::PauseTimer() {
  if (timerId_ != 0) port_.KillTimer(timerId_);
  timerId_ = 0;
}

void RVEditTemplateWnd::OnControlAnimationStop() {
  if (animatingCards_ < 1) return;
  --animatingCards_;
  if (animatingCards_ == 0 && pendingRefresh_) RedrawBackground();
}

// --- What painting needs ---

tagDraw RVEditTemplateWnd::MakeDraw(const Rect& clip) const {
  const PagePlacement place = Placement();
  tagDraw draw;
  draw.clip = clip;
  draw.offsetX = place.offsetX;
  draw.offsetY = place.offsetY;
  draw.pageWidthPx = place.pageWidthPx;
  draw.pageHeightPx = place.pageHeightPx;
  draw.roundedPxX = place.roundedPxX;
  draw.roundedPxY = place.roundedPxY;
  draw.pageWidth = place.pageWidth;
  draw.pageHeight = place.pageHeight;
  draw.zoom = zoom_;
  draw.pixelsPerMmX = scale_.x;
  draw.pixelsPerMmY = scale_.y;
  draw.fontFactor = page_.fontFactor;
  draw.animationTime = animationTime_;
  return draw;
}

// Whatever made the page look different may have moved the selected cards on the screen. A gesture that runs keeps its
// own rectangles.
void RVEditTemplateWnd::RedrawBackground() {
  redrawBackground_ = true;
  if (mouseState_ == kIdle && !selection_.IsEmpty()) RefreshRects();
  port_.Invalidate();
}

std::vector<Rect> RVEditTemplateWnd::DraggingRects() const {
  if (mouseState_ == kIdle) return {};
  if (selection_.Band()) return {*selection_.Band()};
  std::vector<Rect> rects;
  for (const RVSelection::Entry& entry : selection_.Entries()) rects.push_back(entry.rect);
  return rects;
}

// --- Helpers others know by the window's name ---

void RVEditTemplateWnd::FormatDouble(std::wstring& out, double value, int integers, int decimals,
                                     bool thousandSeparator, bool leftPadding, bool rightPadding) {
  const LocaleService& locale = *CurrentHost().locale;
  out = xrpt::FormatDouble(value, {integers, decimals, thousandSeparator, leftPadding, rightPadding},
                           {locale.DecimalSeparator(), locale.ThousandsSeparator()});
}

void RVEditTemplateWnd::ParseDate(std::wstring& out, std::wstring_view pattern, const std::tm& moment) {
  out = xrpt::ParseDate(pattern, moment, *CurrentHost().locale);
}

}  // namespace xrpt
