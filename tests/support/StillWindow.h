// A window port that shows nothing and hears everything, for tests and benchmarks that only look at the page.
#pragma once

#include "platform/Window.h"

namespace xrpt {

class StillWindow final : public WindowPort {
 public:
  explicit StillWindow(Rect client = {0, 0, 1000, 800}) : client_(client) {}

  Rect ClientRect() const override { return client_; }
  void Invalidate() override {}
  void SetCapture() override {}
  void ReleaseCapture() override {}
  void SetFocus() override {}
  void SetCursor(Cursor) override {}
  void SetTimer(int, int) override {}
  void KillTimer(int) override {}
  void SetScrollInfo(ScrollAxis, const ScrollInfo&) override {}
  Point CursorPosition() const override { return {}; }
  bool IsControlDown() const override { return false; }
  void TrackPopupMenu(const std::vector<MenuItem>&, Point) override {}

 private:
  Rect client_;
};

}  // namespace xrpt
