// Rubber bands, hovering, keys, the context menu and the timer.
#include "canvas/CanvasDriver.h"
#include "canvas/MouseState.h"

namespace xrpt {
namespace {

constexpr Point kOnA{300, 250};
constexpr Point kOnB{700, 250};

class InputTest : public HostTest {};

// --- Bands ---

TEST_F(InputTest, BandsSelect) {
  struct Row {
    const char* name;
    Point from, to;
    MouseFlags flags;
    std::string wanted;  // a was selected before
  };
  const Row rows[] = {{"round b", {550, 150}, {850, 350}, kPlain, "b"},
                      {"round b, right to left", {850, 350}, {550, 150}, kPlain, "b"},
                      {"round both", {150, 150}, {850, 350}, kPlain, "a b"},
                      {"toggling both", {150, 150}, {850, 350}, kCtrl, "b"},
                      {"adding b", {550, 150}, {850, 350}, kShift, "a b"},
                      {"adding both", {150, 150}, {850, 350}, kShift, "a b"},
                      {"beside everything", {450, 150}, {500, 350}, kPlain, ""},
                      {"touching a's edge", {401, 150}, {450, 350}, kPlain, ""},
                      {"over a's last pixel", {399, 150}, {450, 350}, kPlain, "a"}};
  for (const Row& row : rows) {
    Canvas canvas;
    canvas.AddTwo();
    canvas.wnd.SelectControls({L"a"});
    canvas.Drag(row.from, row.to, row.flags);
    EXPECT_EQ(canvas.Selected(), row.wanted) << row.name;
    EXPECT_EQ(canvas.Posted().back().value, 1) << row.name;
  }
}

// --- Hovering ---

TEST_F(InputTest, CursorFollowsTheTopCard) {
  Canvas canvas;
  canvas.Add(L"below", {20, 20, 40, 20});
  canvas.Add(L"above", {50, 20, 40, 20});
  struct Row {
    Point at;
    Cursor cursor;
  };
  const Row rows[] = {{{300, 250}, Cursor::OverCard}, {{202, 202}, Cursor::SizeNWSE}, {{202, 205}, Cursor::SizeNWSE},
                      {{202, 206}, Cursor::SizeWE},   {{205, 202}, Cursor::SizeNWSE}, {{212, 202}, Cursor::SizeNS},
                      {{202, 207}, Cursor::SizeWE},   {{350, 250}, Cursor::SizeWE},   {{398, 250}, Cursor::OverCard},
                      {{549, 299}, Cursor::SizeNWSE}, {{550, 299}, Cursor::Arrow},    {{202, 299}, Cursor::SizeNESW},
                      {{548, 203}, Cursor::SizeNESW}, {{100, 100}, Cursor::Arrow}};
  for (const Row& row : rows) {
    canvas.Move(row.at);
    EXPECT_EQ(canvas.port.cursor, row.cursor) << row.at.x << " " << row.at.y;
  }
  struct Step {
    Point at;
    int paints;
  };
  // Repainted when another card is hovered, though the cursor is the same, and not while nothing changes.
  for (const Step& step : {Step{{300, 250}, 1}, Step{{310, 250}, 0}, Step{{420, 250}, 1}, Step{{430, 250}, 0}}) {
    const int before = canvas.port.paints;
    canvas.Move(step.at);
    EXPECT_EQ(canvas.port.paints - before, step.paints) << step.at.x;
  }
}

// Toolkits repeat the last position; that is no drag.
TEST_F(InputTest, TheSamePointAgainIsNoMove) {
  Canvas canvas;
  canvas.AddTwo();
  canvas.Move(kOnA);
  canvas.Press(kOnA);
  canvas.Move(kOnA);
  EXPECT_EQ(canvas.wnd.CurrentMouseState(), kPressCard);
}

// --- Keys ---

TEST_F(InputTest, ArrowsMove) {
  struct Row {
    const char* name;
    int dpi;
    double grid;
    int key;
    bool control;
    double dx, dy;
  };
  const Row rows[] = {
      {"left", 127, 0, key::Left, false, -0.2, 0},        {"up", 127, 0, key::Up, false, 0, -0.2},
      {"right", 127, 0, key::Right, false, 0.2, 0},       {"down, ctrl", 127, 0, key::Down, true, 0, 1},
      {"grid", 127, 5, key::Right, false, 5, 0},          {"grid, ctrl", 127, 5, key::Down, true, 0, 5},
      {"fine grid", 127, 0.1, key::Right, false, 0.2, 0},
  };
  for (const Row& row : rows) {
    Canvas canvas(row.dpi, row.dpi);
    canvas.AddTwo();
    canvas.SetGrid(row.grid, row.grid);
    canvas.wnd.SelectControls({L"a"});
    canvas.Posted();
    canvas.wnd.OnKeyDown(row.key, {row.control, false});
    ExpectBox(canvas.Box(L"a"), {20 + row.dx, 20 + row.dy, 40, 20}, row.name);
    EXPECT_EQ(canvas.wnd.UndoCount(), 2u) << row.name;
    EXPECT_EQ(canvas.Posted().front().value, 0) << row.name;
  }
}

// 5 mm are 18.9 pixels at 96 dpi: the pointer goes 18, the card lands on the line.
TEST_F(InputTest, AnArrowOnAGridLandsOnTheLine) {
  Canvas canvas(96, 96);
  canvas.Add(L"a", {20, 20, 40, 20});
  canvas.SetGrid(5, 5);
  canvas.wnd.SelectControls({L"a"});
  canvas.wnd.OnKeyDown(key::Right, kPlain);
  EXPECT_NEAR(canvas.Box(L"a").x, 25.0, 1e-9);
}

TEST_F(InputTest, OtherKeysGoToTheParent) {
  Canvas canvas;
  canvas.AddTwo();
  for (const int code : {key::Escape, key::Left, static_cast<int>('Q')}) {
    canvas.parent.messages.clear();
    canvas.wnd.OnKeyDown(code, kPlain, 3 + (7 << 16));
    ASSERT_EQ(canvas.parent.messages.size(), 1u) << code;
    EXPECT_EQ(canvas.parent.messages[0].message, Message::KeyDown);
    EXPECT_EQ(canvas.parent.messages[0].key, code);
    EXPECT_EQ(canvas.parent.messages[0].value, 3 + (7 << 16));
  }
  canvas.wnd.OnKeyDown('E', kCtrl);
  EXPECT_EQ(canvas.Selected(), "a b");
  canvas.wnd.OnKeyDown(key::Delete, kPlain);
  EXPECT_TRUE(canvas.page.cards.IsEmpty());
  canvas.wnd.OnKeyDown('Z', kCtrl);
  EXPECT_EQ(canvas.Stacked(), "a b");
  canvas.wnd.OnKeyDown('Z', kCtrlShift);
  EXPECT_TRUE(canvas.page.cards.IsEmpty());
  canvas.wnd.OnKeyDown('Z', kCtrl);
  canvas.wnd.OnKeyDown('Y', kCtrl);
  EXPECT_TRUE(canvas.page.cards.IsEmpty());
}

// --- Menu and timer ---

TEST_F(InputTest, ContextMenu) {
  Canvas canvas;
  canvas.AddTwo();
  canvas.wnd.SelectControls({L"a"});
  canvas.wnd.OnRButtonUp(kOnA);
  const int commands[] = {57635, 57634, 57637, 57643, 0, 415, 57642, 57636, 57641, 0, 0};
  const bool enabled[] = {true, true, false, false, true, true, true, true, true, true, true};
  ASSERT_EQ(canvas.port.menu.size(), std::size(commands));
  for (std::size_t i = 0; i < std::size(commands); ++i) {
    EXPECT_EQ(canvas.port.menu[i].command, commands[i]) << i;
    EXPECT_EQ(canvas.port.menu[i].enabled, enabled[i]) << i;
  }
  ASSERT_EQ(canvas.port.menu.back().submenu.size(), 1u);
  EXPECT_EQ(canvas.port.menu.back().submenu[0].command, 800);
  EXPECT_FALSE(canvas.wnd.OnCommand(800)) << "nobody owns a toolbar";
  EXPECT_TRUE(canvas.wnd.OnCommand(415));
  EXPECT_EQ(canvas.Stacked(), "b");
}

TEST_F(InputTest, FramesMarchWhileSomethingIsSelected) {
  Canvas canvas;
  canvas.AddTwo();
  canvas.Drag(kOnA, {310, 250});
  for (const int phase : {1, 2, 3, 4, 5, 0, 1}) {
    canvas.wnd.OnTimer();
    EXPECT_EQ(canvas.wnd.Phase(), phase);
  }
  canvas.Press(kOnB);
  EXPECT_EQ(canvas.wnd.Phase(), 0) << "a press starts the march anew";
  canvas.Release(kOnB);
  canvas.wnd.OnTimer();
  canvas.wnd.ClearSelection();
  canvas.wnd.OnTimer();
  EXPECT_EQ(canvas.wnd.Phase(), 0);
  EXPECT_TRUE(canvas.port.timers.empty());
  canvas.wnd.PlayTimer();
  EXPECT_TRUE(canvas.port.timers.empty()) << "nothing is selected";
}

TEST_F(InputTest, SelectingByIdPicksTheCard) {
  Canvas canvas;
  canvas.AddTwo();
  canvas.wnd.SelectControls({L"a"});
  EXPECT_TRUE(canvas.wnd.SelectControlById(L"b"));
  EXPECT_EQ(canvas.Selected(), "b");
  EXPECT_EQ(canvas.wnd.PickedCard(), canvas.page.cards.Find(L"b")->Key());
  EXPECT_EQ(canvas.Posted().back().cardId, L"b");
  EXPECT_FALSE(canvas.wnd.SelectControlById(L"nobody"));
  EXPECT_EQ(canvas.wnd.PickedCard(), 0u) << "the former pick is let go of";
  EXPECT_EQ(canvas.Selected(), "b");
}

}  // namespace
}  // namespace xrpt
