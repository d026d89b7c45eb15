// Guides that help to place cards: what they line up with, that Alt and Shift do what they say, and that without them
// nothing is different.
#include "canvas/CanvasDriver.h"

namespace xrpt {
namespace {

class GuideTest : public HostTest {};

struct GuideRow {
  const char* name;
  Point from, to;
  DragModifiers held;
  double grid;
  CardRect wanted;
  std::size_t lines;
};

// a is 40 by 20 mm at 20, 20; b the same at 100, 63.3.
const GuideRow kGuideRows[] = {
    {"left on left", {300, 250}, {697, 350}, {}, 0, {100, 40, 40, 20}, 1},
    {"right on left", {300, 250}, {503, 350}, {}, 0, {60, 40, 40, 20}, 1},
    {"top on top, exactly", {300, 250}, {453, 469}, {}, 0, {50.6, 63.3, 40, 20}, 1},
    {"centre on the page's centre", {300, 250}, {628, 350}, {}, 0, {85, 40, 40, 20}, 1},
    {"left on the page's edge", {300, 250}, {203, 350}, {}, 0, {0, 40, 40, 20}, 1},
    {"too far away", {300, 250}, {690, 350}, {}, 0, {98, 40, 40, 20}, 0},
    {"Alt", {300, 250}, {697, 350}, {true, false}, 0, {99.4, 40, 40, 20}, 0},
    {"Shift across", {300, 250}, {450, 290}, {false, true}, 0, {50, 20, 40, 20}, 0},
    {"Shift down", {300, 250}, {330, 400}, {false, true}, 0, {20, 50, 40, 20}, 0},
    {"a grid decides", {300, 250}, {697, 350}, {}, 3, {99, 39, 40, 20}, 0},
    {"Alt lets go of the grid", {300, 250}, {697, 350}, {true, false}, 3, {99.4, 40, 40, 20}, 0},
    {"right edge on left", {399, 250}, {597, 250}, {}, 0, {20, 20, 80, 20}, 1},
    {"bottom edge on top, exactly", {300, 298}, {300, 413}, {}, 0, {20, 20, 40, 43.3}, 1},
};

TEST_F(GuideTest, WhatLinesUp) {
  for (const GuideRow& row : kGuideRows) {
    Canvas canvas;
    canvas.Add(L"b", {100, 63.3, 40, 20});
    canvas.Add(L"a", {20, 20, 40, 20});
    canvas.SetGrid(row.grid, row.grid);
    canvas.wnd.SetSmartGuides(true);
    canvas.Press(row.from);
    canvas.Move(row.to, row.held);
    EXPECT_EQ(canvas.wnd.Guides().size(), row.lines) << row.name;
    canvas.Release(row.to);
    ExpectBox(canvas.Box(L"a"), row.wanted, row.name);
    EXPECT_TRUE(canvas.wnd.Guides().empty()) << row.name;
  }
}

// The cards come along again where the pointer has them when it goes on.
TEST_F(GuideTest, AGuideIsLeftAgain) {
  Canvas canvas;
  canvas.Add(L"b", {100, 63.3, 40, 20});
  canvas.Add(L"a", {20, 20, 40, 20});
  canvas.wnd.SetSmartGuides(true);
  canvas.Press({300, 250});
  for (int x = 300; x <= 720; ++x) canvas.Move({x, 400});
  canvas.Release({720, 400});
  ExpectBox(canvas.Box(L"a"), {104, 50, 40, 20}, "a");
}

TEST_F(GuideTest, EqualGaps) {
  struct Row {
    const char* name;
    Point to;
    double wanted;
  };
  // l from 0 to 20 mm, m from 50.1 to 60; the moved card is 10 mm wide and stands at 150.
  const Row rows[] = {{"the same gap again", {100 + 453, 600}, 90.1},
                      {"halfway", {100 + 152, 600}, 30.05},
                      {"neither", {100 + 480, 600}, 96}};
  for (const Row& row : rows) {
    Canvas canvas;
    canvas.Add(L"l", {0, 98, 20, 21});
    canvas.Add(L"m", {50.1, 97, 9.9, 23});
    canvas.Add(L"a", {150, 200, 10, 7});
    canvas.wnd.SetSmartGuides(true);
    canvas.Press({850 + 20, 1110});
    canvas.Move({row.to.x + 20, row.to.y});
    canvas.Release({row.to.x + 20, row.to.y});
    EXPECT_NEAR(canvas.Box(L"a").x, row.wanted, 1e-9) << row.name;
  }
}

TEST_F(GuideTest, OffTheyChangeNothing) {
  for (const DragModifiers held : {DragModifiers{}, DragModifiers{true, false}, DragModifiers{false, true}}) {
    Canvas canvas;
    canvas.Add(L"b", {100, 63.3, 40, 20});
    canvas.Add(L"a", {20, 20, 40, 20});
    canvas.SetGrid(0, 5);
    canvas.Drag({300, 250}, {697, 358}, kPlain, held);
    ExpectBox(canvas.Box(L"a"), {99.4, 40, 40, 20}, "a");
  }
}

// A group lines up as a whole, keeps its distances and stays on the page.
TEST_F(GuideTest, GroupsStayTogetherAndOnThePage) {
  Canvas canvas;
  canvas.AddTwo();
  canvas.Add(L"outside", {-50, 150, 48.6, 20});
  canvas.wnd.SetSmartGuides(true);
  canvas.wnd.SelectControls({L"a", L"b"});
  canvas.Drag({300, 250}, {195, 1003});
  EXPECT_NEAR(canvas.Box(L"a").x, 0, 1e-9);
  EXPECT_NEAR(canvas.Box(L"b").x, 80, 1e-9);
  EXPECT_NEAR(canvas.Box(L"a").y, 170, 1e-9) << "top on the bottom of the card outside";
}

}  // namespace
}  // namespace xrpt
