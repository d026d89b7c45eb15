// What the desktop turns on at the page: cards placed by a click, copies dragged with Alt, visible handles, text edited
// where it stands, what lies beneath; and that none of it is there unless asked for.
#include <gmock/gmock.h>

#include "canvas/CanvasDriver.h"
#include "canvas/CardHints.h"
#include "canvas/ClickedCard.h"
#include "canvas/DragRules.h"
#include "canvas/Handles.h"
#include "canvas/UndoTexts.h"
#include "model/RVCardPrimitive.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;

constexpr MouseFlags kAlt{false, false, true};

class Comfort : public HostTest {
 protected:
  Comfort() { canvas.wnd.SetOptions(EditingOptions::Comfort()); }

  const RVCardControl& Front() const { return canvas.page.cards[0]; }
  std::string Undone() {
    const std::string name = ToUtf8(UndoText(canvas.wnd.NextUndoName()));
    canvas.wnd.ControlUndo();
    return name;
  }
  void Click(Point at, MouseFlags flags = {}) {
    canvas.Press(at, flags);
    canvas.Release(at);
  }

  Canvas canvas;
};

struct ClickRow {
  SizeD page;
  GridSteps grid;
  SizeD size;
  PointD at;
  CardRect wanted;
};

TEST(ClickedCard, LiesOnWholeMillimetresOrGridLinesAndOnThePage) {
  const ClickRow rows[] = {
      {{210, 297}, {-3, -3}, {40, 8}, {20.4, 30.6}, {20, 31, 40, 8}},
      {{210, 297}, {5, 2}, {40, 8.9}, {21, 30.9}, {20, 30, 40, 8}},
      {{210, 297}, {0, 0}, {40, 8}, {205, 296}, {170, 289, 40, 8}},
      {{210, 297}, {7, -3}, {40, 8}, {209, -4}, {168, 0, 42, 8}},
      {{20.5, 5.5}, {0, 0}, {40, 8}, {3, 3}, {0, 0, 20, 5}},
      {{210, 297}, {500, 0}, {40, 8}, {3, 3}, {0, 3, 500, 8}},
  };
  for (const ClickRow& row : rows) {
    ExpectBox(ClickedCardRect(row.page, row.grid, row.size, row.at), row.wanted, std::to_string(row.at.x));
  }
}

TEST_F(Comfort, AClickWithAToolMakesACardOfGoodSizeInOneStep) {
  canvas.AddTwo();
  canvas.wnd.SetInsertKind(tool::kLabel);
  Click({303, 252});  // over card a: 40.6, 30.4 mm
  ExpectBox(RectOf(Front()), {41, 30, 40, 8}, "over another card");
  EXPECT_EQ(canvas.page.cards.Size(), 3u);
  EXPECT_EQ(canvas.wnd.SelectedCardId(), Front().id);
  EXPECT_FALSE(canvas.Posted().empty());
  EXPECT_EQ(Undone(), "Insert card");
  EXPECT_EQ(canvas.Stacked(), "a b");

  canvas.wnd.SetInsertKind(tool::kPrimitive);
  canvas.Drag({200, 900}, {600, 904});  // thin, as lines are
  ExpectBox(RectOf(Front()), {20, 160, 80, 0.8}, "a drawn line");
  EXPECT_LT(static_cast<const RVCardPrimitive&>(Front()).size, 1.0);
}

TEST_F(Comfort, WithoutItAClickMakesNothing) {
  canvas.wnd.SetOptions({});
  canvas.AddTwo();
  canvas.wnd.SetInsertKind(tool::kLabel);
  Click({900, 900});
  Click({303, 252});
  EXPECT_EQ(canvas.Stacked(), "a b");
  EXPECT_EQ(canvas.Selected(), "a");
  EXPECT_FALSE(canvas.wnd.EditableText());
}

TEST_F(Comfort, AltAtThePressCopiesWhatIsDragged) {
  canvas.AddTwo();
  canvas.wnd.SelectControls({L"a", L"b"});
  canvas.Drag({300, 250}, {300, 500}, kAlt);
  ASSERT_EQ(canvas.page.cards.Size(), 4u);
  ExpectBox(canvas.Box(L"a"), {20, 20, 40, 20}, "the original");
  // Stacked like the originals, selected in their order, with ids of their own.
  ExpectBox(RectOf(canvas.page.cards[0]), {20, 70, 40, 20}, "copy of a");
  ExpectBox(RectOf(canvas.page.cards[1]), {100, 70, 40, 20}, "copy of b");
  EXPECT_THAT(canvas.wnd.SelectedIndexes(), ElementsAre(0, 1));
  EXPECT_NE(Front().id, L"a");
  EXPECT_EQ(Undone(), "Copy 2 cards");
  EXPECT_EQ(canvas.Stacked(), "a b");
  // Alt that comes later lets go of grid and guides, as ever.
  canvas.Drag({300, 250}, {310, 260}, kPlain, {true, false});
  EXPECT_EQ(canvas.page.cards.Size(), 2u);
}

TEST_F(Comfort, AltClickGoesDownThePile) {
  canvas.Add(L"low", {10, 10, 60, 60});
  canvas.Add(L"middle", {15, 15, 50, 50});
  canvas.Add(L"top", {20, 20, 40, 40});
  Click({250, 250});
  EXPECT_EQ(canvas.Selected(), "top");
  for (const char* next : {"middle", "low", "top"}) {
    Click({250, 250}, kAlt);
    EXPECT_EQ(canvas.Selected(), next);
  }
  canvas.wnd.SelectBelow();
  EXPECT_EQ(canvas.Selected(), "middle");
  // What is beneath is what Alt drags.
  canvas.Drag({250, 250}, {250, 300}, kAlt);
  ExpectBox(RectOf(Front()), {15, 25, 50, 50}, "copy of what lies beneath");
}

TEST_F(Comfort, HandlesAreGrabbedFromOutsideToo) {
  canvas.AddTwo();
  canvas.Move({403, 303});
  EXPECT_EQ(canvas.port.cursor, Cursor::Arrow);
  Click({300, 250});
  canvas.Move({403, 304});
  EXPECT_EQ(canvas.port.cursor, Cursor::SizeNWSE);
  canvas.Drag({403, 303}, {453, 353});
  ExpectBox(canvas.Box(L"a"), {20, 20, 50, 30}, "corner from outside");
  canvas.Drag({325, 196}, {325, 146});
  ExpectBox(canvas.Box(L"a"), {20, 10, 50, 40}, "upper edge from outside");
  EXPECT_EQ(canvas.Selected(), "a");
}

TEST_F(Comfort, SmallCardsAreMovedByTheirInside) {
  canvas.Add(L"thin", {20, 20, 60, 2});  // 300 by 10 pixels at 200, 200
  Click({300, 205});
  EXPECT_EQ(VisibleHandleAt({200, 200, 500, 210}, {205, 201}), kNoEdge);
  canvas.Drag({300, 201}, {300, 251});
  ExpectBox(canvas.Box(L"thin"), {20, 30, 60, 2}, "moved, not resized");
}

TEST(Handles, StandAtCornersAndWhereThereIsRoomInTheMiddles) {
  EXPECT_EQ(HandlesOf({0, 0, 100, 100}).size(), 8u);
  EXPECT_EQ(HandlesOf({0, 0, 100, 10}).size(), 6u);
  EXPECT_EQ(HandlesOf({0, 0, 10, 10}).size(), 4u);
  EXPECT_EQ(VisibleHandleAt({100, 100, 200, 200}, {96, 96}), kLeftEdge | kTopEdge);
  EXPECT_EQ(VisibleHandleAt({100, 100, 200, 200}, {204, 150}), kRightEdge);
  EXPECT_EQ(VisibleHandleAt({100, 100, 200, 200}, {130, 96}), kNoEdge);
}

TEST_F(Comfort, TextIsEditedWhereItStands) {
  canvas.AddTwo();
  EXPECT_FALSE(canvas.wnd.EditableText());
  canvas.wnd.SelectControls({L"a"});
  const auto text = canvas.wnd.EditableText();
  ASSERT_TRUE(text);
  EXPECT_EQ(text->rect, (Rect{200, 200, 400, 300}));
  EXPECT_NEAR(text->pixelSize, 10.0 * 96.0 / 72.0, 0.01);
  EXPECT_TRUE(canvas.wnd.SetTextOf(text->card, L"Energy"));
  EXPECT_FALSE(canvas.wnd.SetTextOf(text->card, L"Energy"));
  EXPECT_EQ(canvas.wnd.EditableText()->text, L"Energy");
  // Typing on is the same step, and the first text again is none.
  EXPECT_TRUE(canvas.wnd.SetTextOf(text->card, text->text));
  EXPECT_EQ(canvas.wnd.UndoCount(), 1u);
  EXPECT_TRUE(canvas.wnd.SetTextOf(text->card, L"Energy"));
  EXPECT_TRUE(canvas.wnd.SetTextOf(text->card, L"Energy saved"));
  EXPECT_EQ(Undone(), "Change text");
  EXPECT_FALSE(canvas.wnd.SetTextOf(987654321, L"gone"));
  canvas.wnd.SelectControls({L"a", L"b"});
  EXPECT_FALSE(canvas.wnd.EditableText());
}

TEST_F(Comfort, ForwardAndBackwardGoOneCardFurther) {
  EXPECT_THAT(OrderAfterRaising(5, {2, 3}), ElementsAre(0, 2, 3, 1, 4));
  EXPECT_THAT(OrderAfterRaising(3, {0, 2}), ElementsAre(0, 2, 1));
  EXPECT_THAT(OrderAfterLowering(5, {1, 2}), ElementsAre(0, 3, 1, 2, 4));
  EXPECT_THAT(OrderAfterLowering(3, {2, 7}), ElementsAre(0, 1, 2));
  EXPECT_THAT(OrderAfterMoving(5, {1, 3}, 0), ElementsAre(1, 3, 0, 2, 4));
  EXPECT_THAT(OrderAfterMoving(5, {1, 3}, 5), ElementsAre(0, 2, 4, 1, 3));
  EXPECT_THAT(OrderAfterMoving(4, {2}, 2), ElementsAre(0, 1, 2, 3));
  canvas.Add(L"c", {0, 0, 10, 10});
  canvas.AddTwo();
  canvas.wnd.SelectControls({L"c"});
  canvas.wnd.ControlBringForward();
  EXPECT_EQ(canvas.Stacked(), "a c b");
  canvas.wnd.ControlBringForward();
  canvas.wnd.ControlBringForward();  // is there already: no step
  EXPECT_EQ(canvas.Stacked(), "c a b");
  EXPECT_EQ(Undone(), "Bring card forward");
  EXPECT_EQ(canvas.Stacked(), "a c b");
  canvas.wnd.ControlSendBackward();
  EXPECT_EQ(canvas.Stacked(), "a b c");
}

TEST_F(Comfort, DuplicateAndPasteInPlace) {
  canvas.AddTwo();
  canvas.wnd.SelectControls({L"a"});
  canvas.wnd.DuplicateSelectedControls();
  ExpectBox(RectOf(Front()), {25, 25, 40, 20}, "beside");
  EXPECT_EQ(Undone(), "Duplicate card");
  canvas.wnd.SelectControls({L"b"});
  canvas.wnd.ControlCopy();
  canvas.wnd.ControlPasteInPlace();
  canvas.wnd.ControlPasteInPlace();
  ASSERT_EQ(canvas.page.cards.Size(), 4u);
  ExpectBox(RectOf(Front()), {100, 20, 40, 20}, "in place");
}

TEST_F(Comfort, AltArrowsMoveFinerThanTheGrid) {
  canvas.AddTwo();
  canvas.SetGrid(5, 5);
  canvas.wnd.SelectControls({L"a"});
  for (int press = 0; press < 3; ++press) canvas.wnd.OnKeyDown(key::Right, kAlt);
  ExpectBox(canvas.Box(L"a"), {20.3, 20, 40, 20}, "three tenths");
  EXPECT_EQ(Undone(), "Move card");
  ExpectBox(canvas.Box(L"a"), {20, 20, 40, 20}, "one step");
  canvas.wnd.SelectControls({L"a"});
  canvas.wnd.OnKeyDown(key::Left, kAlt);
  for (int press = 0; press < 300; ++press) canvas.wnd.OnKeyDown(key::Up, kAlt);
  EXPECT_NEAR(canvas.Box(L"a").y, 0.0, 0.11);
  EXPECT_GE(canvas.Box(L"a").y, 0.0);
}

TEST_F(Comfort, ADragBeyondTheEdgeScrollsAndGoesOn) {
  canvas.AddTwo();
  canvas.wnd.SetZoom(2.0);  // 2100 by 2970 pixels in 1250 by 1685
  canvas.Press({300, 300});
  canvas.Move({400, 1700});
  for (int tick = 0; tick < 400 && canvas.wnd.ScrollTowards({400, 1700}, {}); ++tick) {
  }
  EXPECT_EQ(canvas.wnd.VerticalScroll().position, 2970 - 1685);
  canvas.Release({400, 1700});
  EXPECT_NEAR(canvas.Box(L"a").y, 297 - 20, 0.2);
  EXPECT_NEAR(canvas.Box(L"a").x, 30, 0.11);
  EXPECT_FALSE(canvas.wnd.ScrollTowards({400, 1700}, {}));
  EXPECT_EQ(ScrollStep(5, 0, 100), 0);
  EXPECT_LT(ScrollStep(-50, 0, 100), ScrollStep(-1, 0, 100));
}

TEST_F(Comfort, WhatIsDraggedIsKnownWhileItIs) {
  canvas.AddTwo();
  EXPECT_FALSE(canvas.wnd.DraggedBox());
  canvas.Press({300, 250});
  EXPECT_FALSE(canvas.wnd.DraggedBox());
  canvas.Move({350, 300});
  ASSERT_TRUE(canvas.wnd.DraggedBox());
  ExpectBox(*canvas.wnd.DraggedBox(), {30, 30, 40, 20}, "moved");
  canvas.Release({350, 300});
  ExpectBox(canvas.Box(L"a"), {30, 30, 40, 20}, "as shown");
}

TEST_F(Comfort, APreviewTakesNoPresses) {
  canvas.AddTwo();
  canvas.wnd.SelectControls({L"a"});
  canvas.wnd.SetPreview(true);
  EXPECT_EQ(canvas.Selected(), "");
  canvas.Drag({300, 250}, {400, 400});
  ExpectBox(canvas.Box(L"a"), {20, 20, 40, 20}, "untouched");
  EXPECT_EQ(canvas.wnd.MakeDraw({}).flag1, 0);
  canvas.wnd.SetPreview(false);
  canvas.Drag({300, 250}, {350, 250});
  ExpectBox(canvas.Box(L"a"), {30, 20, 40, 20}, "moves again");
}

TEST_F(Comfort, TheGridIsShownApartFromSnapping) {
  canvas.SetGrid(-5, -5);
  EXPECT_FALSE(canvas.wnd.IsGridShown());
  canvas.wnd.ShowGrid(true);
  EXPECT_TRUE(canvas.wnd.IsGridShown());
  canvas.SetGrid(5, 5);
  canvas.wnd.ShowGrid(std::nullopt);
  EXPECT_TRUE(canvas.wnd.IsGridShown());
  canvas.wnd.ShowGrid(false);
  EXPECT_FALSE(canvas.wnd.IsGridShown());
}

TEST_F(Comfort, PlainTextIsPastedAsALabel) {
  CurrentHost().clipboard->PutToClipboard({"  one\r\ntwo \n", "", ""});
  EXPECT_TRUE(canvas.wnd.IsActionPasteEnabled());
  canvas.Move({600, 600});
  canvas.wnd.ControlPaste();
  ASSERT_EQ(canvas.page.cards.Size(), 1u);
  EXPECT_EQ(static_cast<const RVCardLabel&>(Front()).text, L"one\ntwo");
  EXPECT_DOUBLE_EQ(Front().x, 100.0);
  EXPECT_EQ(Undone(), "Paste card");
  canvas.wnd.SetOptions({});
  EXPECT_FALSE(canvas.wnd.IsActionPasteEnabled());
  canvas.wnd.ControlPaste();
  EXPECT_TRUE(canvas.page.cards.IsEmpty());
}

TEST_F(Comfort, CardsSayWhatTheyLack) {
  for (const InsertKindRow& row : InsertKinds()) {
    const auto card = row.kind().Create();
    const bool lacks = row.code != tool::kDate && row.code != tool::kPrimitive;
    EXPECT_EQ(MissingTextId(*card) != 0, lacks) << row.kind().tag;
  }
  RVCardLabel label;
  label.text = L"word";
  EXPECT_EQ(MissingTextId(label), 0);
  label.width = 40;
  EXPECT_FALSE(IsTextCut(label, canvas.wnd.MakeDraw({})));
  label.text = std::wstring(400, L'm');
  EXPECT_TRUE(IsTextCut(label, canvas.wnd.MakeDraw({})));
}

}  // namespace
}  // namespace xrpt
