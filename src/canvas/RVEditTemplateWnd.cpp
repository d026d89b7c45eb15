// The page window's set-up: zoom, scrolling, placement, timers, and what painting asks for. Gestures, commands and
// clipboard have sources of their own.
#include "canvas/RVEditTemplateWnd.h"

#include <cmath>

#include "canvas/UndoTexts.h"
#include "model/DateFormat.h"
#include "model/NumberFormat.h"
#include "model/RVCardImage.h"

namespace xrpt {

RVEditTemplateWnd::RVEditTemplateWnd(RVReportPage& page, WindowPort& port, MessageQueue& queue, MessageTarget& parent)
    : editedPage_(page),
      page_(page),
      port_(port),
      queue_(queue),
      parent_(parent),
      madeWithBackcolor_(page.properties.backcolor) {
  AddUndoInfo(true);
  AnnounceAnimations();
}

RVEditTemplateWnd::~RVEditTemplateWnd() { PauseTimer(); }

bool RVEditTemplateWnd::SetTemplate(const XmlNode& page) {
  DropGesture();
  if (!editedPage_.SetTemplate(page)) return false;
  ClearSelection();
  picked_ = 0;
  DeleteUndoList();
  AddUndoInfo(true);
  AnnounceAnimations();
  RedrawBackground();
  return true;
}

void RVEditTemplateWnd::SetSurround(Color color) {
  if (surround_ == color) return;
  surround_ = color;
  RedrawBackground();
}

Color RVEditTemplateWnd::Surround() const {
  const Color own = page_.properties.backcolor;
  return own == madeWithBackcolor_ ? surround_.value_or(own) : own;
}

void RVEditTemplateWnd::SetDpi(int dpiX, int dpiY) {
  viewport_.SetDpi(dpiX, dpiY);
  RedrawBackground();
}

// How large the report's fonts are on this screen: of the page on the screen, not of the report.
void RVEditTemplateWnd::SetFontFactor(double factor) {
  editedPage_.fontFactor = factor;
  RedrawBackground();
}

void RVEditTemplateWnd::SetSupport(int kind, bool on) {
  const unsigned bit = FindInsertKind(kind)->support;
  support_ = on ? support_ | bit : support_ & ~bit;
}

// --- Zoom and orientation ---

bool RVEditTemplateWnd::SetMode(int mode) { return viewport_.SetMode(mode, page_.properties, port_.ClientRect()); }

bool RVEditTemplateWnd::SetZoom(double zoom) {
  if (!viewport_.SetZoom(zoom)) return false;
  InitializeScrollBars(false);
  RedrawBackground();
  return true;
}

bool RVEditTemplateWnd::SetOrientation(int orientation) {
  const RVGlobalProperties& now = page_.properties;
  const bool swap = orientation == 0 ? now.width < now.height : now.height < now.width;
  PageEdit edit = Edit({text::kTurnPage, 0});
  RVGlobalProperties& page = edit.Properties();
  if (swap) std::swap(page.width, page.height);
  page.Background().width = page.width;
  page.Background().height = page.height;
  return edit.EndQuietly() && swap;
}

// A page of another size is fitted anew.
void RVEditTemplateWnd::RefitAfterPageChange() {
  if (Zoom() < 0.0)
    SetMode(options_.keepsFit && Fit() == ZoomFit::Width ? Viewport::kFitWidthMode : Viewport::kFitPageMode);
  InitializeScrollBars(false);
}

// --- Scrolling ---

void RVEditTemplateWnd::InitializeScrollBars(bool hide) {
  viewport_.FitBars(Placement(), port_.ClientRect(), hide);
  port_.SetScrollInfo(ScrollAxis::Horizontal, viewport_.Horizontal());
  port_.SetScrollInfo(ScrollAxis::Vertical, viewport_.Vertical());
}

void RVEditTemplateWnd::Scroll(ScrollAxis axis, ScrollCommand command, int thumb) {
  if (!viewport_.Scroll(axis, command, thumb)) return;
  port_.SetScrollInfo(axis, axis == ScrollAxis::Horizontal ? viewport_.Horizontal() : viewport_.Vertical());
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
  const CardRect rect = InitialCardRect(place, GridOf(page_.properties), viewport_.Scale(), Zoom(), gesture_.lastPoint);
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
    marching_ = {};
  } else {
    marching_.phase = (marching_.phase + 1) % 6;
  }
  port_.Invalidate();
}

void RVEditTemplateWnd::StartTimer() {
  port_.SetTimer(kSelectionTimer, kTimerPeriod);
  marching_.timerId = kSelectionTimer;
}

void RVEditTemplateWnd::PlayTimer() {
  if (marching_.timerId == 0 && !selection_.IsEmpty()) StartTimer();
}

void RVEditTemplateWnd::PauseTimer() {
  if (marching_.timerId != 0) port_.KillTimer(marching_.timerId);
  marching_.timerId = 0;
}

// A card says when it begins to move and when it stops; what moves is counted when a step was made, not while it moves.
void RVEditTemplateWnd::AnnounceAnimations() {
  int moving = 0;
  for (std::size_t i = 0; i < page_.cards.Size(); ++i) moving += page_.cards[i].IsAnimated() ? 1 : 0;
  for (; animation_.cards < moving; OnControlAnimationStart())
    queue_.Post(&parent_, {Message::CardAnimationStarted, {}, 0});
  for (; animation_.cards > moving; OnControlAnimationStop())
    queue_.Post(&parent_, {Message::CardAnimationStopped, {}, 0});
}

void RVEditTemplateWnd::OnControlAnimationStop() {
  if (animation_.cards < 1) return;
  --animation_.cards;
  if (animation_.cards == 0 && animation_.pendingRefresh) RedrawBackground();
}

// --- What painting needs ---

tagDraw RVEditTemplateWnd::MakeDraw(const Rect& clip) const {
  tagDraw draw;
  static_cast<PagePlacement&>(draw) = Placement();
  draw.clip = clip;
  draw.zoom = Zoom();
  draw.pixelsPerMmX = viewport_.Scale().x;
  draw.pixelsPerMmY = viewport_.Scale().y;
  draw.fontFactor = page_.fontFactor;
  draw.animationTime = animation_.time;
  if (preview_) draw.flag1 = 0;
  return draw;
}

// What is selected cannot be seen in a preview, so nothing is.
void RVEditTemplateWnd::SetPreview(bool on) {
  if (on == preview_) return;
  preview_ = on;
  DropGesture();
  if (on && !selection_.IsEmpty()) {
    ClearSelection();
    AddUndoInfo(false, {text::kSelect, 0});
    PostChange(true);
  }
  RedrawBackground();
}

void RVEditTemplateWnd::ShowGrid(std::optional<bool> shown) {
  if (shown == gridShown_) return;
  gridShown_ = shown;
  RedrawBackground();
}

bool RVEditTemplateWnd::IsGridShown() const {
  const GridSteps grid = GridOf(page_.properties);
  return gridShown_.value_or(IsActive(grid.x) && IsActive(grid.y));
}

void RVEditTemplateWnd::RedrawBackground() {
  redrawBackground_ = true;
  port_.Invalidate();
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
