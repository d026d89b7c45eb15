// Pressing, moving and resizing with the mouse: events in; states, cursors and millimetres out.
#include "canvas/CanvasDriver.h"
#include "canvas/MouseState.h"

namespace xrpt {
namespace {

constexpr Point kOnA{300, 250};
constexpr Point kOnB{700, 250};
constexpr Point kOnPage{300, 600};

class GestureTest : public HostTest {};

// --- States ---

struct StateRow {
  const char* name;
  int tool;
  std::vector<std::wstring> selected;
  Point press;
  MouseFlags flags;
  int pressed;             // state after the press
  int dragging;            // and after the first move
  std::string afterClick;  // what is selected when the press is released where it was
  bool selectionOnly;      // and whether that says that only the selection changed
};

const StateRow kStates[] = {
    {"draw", 0, {L"a"}, kOnPage, kPlain, 1, 11, "", true},
    {"draw, shift", 0, {L"a"}, kOnPage, kShift, 1, 11, "a", true},
    {"draw, ctrl", 0, {L"a"}, kOnPage, kCtrl, 2, 12, "a", true},
    {"card", kPointer, {L"b"}, kOnA, kPlain, 3, 7, "a", true},
    {"card, ctrl", kPointer, {L"b"}, kOnA, kCtrl, 4, 8, "b a", true},
    {"selected", kPointer, {L"a", L"b"}, kOnA, kPlain, 5, 9, "a", true},
    {"selected, ctrl", kPointer, {L"a", L"b"}, kOnA, kCtrl, 6, 10, "b", false},
    {"band", kPointer, {L"a"}, kOnPage, kPlain, 13, 15, "", true},
    {"band, ctrl", kPointer, {L"a"}, kOnPage, kCtrl, 14, 16, "a", true},
    {"band, ctrl and shift", kPointer, {L"a"}, kOnPage, kCtrlShift, 14, 16, "a", true},
    {"band, shift", kPointer, {L"a"}, kOnPage, kShift, 17, 18, "a", true},
    {"card, shift", kPointer, {L"b"}, kOnA, kShift, 19, 21, "b a", true},
    {"card, ctrl and shift", kPointer, {L"b"}, kOnA, kCtrlShift, 4, 8, "b a", true},
    {"selected, shift", kPointer, {L"a", L"b"}, kOnA, kShift, 20, 22, "a b", false},
    {"card, insert tool", 0, {}, kOnA, kPlain, 3, 7, "a", true},
};

// Every state is entered by a press or a first move, and left by release, by loss of the capture and by undo.
TEST_F(GestureTest, StatesAreEnteredAndLeft) {
  for (const StateRow& row : kStates) {
    const auto start = [&](Canvas& canvas) {
      canvas.AddTwo();
      canvas.wnd.SetInsertKind(row.tool);
      canvas.wnd.SelectControls(row.selected);
      canvas.Posted();
      canvas.Press(row.press, row.flags);
      EXPECT_EQ(canvas.wnd.CurrentMouseState(), row.pressed) << row.name;
      EXPECT_TRUE(canvas.port.captured && canvas.port.focused && canvas.port.timers.empty()) << row.name;
    };
    {
      Canvas canvas;
      start(canvas);
      canvas.Release(row.press);
      EXPECT_EQ(canvas.Selected(), row.afterClick) << row.name;
      const auto posted = canvas.Posted();
      ASSERT_EQ(posted.size(), 1u) << row.name;
      EXPECT_EQ(posted[0].value == 1, row.selectionOnly) << row.name;
      EXPECT_EQ(canvas.wnd.CurrentMouseState(), 0) << row.name;
      EXPECT_FALSE(canvas.port.captured) << row.name;
    }
    for (const bool loses : {true, false}) {
      Canvas canvas;
      start(canvas);
      const Point to{row.press.x + 40, row.press.y + 30};
      canvas.Move(to);
      EXPECT_EQ(canvas.wnd.CurrentMouseState(), row.dragging) << row.name;
      EXPECT_FALSE(canvas.wnd.DraggingRects().empty()) << row.name;
      const std::string before = canvas.Saved();
      if (loses) {
        canvas.port.ReleaseCapture();
        EXPECT_EQ(canvas.Selected(), "") << row.name;
        EXPECT_EQ(canvas.Saved(), before) << row.name;
      } else {
        canvas.Release(to);
      }
      EXPECT_EQ(canvas.wnd.CurrentMouseState(), 0) << row.name;
      EXPECT_TRUE(canvas.wnd.DraggingRects().empty()) << row.name;
      EXPECT_TRUE(!canvas.wnd.CurrentGesture().Band()) << row.name;
      EXPECT_EQ(canvas.wnd.CurrentGesture().Style(), 0) << row.name;
      EXPECT_EQ(canvas.port.timers.count(1), 1u) << row.name;
    }
  }
}

TEST_F(GestureTest, PressOutsideThePageStartsNothing) {
  for (const int tool : {0, kPointer}) {
    Canvas canvas;
    canvas.AddTwo();
    canvas.wnd.SetInsertKind(tool);
    canvas.wnd.SelectControls({L"a"});
    canvas.Press({50, 50});
    EXPECT_EQ(canvas.wnd.CurrentMouseState(), 0);
    EXPECT_FALSE(canvas.port.captured);
    canvas.Release({50, 50});
    EXPECT_EQ(canvas.Selected(), tool == kPointer ? "a" : "");
  }
}

// --- Moving ---

struct MoveRow {
  const char* name;
  int dpi;
  double zoom;  // 0: fit page
  double gridX, gridY;
  double dragX, dragY;    // millimetres the pointer goes
  double movedX, movedY;  // millimetres the card goes
};

// A pixel of pointer is a pixel of card; on a grid the corner lands on the nearest line.
const MoveRow kMoves[] = {
    {"zoom 0.5", 127, 0.5, -3, -3, 4, 6, 4, 6},
    {"zoom 1", 127, 1, -3, -3, -4, 6, -4, 6},
    {"zoom 1.5", 127, 1.5, -3, -3, 4, -6, 4, -6},
    {"fit", 127, 0, -3, -3, 4, 6, 4, 6},
    {"other dpi", 254, 1, -3, -3, 0.5, 0.3, 0.5, 0.3},
    {"grid", 127, 1, 5, 5, 7, 8, 5, 10},
    {"grid at zoom 1.5", 127, 1.5, 5, 5, 12.4, -7, 10, -5},
    {"grid at fit", 127, 0, 5, 5, 7, 8, 5, 10},
    {"grid across only", 254, 0.5, 5, 0, 7, 8, 5, 8},
    {"grid down only", 127, 0.5, -5, 5, 8, 8, 8, 10},
    {"off the page", 127, 1, 0, 0, -500, -500, -20, -20},
    {"off its far edges", 127, 1, 0, 0, 500, 900, 210 - 0.2 - 60, 300 - 0.2 - 40},
    {"off its far edges on a grid", 127, 1, 7, 7, 500, 900, 168 - 20, 273 - 20},
    {"grid wider than the page", 127, 1, 500, 500, 50, 50, -20, -20},
    {"grid finer than a pixel", 127, 1, 0.01, 0.01, 4, 6, 4, 6},
    {"absurdly fine grid", 127, 1, 1e-300, 1e-300, 4, 6, 4, 6},
    {"grid of no size", 127, 1, 1e-320, 1e-320, 4, 6, 4, 6},
    {"infinite grid", 127, 1, HUGE_VAL, NAN, 4, 6, 4, 6},
};

TEST_F(GestureTest, MovesLandWhereTheRulesSay) {
  for (const MoveRow& row : kMoves) {
    Canvas canvas(row.dpi, row.dpi);
    canvas.page.properties.height = 300;  // whole pixels at every zoom
    canvas.Add(L"a", {20, 20, 40, 20});
    canvas.SetGrid(row.gridX, row.gridY);
    double perMm = row.dpi / 25.4 * row.zoom;
    Point offset{100, 100};
    if (row.zoom > 0) {
      canvas.port.client = {0, 0, roundi(210 * perMm) + 200, roundi(300 * perMm) + 200};
      canvas.wnd.SetZoom(row.zoom);
    } else {  // 300 mm fill 1800 pixels: six a millimetre, and the page is centred across
      canvas.port.client = {0, 0, 2100, 1800};
      EXPECT_TRUE(canvas.wnd.SetMode(0));
      EXPECT_LT(canvas.wnd.Zoom(), 0.0);
      perMm = 6;
      offset = {420, 0};
    }
    const auto at = [&](double x, double y) {
      return Point{offset.x + roundi(x * perMm), offset.y + roundi(y * perMm)};
    };
    canvas.Drag(at(40, 30), at(40 + row.dragX, 30 + row.dragY));
    ExpectBox(canvas.Box(L"a"), {20 + row.movedX, 20 + row.movedY, 40, 20}, row.name);
  }
}

TEST_F(GestureTest, AGroupMovesAsOne) {
  Canvas canvas;
  canvas.AddTwo();
  canvas.wnd.SelectControls({L"a", L"b"});
  canvas.Drag(kOnB, {kOnB.x + 5000, kOnB.y + 10});
  // b stops one pixel inside the page, and a keeps its distance.
  ExpectBox(canvas.Box(L"b"), {210 - 0.2 - 40, 22, 40, 20}, "b");
  ExpectBox(canvas.Box(L"a"), {210 - 0.2 - 120, 22, 40, 20}, "a");
}

// A drag begins where the card is, whatever happened to it since it was selected.
TEST_F(GestureTest, ADragStartsWhereTheCardIs) {
  Canvas canvas;
  canvas.AddTwo();
  canvas.wnd.SelectControls({L"a", L"b"});
  canvas.wnd.AlignSelectedControls(kAlignLeftEdges);
  canvas.wnd.SetZoom(2.0);
  canvas.wnd.ScrollTo(300, 100);
  // At ten pixels a millimetre a lies at 1000 - 300, 200 - 100.
  canvas.Drag({900, 200}, {910, 200});
  ExpectBox(canvas.Box(L"a"), {101, 20, 40, 20}, "a");
  ExpectBox(canvas.Box(L"b"), {101, 20, 40, 20}, "b");
  canvas.wnd.ControlUndo();
  canvas.Drag({900, 200}, {900, 220});
  ExpectBox(canvas.Box(L"a"), {100, 22, 40, 20}, "after undo");
}

// --- Resizing ---

struct ResizeRow {
  const char* name;
  Point press;
  Point to;
  double grid;
  CardRect wanted;
  Cursor cursor;
};

const ResizeRow kResizes[] = {
    {"left", {201, 250}, {176, 260}, 0, {15, 20, 45, 20}, Cursor::SizeWE},
    {"right", {399, 250}, {424, 240}, 0, {20, 20, 45, 20}, Cursor::SizeWE},
    {"bottom", {300, 298}, {350, 318}, 0, {20, 20, 40, 24}, Cursor::SizeNS},
    {"top", {300, 201}, {300, 211}, 0, {20, 22, 40, 18}, Cursor::SizeNS},
    {"left and bottom", {203, 298}, {193, 308}, 0, {18, 20, 42, 22}, Cursor::SizeNESW},
    {"right and bottom", {399, 296}, {409, 306}, 0, {20, 20, 42, 22}, Cursor::SizeNWSE},
    {"left and top", {205, 201}, {195, 191}, 0, {18, 18, 42, 22}, Cursor::SizeNWSE},
    {"right and top", {399, 203}, {409, 193}, 0, {20, 18, 42, 22}, Cursor::SizeNESW},
    {"left through the right", {201, 250}, {501, 250}, 0, {60, 20, 20, 20}, Cursor::SizeWE},
    {"right over the page's edge", {399, 250}, {5000, 250}, 0, {20, 20, 210 - 0.2 - 20, 20}, Cursor::SizeWE},
    {"bottom over the page's edge", {300, 298}, {300, 5000}, 0, {20, 20, 40, 297 - 0.2 - 20}, Cursor::SizeNS},
    {"left over the page's edge", {201, 250}, {-5000, 250}, 0, {0, 20, 60, 20}, Cursor::SizeWE},
    {"right on the grid", {399, 250}, {411, 250}, 7, {20, 20, 43, 20}, Cursor::SizeWE},
    {"left on the grid", {201, 250}, {181, 250}, 7, {14, 20, 46, 20}, Cursor::SizeWE},
    {"right to the last line", {399, 250}, {5000, 250}, 7, {20, 20, 203 - 20, 20}, Cursor::SizeWE},
    {"top to the first line", {300, 201}, {300, -900}, 7, {20, 0, 40, 40}, Cursor::SizeNS},
};

TEST_F(GestureTest, HandlesResize) {
  for (const ResizeRow& row : kResizes) {
    Canvas canvas;
    canvas.Add(L"a", {20, 20, 40, 20});
    canvas.SetGrid(row.grid, row.grid);
    canvas.Move(row.press);
    EXPECT_EQ(canvas.port.cursor, row.cursor) << row.name;
    canvas.Drag(row.press, row.to);
    ExpectBox(canvas.Box(L"a"), row.wanted, row.name);
  }
}

// Below ten pixels the cursor forbids, and letting go changes nothing; in the states with Shift too.
TEST_F(GestureTest, TooSmallChangesNothing) {
  for (const MouseFlags flags : {kPlain, kCtrl, kShift}) {
    Canvas canvas;
    canvas.Add(L"a", {20, 20, 40, 20});
    canvas.wnd.SelectControls({L"a"});
    const std::string before = canvas.Saved();
    canvas.Press({399, 250}, flags);
    canvas.Move({210, 250});
    EXPECT_EQ(canvas.port.cursor, Cursor::SizeWE);
    canvas.Move({208, 250});
    EXPECT_EQ(canvas.port.cursor, Cursor::No);
    canvas.Release({208, 250});
    EXPECT_EQ(canvas.Saved(), before);
  }
}

// A small card may be moved all the same.
TEST_F(GestureTest, ASmallCardMoves) {
  Canvas canvas;
  canvas.Add(L"a", {20, 20, 1.6, 1.6});
  canvas.wnd.SelectControls({L"a"});
  canvas.Press({204, 204});
  EXPECT_EQ(canvas.wnd.CurrentGesture().Style() & kMoveAll, canvas.wnd.CurrentGesture().Style());
  canvas.port.ReleaseCapture();
  canvas.wnd.SelectControls({L"a"});
  canvas.wnd.OnKeyDown(key::Right, kCtrl);
  ExpectBox(canvas.Box(L"a"), {21, 20, 1.6, 1.6}, "by key");
  // Far away it has no pixel at all: it moves, and is still there when the user looks closer.
  canvas.wnd.SetZoom(0.05);
  canvas.wnd.OnKeyDown(key::Right, kPlain);
  EXPECT_EQ(canvas.Box(L"a").width, 1.6);
  EXPECT_EQ(canvas.Box(L"a").height, 1.6);
}

// Moved with the others, never resized; its edges are no handles.
class FixedCard final : public RVCardLabel {
 public:
  std::unique_ptr<RVCardControl> GetClone() const override { return std::make_unique<FixedCard>(*this); }
  bool Resizable() const override { return false; }
};

TEST_F(GestureTest, ACardOfFixedSizeOnlyMoves) {
  Canvas canvas;
  canvas.Add(L"a", {20, 20, 40, 20});
  auto card = std::make_unique<FixedCard>();
  card->id = L"fixed";
  SetRect(*card, {100, 20, 40.03, 20});
  canvas.page.cards.PushFront(std::move(card));
  canvas.Move({601, 201});
  EXPECT_EQ(canvas.port.cursor, Cursor::OverCard);
  canvas.SetGrid(7, 7);
  canvas.wnd.SelectControls({L"a", L"fixed"});
  canvas.Press({399, 250});
  canvas.Move({411, 250});
  EXPECT_EQ(canvas.wnd.SelectedRects()[1], (Rect{600, 200, 800, 300})) << "its outline stays";
  canvas.Release({411, 250});
  ExpectBox(canvas.Box(L"a"), {20, 20, 43, 20}, "resized to the grid");
  ExpectBox(canvas.Box(L"fixed"), {100, 20, 40.03, 20}, "left alone");
  canvas.SetGrid(0, 0);
  canvas.Drag({601, 201}, {611, 201});
  ExpectBox(canvas.Box(L"fixed"), {102, 20, 40, 20}, "moved by its edge");
  EXPECT_NEAR(canvas.Box(L"a").x, 22, 1e-9);
}

}  // namespace
}  // namespace xrpt
