// Undo and redo: what makes a step, what a step takes back, what steps share.
#include "canvas/CanvasDriver.h"
#include "canvas/UndoTexts.h"
#include "model/RVCardConditioned.h"

namespace xrpt {
namespace {

class HistoryTest : public HostTest {};

// Each of these is one step of its name, and undo and redo go back and forth over it.
TEST_F(HistoryTest, EveryCommandIsOneStep) {
  struct Row {
    const char* name;
    std::function<void(Canvas&)> command;
    UndoName step;
  };
  const Row rows[] = {
      {"move",
       [](Canvas& c) {
         c.Drag({300, 250}, {310, 260});
       },
       {text::kMove, 2}},
      {"resize",
       [](Canvas& c) {
         c.Drag({201, 250}, {190, 250});
       },
       {text::kResize, 2}},
      {"draw",
       [](Canvas& c) {
         c.wnd.SetInsertKind(0);
         c.Drag({300, 600}, {400, 700});
       },
       {text::kInsert, 1}},
      {"key", [](Canvas& c) { c.wnd.OnKeyDown(key::Down, kPlain); }, {text::kMove, 2}},
      {"band",
       [](Canvas& c) {
         c.Drag({450, 150}, {850, 350});
       },
       {text::kSelect, 0}},
      {"click on empty page",
       [](Canvas& c) {
         c.Press({300, 600});
         c.Release({300, 600});
       },
       {text::kSelect, 0}},
      {"lost capture",
       [](Canvas& c) {
         c.Press({300, 250});
         c.port.ReleaseCapture();
       },
       {text::kSelect, 0}},
      {"delete", [](Canvas& c) { c.wnd.ControlDelete(); }, {text::kDeleteCards, 2}},
      {"paste",
       [](Canvas& c) {
         c.wnd.ControlCopy();
         c.wnd.ControlPaste();
       },
       {text::kPasteCards, 2}},
      {"align", [](Canvas& c) { c.wnd.AlignSelectedControls(kAlignLeftEdges); }, {text::kAlign, 2}},
      {"front", [](Canvas& c) { c.wnd.ControlBringToFront(); }, {text::kToFront, 2}},
      {"turn", [](Canvas& c) { c.wnd.SetOrientation(0); }, {text::kTurnPage, 0}},
      {"edit",
       [](Canvas& c) {
         c.wnd.Edit({text::kChange, 2}).Card(L"a")->field = L"F";
       },
       {text::kChange, 2}},
      {"edit page",
       [](Canvas& c) {
         c.wnd.Edit({text::kChangePage, 0}).Properties().name = L"N";
       },
       {text::kChangePage, 0}},
  };
  for (const Row& row : rows) {
    Canvas canvas;
    canvas.AddTwo();
    canvas.wnd.SelectControls({L"a", L"b"});
    canvas.wnd.AddUndoInfo(false);
    const std::size_t steps = canvas.wnd.UndoCount();
    const std::string before = canvas.Saved();
    row.command(canvas);
    const std::string after = canvas.Saved();
    EXPECT_EQ(canvas.wnd.UndoCount(), steps + 1) << row.name;
    EXPECT_EQ(canvas.wnd.NextUndoName(), row.step) << row.name;
    EXPECT_NE(HostText(row.step.textId), L"") << row.name;
    for (int i = 0; i < 2; ++i) {
      canvas.wnd.ControlUndo();
      EXPECT_EQ(canvas.Saved(), before) << row.name;
      EXPECT_EQ(canvas.wnd.NextRedoName(), row.step) << row.name;
      canvas.wnd.ControlRedo();
      EXPECT_EQ(canvas.Saved(), after) << row.name;
    }
  }
}

TEST_F(HistoryTest, WhatIsNoStep) {
  Canvas canvas;
  canvas.AddTwo();
  canvas.wnd.SelectControls({L"a", L"b"});
  canvas.wnd.AddUndoInfo(false);
  const std::size_t steps = canvas.wnd.UndoCount();
  canvas.wnd.SelectControls({L"b", L"a"});
  EXPECT_FALSE(canvas.wnd.AddUndoInfo(false)) << "the order of selection";
  canvas.SetGrid(5, 5);
  EXPECT_FALSE(canvas.wnd.AddUndoInfo(false)) << "the grid";
  canvas.wnd.SetSurround(0x123456);
  EXPECT_FALSE(canvas.wnd.AddUndoInfo(false)) << "the colour round the page";
  PageEdit edit = canvas.wnd.Edit({text::kChange, 1});
  edit.Card(L"a");
  EXPECT_FALSE(edit.End()) << "a copy that is equal";
  EXPECT_EQ(canvas.wnd.UndoCount(), steps);
  EXPECT_TRUE(canvas.wnd.AddUndoInfo(true)) << "unless it is forced";
}

// A conditioned card writes its own rectangle into its alternatives' files; saving it is no change.
TEST_F(HistoryTest, SavingIsNoStep) {
  Canvas canvas;
  auto card = std::make_unique<RVCardConditioned>();
  card->cards.push_back(std::make_unique<RVCardLabel>());
  card->conditions.push_back(L"1");
  SetRect(*card, {20, 20, 40, 20});
  canvas.page.cards.PushFront(std::move(card));
  canvas.wnd.AddUndoInfo(false);
  EXPECT_NE(canvas.Saved(), "");
  EXPECT_FALSE(canvas.wnd.AddUndoInfo(false));
}

TEST_F(HistoryTest, TwentyStepsAreKept) {
  Canvas canvas;
  canvas.Add(L"a", {20, 20, 40, 20});
  canvas.wnd.SelectControls({L"a"});
  canvas.wnd.AddUndoInfo(false);
  for (int i = 0; i < 30; ++i) canvas.wnd.OnKeyDown(key::Right, kPlain);
  EXPECT_EQ(canvas.wnd.UndoCount(), 20u);
  for (int i = 0; i < 40; ++i) canvas.wnd.ControlUndo();
  EXPECT_EQ(canvas.wnd.UndoCount(), 1u);
  EXPECT_FALSE(canvas.wnd.IsActionUndoEnabled());
  EXPECT_NEAR(canvas.Box(L"a").x, 20 + 11 * 0.2, 1e-9) << "19 steps back";
  for (int i = 0; i < 40; ++i) canvas.wnd.ControlRedo();
  EXPECT_NEAR(canvas.Box(L"a").x, 26, 1e-9);
  canvas.wnd.ControlUndo();
  canvas.wnd.OnKeyDown(key::Left, kPlain);
  EXPECT_FALSE(canvas.wnd.IsActionRedoEnabled()) << "a new step ends what could be redone";
}

// The page before the first gesture can be returned to, an empty one too.
TEST_F(HistoryTest, AnEmptyPageIsAState) {
  Canvas canvas;
  canvas.wnd.SetInsertKind(0);
  canvas.Drag({300, 600}, {400, 700});
  canvas.wnd.ControlUndo();
  EXPECT_TRUE(canvas.page.cards.IsEmpty());
  EXPECT_TRUE(canvas.wnd.Selection().IsEmpty());
}

TEST_F(HistoryTest, UndoLeavesTheGrid) {
  Canvas canvas;
  canvas.SetGrid(5, 5);
  canvas.wnd.SetOrientation(0);
  canvas.SetGrid(7, -2);
  canvas.wnd.ControlUndo();
  EXPECT_EQ(canvas.page.properties.width, 210);
  EXPECT_EQ(canvas.page.properties.xgrid, 7);
  EXPECT_EQ(canvas.page.properties.ygrid, -2);
}

// Deleted cards were selected when their step was taken; no way back selects what is not there.
TEST_F(HistoryTest, NothingGoneIsSelected) {
  Canvas canvas;
  canvas.AddTwo();
  canvas.wnd.SelectControls({L"a"});
  canvas.wnd.AddUndoInfo(false);
  canvas.wnd.ControlDelete();
  canvas.Drag({550, 150}, {850, 350});
  EXPECT_EQ(canvas.Selected(), "b");
  canvas.wnd.ControlUndo();
  EXPECT_EQ(canvas.Selected(), "");
  canvas.wnd.ControlUndo();
  EXPECT_EQ(canvas.Stacked(), "a b");
}

// Undo in the middle of a gesture ends it, and the release then changes nothing.
TEST_F(HistoryTest, UndoEndsAGesture) {
  for (const Point press : {Point{300, 250}, Point{300, 600}}) {
    Canvas canvas;
    canvas.AddTwo();
    canvas.wnd.SelectControls({L"a"});
    canvas.wnd.OnKeyDown(key::Right, kPlain);
    canvas.Press(press);
    canvas.Move({500, 700});
    canvas.wnd.ControlUndo();
    EXPECT_FALSE(canvas.port.captured);
    EXPECT_TRUE(!canvas.wnd.CurrentGesture().Band());
    const std::string before = canvas.Saved();
    canvas.Release({500, 700});
    EXPECT_EQ(canvas.Saved(), before);
    ExpectBox(canvas.Box(L"a"), {20, 20, 40, 20}, "a");
  }
}

// A page read anew has a history of its own.
TEST_F(HistoryTest, SetTemplateStartsAnew) {
  Canvas canvas;
  canvas.AddTwo();
  canvas.wnd.SelectControls({L"a"});
  canvas.wnd.ControlDelete();
  XmlDocument document;
  ASSERT_TRUE(document.Parse("<page><width>100.00</width><label><id>x</id></label></page>"));
  EXPECT_TRUE(canvas.wnd.SetTemplate(document.Root()));
  EXPECT_EQ(canvas.Stacked(), "x");
  EXPECT_EQ(canvas.wnd.UndoCount(), 1u);
  EXPECT_FALSE(canvas.wnd.SetTemplate(XmlNode()));
  EXPECT_EQ(canvas.Stacked(), "x");
}

}  // namespace
}  // namespace xrpt
