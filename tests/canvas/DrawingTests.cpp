// Drawing new cards, and inserting them without drawing.
#include "canvas/CanvasDriver.h"

namespace xrpt {
namespace {

constexpr Point kOnPage{300, 600};

class DrawingTest : public HostTest {};

TEST_F(DrawingTest, DrawingInsertsOnTop) {
  struct Row {
    const char* name;
    Point from, to;
    double grid;
    CardRect wanted;  // of width 0: nothing is inserted
  };
  const Row rows[] = {
      {"down", {300, 600}, {350, 620}, 0, {40, 100, 10, 4}},
      {"up and left", {350, 620}, {300, 600}, 0, {40, 100, 10, 4}},
      {"on a grid", {303, 597}, {349, 622}, 5, {40, 100, 10, 5}},
      {"just large enough", {300, 600}, {310, 610}, 0, {40, 100, 2, 2}},
      {"too narrow", {300, 600}, {309, 650}, 0, {}},
      {"too low", {300, 600}, {350, 609}, 0, {}},
      {"over the page's edge", {1100, 600}, {5000, 650}, 0, {200, 100, 9.8, 10}},
  };
  for (const Row& row : rows) {
    Canvas canvas;
    canvas.AddTwo();
    canvas.SetGrid(row.grid, row.grid);
    canvas.wnd.SetInsertKind(0);
    canvas.Press(row.from);
    EXPECT_EQ(canvas.port.cursor, Cursor::No) << row.name;
    canvas.Move(row.to);
    const bool inserts = row.wanted.width > 0;
    EXPECT_EQ(canvas.port.cursor == Cursor::No, !inserts) << row.name;
    canvas.Release(row.to);
    const auto posted = canvas.Posted();
    EXPECT_EQ(posted.back().value, inserts ? 0 : 1) << row.name;
    ASSERT_EQ(canvas.page.cards.Size(), inserts ? 3u : 2u) << row.name;
    if (!inserts) continue;
    EXPECT_EQ(posted.front().message, Message::CardInserted) << row.name;
    ExpectBox(RectOf(canvas.page.cards[0]), row.wanted, row.name);
    EXPECT_TRUE(canvas.wnd.Selection().IsSelected(canvas.page.cards[0])) << row.name;
    EXPECT_EQ(canvas.wnd.Selection().Size(), 1u) << row.name;
  }
}

TEST_F(DrawingTest, DrawingWithControlKeepsTheSelection) {
  Canvas canvas;
  canvas.AddTwo();
  canvas.wnd.SetInsertKind(3);
  canvas.wnd.SelectControls({L"a"});
  canvas.Drag(kOnPage, {400, 700}, kCtrl);
  EXPECT_EQ(canvas.wnd.Selection().Size(), 2u);
  EXPECT_EQ(canvas.wnd.Selection().Ids().front(), L"a");
  EXPECT_EQ(canvas.page.cards[0].color, 0xC000C0u);
}

struct KindRow {
  int code;
  const char* tag;
  void (RVEditTemplateWnd::*allow)(bool);
};

// Every tool makes its kind unless that is not supported; other codes make nothing.
TEST_F(DrawingTest, InsertKinds) {
  const KindRow rows[] = {{0, "label", &RVEditTemplateWnd::SetLabelSupport},
                          {1, "staticImage", &RVEditTemplateWnd::SetImageSupport},
                          {3, "date", &RVEditTemplateWnd::SetDateSupport},
                          {4, "formule", &RVEditTemplateWnd::SetFormuleSupport},
                          {8, "conditioned", &RVEditTemplateWnd::SetConditionedSupport},
                          {9, "reportGraph", &RVEditTemplateWnd::SetReportGraphSupport},
                          {10, "analogBar", &RVEditTemplateWnd::SetAnalogBarSupport},
                          {136, "primitive", &RVEditTemplateWnd::SetPrimitiveSupport}};
  Canvas canvas;
  for (const KindRow& row : rows) {
    canvas.wnd.SetInsertKind(row.code);
    const std::size_t before = canvas.page.cards.Size();
    (canvas.wnd.*row.allow)(false);
    canvas.wnd.AddControl(1, 2, 30, 40);
    EXPECT_EQ(canvas.page.cards.Size(), before) << row.tag;
    (canvas.wnd.*row.allow)(true);
    canvas.wnd.AddControl(1, 2, 30, 40);
    ASSERT_EQ(canvas.page.cards.Size(), before + 1) << row.tag;
    EXPECT_STREQ(canvas.page.cards[0].GetRuntimeClass().tag, row.tag);
    ExpectBox(RectOf(canvas.page.cards[0]), {1, 2, 30, 40}, row.tag);
    EXPECT_EQ(canvas.page.cards[0].GetParent(), &canvas.page) << row.tag;
  }
  canvas.Posted();
  for (const int code : {2, 5, -1, 137}) {
    canvas.wnd.SetInsertKind(code);
    canvas.wnd.AddControl(1, 2, 30, 40);
  }
  EXPECT_EQ(canvas.page.cards.Size(), std::size(rows));
  EXPECT_TRUE(canvas.Posted().empty());
}

// Without a drawn rectangle: at the pointer, 30 pixels or a grid step large, pushed back inside the page.
TEST_F(DrawingTest, InsertingAtThePointer) {
  struct Row {
    Point pointer;
    double grid;
    CardRect wanted;
  };
  const Row rows[] = {{{300, 600}, 0, {40, 100, 6, 6}},
                      {{1140, 600}, 0, {210 - 6.2, 100, 6, 6}},
                      {{1120, 1580}, 0, {210 - 6.2, 297 - 6.2, 6, 6}},
                      {{1119, 1554}, 0, {210 - 6.2, 290.8, 6, 6}},
                      {{20, 30}, 0, {0, 0, 6, 6}},
                      {{312, 587}, 5, {40, 95, 5, 5}}};
  for (const Row& row : rows) {
    Canvas canvas;
    canvas.SetGrid(row.grid, row.grid);
    canvas.Move(row.pointer);
    CardRect found;
    EXPECT_TRUE(canvas.wnd.GetInitialControlDimensions(found.x, found.y, found.width, found.height));
    ExpectBox(found, row.wanted, std::to_string(row.pointer.x) + " " + std::to_string(row.pointer.y));
  }
}

}  // namespace
}  // namespace xrpt
