// What a window without a toolkit asks of the screen. A thin widget implements `WindowPort` and forwards events; tests
// and the command line implement it with plain values.
#pragma once

#include <string>
#include <vector>

#include "platform/Geometry.h"

namespace xrpt {

// OverCard and Moving are the editor's own: the pointer over a card's body, and a group being moved. Cross says that a
// press makes something new.
enum class Cursor { Arrow, SizeWE, SizeNS, SizeNESW, SizeNWSE, SizeAll, No, OverCard, Moving, Cross };

enum class ScrollAxis { Horizontal, Vertical };

struct ScrollInfo {
  int minimum = 0;
  int maximum = 0;
  int page = 0;
  int position = 0;
  bool visible = false;
  bool operator==(const ScrollInfo&) const = default;
};

enum class ScrollCommand { LineBack, LineForward, PageBack, PageForward, Thumb, First, Last };

// Virtual key codes, as hosts number them; letters are their capital's character code.
namespace key {
inline constexpr int Escape = 0x1B;
inline constexpr int Left = 0x25;
inline constexpr int Up = 0x26;
inline constexpr int Right = 0x27;
inline constexpr int Down = 0x28;
inline constexpr int Delete = 0x2E;
}  // namespace key

// Modifiers held during a mouse event.
struct MouseFlags {
  bool control = false;
  bool shift = false;
  bool alt = false;
};

// One entry of a popup menu. An empty submenu list makes it an item; `command` 0 and no submenu a separator.
struct MenuItem {
  int command = 0;
  int textId = 0;
  bool enabled = true;
  bool checked = false;
  std::vector<MenuItem> submenu;
};

class WindowPort {
 public:
  virtual ~WindowPort() = default;

  virtual Rect ClientRect() const = 0;
  virtual void Invalidate() = 0;
  virtual void SetCapture() = 0;
  virtual void ReleaseCapture() = 0;
  virtual void SetFocus() = 0;
  virtual void SetCursor(Cursor cursor) = 0;
  virtual void SetTimer(int id, int milliseconds) = 0;
  virtual void KillTimer(int id) = 0;
  virtual void SetScrollInfo(ScrollAxis axis, const ScrollInfo& info) = 0;
  // In client coordinates.
  virtual Point CursorPosition() const = 0;
  virtual bool IsControlDown() const = 0;
  // Opens the menu; the chosen command arrives later as a command of the window.
  virtual void TrackPopupMenu(const std::vector<MenuItem>& items, Point at) = 0;
};

}  // namespace xrpt
