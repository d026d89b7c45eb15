#include "desktop/page/PageView.h"

#include <QPaintEvent>
#include <QScrollBar>
#include <QSignalBlocker>

#include "canvas/RVEditTemplateWnd.h"
#include "desktop/TextIds.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"
#include "desktop/look/Theme.h"
#include "desktop/page/DragNote.h"
#include "desktop/page/InPlaceEditor.h"
#include "desktop/page/PageAccess.h"
#include "desktop/page/PageMenu.h"
#include "desktop/page/PagePort.h"
#include "desktop/ribbon/Actions.h"
#include "editor/RVEditControlWnd.h"

namespace xrpt {

namespace {

constexpr int kAnimationStep = 40;  // milliseconds
constexpr int kRest = 250;          // milliseconds without a painting after which the rest of the page is laid out
constexpr int kArrivalPause = 30;   // milliseconds in which pictures gather that are shown together
constexpr int kScrollStep = 30;     // milliseconds

// The keyboard is on the page.
void PaintFocus(QPainter& painter, const QRect& area) {
  painter.setPen(QPen(CurrentTheme().accent, 2));
  painter.drawRect(area.adjusted(1, 1, -1, -1));
}

}  // namespace

PageView::PageView(QWidget* parent) : QAbstractScrollArea(parent) {
  InstallPageAccess();
  setAccessibleName(Translated(text::kPageView));
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  // Always there, so that a page that begins to need them does not change the room it has.
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  horizontalScrollBar()->setAccessibleName(Translated(text::kScrollAcross));
  verticalScrollBar()->setAccessibleName(Translated(text::kScrollDown));
  animation_.setInterval(kAnimationStep);
  connect(&animation_, &QTimer::timeout, this, [this] { ShowMoment(); });
  scrolling_.setInterval(kScrollStep);
  connect(&scrolling_, &QTimer::timeout, this, [this] { ScrollAlong(); });
  clock_.start();
  arrivals_.setSingleShot(true);
  arrivals_.setInterval(kArrivalPause);
  connect(&arrivals_, &QTimer::timeout, this, [this] { ShowArrived(); });
  rest_.setSingleShot(true);
  rest_.setInterval(kRest);
  connect(&rest_, &QTimer::timeout, this, [this] { Prepare(); });
  image_.LoadPicturesApart([this] { QMetaObject::invokeMethod(&arrivals_, qOverload<>(&QTimer::start)); });
  viewport()->setMouseTracking(true);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  setAcceptDrops(true);
  setMinimumSize(60, 60);
}

void PageView::Connect(RVEditControlWnd& frame, Actions& actions) {
  frame_ = &frame;
  actions_ = &actions;
}

RVEditTemplateWnd* PageView::Window() const { return port_ ? port_->Window() : nullptr; }

void PageView::ShowPage(PagePort& port) {
  if (port_ == &port) return;
  KeepText();
  if (port_) LoseCapture();
  port_ = &port;
  ShowScroll(ScrollAxis::Horizontal, port.Scroll(ScrollAxis::Horizontal));
  ShowScroll(ScrollAxis::Vertical, port.Scroll(ScrollAxis::Vertical));
  ShowCursor(port.LastCursor());
  if (Window()) Window()->OnSize();
  Repaint();
}

void PageView::Forget(const PagePort& port) {
  if (port_ != &port) return;
  KeepText();
  port_ = nullptr;
  captured_ = false;
  preparation_.Stop();
  image_.Forget();
}

void PageView::RepaintPage() {
  image_.Forget();
  Repaint();
}

// --- What a page's window asks ---

Rect PageView::PageArea() const { return {0, 0, viewport()->width(), viewport()->height()}; }

void PageView::Repaint() {
  viewport()->update();
  if (placementChanged) placementChanged();
}

// The toolkit sends a pressed mouse's events here by itself; what counts is who hears of losing it.
void PageView::Capture(bool on) {
  captured_ = on;
  if (!on) scrolling_.stop();
}

void PageView::LoseCapture() {
  StopPanning();
  if (!captured_) return;
  captured_ = false;
  if (Window()) Window()->OnCaptureChanged();
}

void PageView::ShowCursor(Cursor cursor) {
  if (!panFrom_ && !spaceHeld_) viewport()->setCursor(ToolkitCursor(cursor));
}

// The last position a page's window allows is one page above its maximum.
void PageView::ShowScroll(ScrollAxis axis, const ScrollInfo& info) {
  QScrollBar* bar = axis == ScrollAxis::Horizontal ? horizontalScrollBar() : verticalScrollBar();
  const QSignalBlocker quiet(bar);
  const int limit = info.visible ? std::max(info.minimum, info.maximum - info.page + 1) : info.minimum;
  bar->setRange(info.minimum, limit);
  bar->setPageStep(axis == ScrollAxis::Horizontal ? viewport()->width() : viewport()->height());
  bar->setSingleStep(20);
  bar->setValue(info.position);
  bar->update();
}

// Which commands there are is the catalogue's to say.
void PageView::OpenMenu(Point at) {
  captured_ = false;
  actions_->Refresh();
  if (RunPageMenu(*frame_, viewport()->mapToGlobal(QPoint(at.x, at.y)), *actions_, this) && changed) changed();
}

// --- Painting ---

void PageView::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  if (!Window() || viewport()->size().isEmpty()) return painter.fillRect(viewport()->rect(), palette().window());
  painter.drawImage(0, 0, image_.Paint(*Window(), viewport()->size(), devicePixelRatioF()));
  if (paintOver && !Window()->IsPreview()) paintOver(painter);
  PaintDragNote(painter, *Window(), viewport()->size());
  if (hasFocus()) PaintFocus(painter, viewport()->rect());
  const bool moves = animated_ && image_.HasMoving();
  if (moves && !animation_.isActive()) animation_.start();
  if (!moves) animation_.stop();
  PrepareWhenAtRest();
}

// What the view shows came first; what scrolling will show is laid out while nobody waits.
void PageView::PrepareWhenAtRest() {
  if (prepared_ == image_.Paintings()) return;
  prepared_ = image_.Paintings();
  rest_.start();
}

void PageView::Prepare() {
  if (Window()) preparation_.Begin(Window()->Page().cards, Window()->MakeDraw({}));
}

// --- Animation ---

void PageView::SetAnimated(bool on) {
  animated_ = on;
  clock_.restart();
  if (Window()) Window()->SetAnimationTime(0);
  RepaintPage();
}

// Only what moves is painted, and not while the view is out of sight.
void PageView::ShowMoment() {
  if (!Window() || !isVisible()) return animation_.stop();
  Window()->SetAnimationTime(static_cast<int>(clock_.elapsed() & 0x7FFFFFFF));
  viewport()->update(image_.PaintMoving(*Window()));
}

void PageView::ShowArrived() {
  if (Window()) viewport()->update(image_.PaintArrived(*Window()));
}

void PageView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  KeepText();
  if (Window()) Window()->OnSize();
  if (resized) resized();
  if (placementChanged) placementChanged();
}

void PageView::scrollContentsBy(int, int) {
  if (!Window()) return;
  KeepText();
  Window()->OnHScroll(ScrollCommand::Thumb, horizontalScrollBar()->value());
  Window()->OnVScroll(ScrollCommand::Thumb, verticalScrollBar()->value());
}

}  // namespace xrpt
