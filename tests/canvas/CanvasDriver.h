// A page window without a screen: a port of plain values, a parent that remembers what it was told, and the events of a
// user in short words. At 127 dpi a millimetre is five pixels, so that what a gesture does can be worked out by hand.
#pragma once

#include "canvas/RVEditTemplateWnd.h"
#include "model/RVCardLabel.h"
#include "support/TestHost.h"

namespace xrpt {

class FakePort final : public WindowPort {
 public:
  Rect ClientRect() const override { return client; }
  void Invalidate() override { ++paints; }
  void SetCapture() override { captured = true; }
  // As screens do it: whoever lets go of the capture is told that it is gone.
  void ReleaseCapture() override {
    if (!std::exchange(captured, false) || !window) return;
    window->OnCaptureChanged();
  }
  void SetFocus() override { focused = true; }
  void SetCursor(Cursor shown) override { cursor = shown; }
  void SetTimer(int id, int milliseconds) override { timers[id] = milliseconds; }
  void KillTimer(int id) override { timers.erase(id); }
  void SetScrollInfo(ScrollAxis axis, const ScrollInfo& info) override { bars[static_cast<int>(axis)] = info; }
  Point CursorPosition() const override { return pointer; }
  bool IsControlDown() const override { return false; }
  void TrackPopupMenu(const std::vector<MenuItem>& items, Point) override { menu = items; }

  Rect client{0, 0, 1250, 1685};  // a page of 1050 by 1485 pixels with 100 on each side
  RVEditTemplateWnd* window = nullptr;
  int paints = 0;
  bool captured = false;
  bool focused = false;
  Cursor cursor = Cursor::Arrow;
  Point pointer;
  std::map<int, int> timers;
  ScrollInfo bars[2];
  std::vector<MenuItem> menu;
};

class RecordingParent final : public MessageTarget {
 public:
  void OnMessage(const MessageData& message) override { messages.push_back(message); }
  std::vector<MessageData> messages;
};

inline constexpr MouseFlags kPlain{};
inline constexpr MouseFlags kCtrl{true, false};
inline constexpr MouseFlags kShift{false, true};
inline constexpr MouseFlags kCtrlShift{true, true};
inline constexpr int kPointer = 2;

class Canvas {
 public:
  explicit Canvas(int dpiX = 127, int dpiY = 127) : wnd(page, port, queue, parent) {
    port.window = &wnd;
    wnd.SetDpi(dpiX, dpiY);
    wnd.SetInsertKind(kPointer);
  }

  // Each new card lies on top; none of them is a step of its own.
  void Add(const std::wstring& id, const CardRect& rect) {
    auto card = std::make_unique<RVCardLabel>();
    card->id = id;
    SetRect(*card, rect);
    card->SetParent(&page);
    page.cards.PushFront(std::move(card));
    wnd.DeleteUndoList();
    wnd.AddUndoInfo(true);
  }
  // The two cards of most tests: a at 200, 200 to 400, 300 and b at 600, 200 to 800, 300.
  void AddTwo() {
    Add(L"b", {100, 20, 40, 20});
    Add(L"a", {20, 20, 40, 20});
  }
  void SetGrid(double x, double y) {
    page.properties.xgrid = x;
    page.properties.ygrid = y;
  }

  void Press(Point at, MouseFlags flags = kPlain) { wnd.OnLButtonDown(at, flags); }
  void Move(Point to, DragModifiers held = {}) { wnd.OnMouseMove(to, held); }
  void Release(Point at) { wnd.OnLButtonUp(at); }
  void Drag(Point from, Point to, MouseFlags flags = kPlain, DragModifiers held = {}) {
    Press(from, flags);
    Move(to, held);
    Release(to);
  }

  CardRect Box(const std::wstring& id) const { return RectOf(*page.cards.Find(id)); }
  // Ids separated by blanks.
  std::string Selected() const {
    std::string text;
    for (const std::wstring& id : wnd.Selection().Ids()) text += (text.empty() ? "" : " ") + ToUtf8(id);
    return text;
  }
  std::string Stacked() const {
    std::string text;
    for (std::size_t i = 0; i < page.cards.Size(); ++i) text += (i == 0 ? "" : " ") + ToUtf8(page.cards[i].id);
    return text;
  }
  std::string Saved() const {
    std::string text;
    XmlWriter writer(text);
    page.SaveTemplate(writer);
    return text;
  }
  // What was posted since the last time.
  std::vector<MessageData> Posted() {
    parent.messages.clear();
    queue.Drain();
    return std::exchange(parent.messages, {});
  }

  RVReportPage page;
  FakePort port;
  MessageQueue queue;
  RecordingParent parent;
  RVEditTemplateWnd wnd;
};

inline void ExpectBox(const CardRect& found, const CardRect& wanted, const std::string& where) {
  EXPECT_NEAR(found.x, wanted.x, 1e-9) << where;
  EXPECT_NEAR(found.y, wanted.y, 1e-9) << where;
  EXPECT_NEAR(found.width, wanted.width, 1e-9) << where;
  EXPECT_NEAR(found.height, wanted.height, 1e-9) << where;
}

}  // namespace xrpt
