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

// Two cards of a file may share an id, or have none: a gesture moves the one that was pressed.
TEST_F(HistoryTest, CardsOfOneIdAreTwoCards) {
  for (const wchar_t* id : {L"same", L""}) {
    Canvas canvas;
    canvas.Add(id, {100, 20, 40, 20});
    canvas.Add(id, {20, 20, 40, 20});
    canvas.Drag({700, 250}, {710, 260});
    EXPECT_EQ(canvas.wnd.Selection().Size(), 1u);
    EXPECT_EQ(canvas.page.cards[0].x, 20);
    EXPECT_NEAR(canvas.page.cards[1].x, 102, 1e-9) << "the one under the pointer";
    canvas.wnd.ControlUndo();
    EXPECT_EQ(canvas.page.cards[1].x, 100);
  }
}

TEST_F(HistoryTest, CardsSayWhenTheyBeginToMoveAndWhenTheyStop) {
  Canvas canvas;
  canvas.AddTwo();
  const auto set = [&](Behavior behavior) {
    PageEdit edit = canvas.wnd.Edit({text::kChange, 1});
    auto& label = static_cast<RVCardLabel&>(edit.Card(0));
    label.animation.behavior = behavior;
    label.text = std::wstring(200, L'x');
  };
  set(Behavior::Scroll);
  EXPECT_EQ(canvas.wnd.AnimatedCards(), 1);
  canvas.wnd.ControlUndo();
  EXPECT_EQ(canvas.wnd.AnimatedCards(), 0);
  std::vector<Message> told;
  for (const MessageData& message : canvas.Posted()) {
    if (message.message == Message::CardAnimationStarted || message.message == Message::CardAnimationStopped)
      told.push_back(message.message);
  }
  EXPECT_EQ(told, (std::vector{Message::CardAnimationStarted, Message::CardAnimationStopped}));
}

// Beyond the contract: what the desktop asks for.
TEST_F(HistoryTest, ComfortKeepsStoredDigitsAndPassesSelectionsOver) {
  Canvas canvas;
  canvas.wnd.SetOptions(EditingOptions::Comfort());
  canvas.Add(L"a", {20.123, 20.456, 40.789, 20.321});
  const std::size_t steps = canvas.wnd.UndoCount();
  canvas.Press({300, 250});
  canvas.Release({300, 250});
  canvas.Drag({50, 50}, {60, 60});
  EXPECT_EQ(canvas.Selected(), "") << "a band from beside the page";
  canvas.Press({300, 250});
  canvas.Move({350, 250});
  canvas.Move({300, 250});
  canvas.Release({300, 250});
  EXPECT_EQ(canvas.wnd.UndoCount(), steps) << "selecting, and ending where it began, are no steps";
  canvas.Drag({300, 250}, {310, 250});
  EXPECT_NEAR(canvas.Box(L"a").x, 22.123, 1e-9);
  EXPECT_EQ(canvas.Box(L"a").y, 20.456);
  EXPECT_EQ(canvas.Box(L"a").width, 40.789);
  const CardRect moved = canvas.Box(L"a");
  const Rect rect = canvas.wnd.SelectedRects().front();
  canvas.Drag({rect.right - 1, 250}, {rect.right + 9, 250});
  EXPECT_EQ(canvas.Box(L"a").x, moved.x);
  EXPECT_EQ(canvas.Box(L"a").height, moved.height);
  EXPECT_GT(canvas.Box(L"a").width, moved.width + 1.9);
  EXPECT_EQ(canvas.wnd.UndoCount(), steps + 2);
}

TEST_F(HistoryTest, RightClickSelectsWhatIsUnderItWhenAskedTo) {
  for (const bool comfort : {false, true}) {
    Canvas canvas;
    if (comfort) canvas.wnd.SetOptions(EditingOptions::Comfort());
    canvas.AddTwo();
    canvas.wnd.SelectControls({L"a"});
    canvas.wnd.OnRButtonUp({700, 250});
    EXPECT_EQ(canvas.Selected(), comfort ? "b" : "a");
  }
}

// What could not be pasted again is refused before anything is cut.
TEST_F(HistoryTest, TooMuchForTheClipboardIsNeitherCopiedNorCut) {
  Canvas canvas;
  for (std::size_t i = 0; i <= ClipboardReader::kMostCards; ++i) {
    auto card = std::make_unique<RVCardLabel>();
    card->SetParent(&canvas.page);
    canvas.page.cards.PushBack(std::move(card));
  }
  canvas.wnd.ControlSelectAll();
  canvas.wnd.ControlCut();
  EXPECT_EQ(canvas.page.cards.Size(), ClipboardReader::kMostCards + 1);
  ASSERT_FALSE(canvas.parent.messages.empty());
  EXPECT_EQ(canvas.parent.messages.back().message, Message::Refused);
  EXPECT_EQ(canvas.parent.messages.back().value, text::kTooMuchForClipboard);
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
