// What a page's window asks of the screen, answered by the one page view for whichever page it shows. Each page keeps
// its own scroll positions and timers; a page that is not shown asks in vain for cursor, capture and repainting.
#pragma once

#include <functional>
#include <map>
#include <memory>

#include "platform/Window.h"

class QTimer;

namespace xrpt {

class PageView;
class RVEditTemplateWnd;

class PagePort final : public WindowPort {
 public:
  // The view must outlive the port.
  explicit PagePort(PageView& view);
  ~PagePort() override;
  PagePort(const PagePort&) = delete;
  PagePort& operator=(const PagePort&) = delete;

  void Attach(RVEditTemplateWnd* window) { window_ = window; }
  RVEditTemplateWnd* Window() const { return window_; }
  const ScrollInfo& Scroll(ScrollAxis axis) const { return axis == ScrollAxis::Horizontal ? horizontal_ : vertical_; }
  Cursor LastCursor() const { return cursor_; }
  void StopTimers();

  Rect ClientRect() const override;
  void Invalidate() override;
  void SetCapture() override;
  void ReleaseCapture() override;
  void SetFocus() override;
  void SetCursor(Cursor cursor) override;
  void SetTimer(int id, int milliseconds) override;
  void KillTimer(int id) override;
  void SetScrollInfo(ScrollAxis axis, const ScrollInfo& info) override;
  Point CursorPosition() const override;
  bool IsControlDown() const override;
  void TrackPopupMenu(const std::vector<MenuItem>& items, Point at) override;

 private:
  bool IsShown() const;

  PageView& view_;
  RVEditTemplateWnd* window_ = nullptr;
  ScrollInfo horizontal_;
  ScrollInfo vertical_;
  Cursor cursor_ = Cursor::Arrow;
  std::map<int, std::unique_ptr<QTimer>> timers_;
};

}  // namespace xrpt
