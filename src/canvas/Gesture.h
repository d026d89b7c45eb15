// What the mouse is doing on the page: the state of its machine, the rectangles it carries along, the band, what lined
// up with guides, and the cursor. It works in pixels of the client area and knows no card; the window starts it, feeds
// it points, and reads from it what is to be written into the cards when it ends.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "canvas/DraggingStyle.h"
#include "canvas/MouseState.h"
#include "canvas/SmartGuides.h"
#include "model/RVCardControl.h"
#include "platform/Window.h"

namespace xrpt {

// Where a gesture takes place: the page on the screen, its grid, and the neighbours that guides look at (asked for once
// a gesture, and only when smart guides are on).
struct GestureGround {
  PagePlacement place;
  GridSteps grid;
  std::function<GuideSource()> guides;
};

class Gesture {
 public:
  static constexpr int kSmallestDragged = 10;  // pixels; less than that is neither drawn nor resized to

  // One card that is moved or resized along.
  struct Part {
    CardKey card = 0;
    Rect rect;
    Point fixed;            // the corner that stays while it is resized
    bool resizable = true;  // one that is not is moved but never resized
    Rect start;             // where it was at the press
  };

  bool IsRunning() const { return state_ != kIdle; }
  int State() const { return state_; }
  const MouseStateRow& Row() const { return StateRow(state_); }
  int Style() const { return style_; }
  bool Moves() const { return style_ == kMoveAll || style_ == kNoEdge; }
  // The card under the press; 0 for the page.
  CardKey Pressed() const { return pressed_; }
  const std::vector<Part>& Parts() const { return parts_; }
  const std::optional<Rect>& Band() const { return band_; }
  const GuideHits& Hits() const { return hits_; }
  const std::vector<GuideLine>& Guides() const { return lines_; }
  // False while Alt lets go of grid and guides.
  bool Snaps() const { return snaps_; }
  // The release makes copies, and what is dragged stays where it is.
  bool Copies() const { return copies_; }
  Point PressPoint() const { return press_; }

  // --- Its course ---
  void StartBand(int state, Point corner);
  // Each part's fixed corner follows from the style.
  void StartDrag(int state, int style, CardKey pressed, Point at, std::vector<Part> parts);
  void MakeCopies() { copies_ = true; }
  // The page was scrolled under it.
  void Shift(Point by);
  // The first move makes a drag of a press.
  void Advance() { state_ = Row().afterFirstMove; }
  // Carries the rectangles to a point: grid, page edges and guides bind.
  void DragTo(Point point, const DragModifiers& held, const GestureGround& ground);
  void End();

  // --- What is seen of it ---
  // The band, or the rectangle round all parts that have one.
  Rect GlobalRect() const;
  // The moving edge of the whole.
  int TargetX() const;
  int TargetY() const;
  std::vector<Rect> Outlines() const;
  bool IsTooSmall() const;

  // --- The pointer ---
  CardKey hovered = 0;                  // the card under it at the last event
  Point lastPoint;                      // where it was
  Cursor activeCursor = Cursor::Arrow;  // what lies under it asks for this
  Cursor shownCursor = Cursor::Arrow;
  // What to show during a drag: the forbidden cursor says that letting go now would change nothing.
  Cursor DragCursor() const;

 private:
  void Start(int state, Point at);
  void MoveTo(Point point, const GestureGround& ground);
  void ResizeTo(Point point, const GestureGround& ground);
  void Resize(Point delta);
  GridSteps Grid(const GestureGround& ground) const { return snaps_ ? ground.grid : GridSteps(); }
  Point Inside(const Rect& all, Point delta, const GestureGround& ground) const;
  Point WithGuides(Point delta, const Rect& moved, GuideParts x, GuideParts y, const GestureGround& ground);

  int state_ = kIdle;
  int style_ = kNoEdge;
  CardKey pressed_ = 0;
  Point press_;
  Point anchor_;  // where the pointer was when the last move was applied
  std::vector<Part> parts_;
  std::optional<Rect> band_;  // rubber band, or the rectangle of a card being drawn
  Point bandStart_;           // its fixed corner
  bool snaps_ = true;
  bool copies_ = false;
  std::optional<GuideSource> guideSource_;
  GuideHits hits_;
  std::vector<GuideLine> lines_;
};

// The rectangle round all that have one.
Rect RectAround(const std::vector<Rect>& rects);

// Moves the edges that are not at the fixed corner; a rectangle may flip through it.
void ResizeFrom(Rect& rect, Point fixed, Point delta);

}  // namespace xrpt
