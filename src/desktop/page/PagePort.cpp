#include "desktop/page/PagePort.h"

#include <QCursor>
#include <QGuiApplication>

#include "canvas/RVEditTemplateWnd.h"
#include "desktop/page/PageView.h"

namespace xrpt {

PagePort::PagePort(PageView& view) : view_(view) {}

PagePort::~PagePort() { view_.Forget(*this); }

bool PagePort::IsShown() const { return view_.Port() == this; }

Rect PagePort::ClientRect() const { return view_.PageArea(); }

void PagePort::Invalidate() {
  if (IsShown()) view_.Repaint();
}

void PagePort::SetCapture() {
  if (IsShown()) view_.Capture(true);
}

void PagePort::ReleaseCapture() {
  if (IsShown()) view_.Capture(false);
}

void PagePort::SetFocus() {
  if (IsShown()) view_.setFocus(Qt::MouseFocusReason);
}

void PagePort::SetCursor(Cursor cursor) {
  cursor_ = cursor;
  if (IsShown()) view_.ShowCursor(cursor);
}

void PagePort::SetTimer(int id, int milliseconds) {
  std::unique_ptr<QTimer>& timer = timers_[id];
  if (!timer) {
    timer = std::make_unique<QTimer>();
    QObject::connect(timer.get(), &QTimer::timeout, timer.get(), [this] {
      if (window_) window_->OnTimer();
    });
  }
  timer->start(milliseconds);
}

// Only stopped: a timer may end itself while it fires.
void PagePort::KillTimer(int id) {
  if (const auto found = timers_.find(id); found != timers_.end()) found->second->stop();
}

void PagePort::StopTimers() {
  for (auto& [id, timer] : timers_) timer->stop();
}

void PagePort::SetScrollInfo(ScrollAxis axis, const ScrollInfo& info) {
  (axis == ScrollAxis::Horizontal ? horizontal_ : vertical_) = info;
  if (IsShown()) view_.ShowScroll(axis, info);
}

Point PagePort::CursorPosition() const {
  const QPoint at = view_.viewport()->mapFromGlobal(QCursor::pos());
  return {at.x(), at.y()};
}

bool PagePort::IsControlDown() const { return QGuiApplication::queryKeyboardModifiers() & Qt::ControlModifier; }

void PagePort::TrackPopupMenu(const std::vector<MenuItem>&, Point at) {
  if (IsShown()) view_.OpenMenu(at);
}

}  // namespace xrpt
