// Searching a page: from card to card and round, replacing, and what becomes of it when cards change or go.
#include <gtest/gtest.h>

#include "CanvasDriver.h"
#include "canvas/UndoTexts.h"

namespace xrpt {
namespace {

class PageSearchTest : public HostTest {
 protected:
  // Front to back, named by their places.
  void Fill(std::initializer_list<const wchar_t*> texts) {
    int number = static_cast<int>(texts.size());
    for (const wchar_t* const* text = std::rbegin(texts).base(); text-- != texts.begin();) {
      canvas.Add(std::to_wstring(--number), {10.0 * number, 10, 5, 5});
      Label(0).text = *text;
    }
    canvas.wnd.DeleteUndoList();
    canvas.wnd.AddUndoInfo(true);
    canvas.parent.messages.clear();
  }
  RVCardLabel& Label(std::size_t index) { return static_cast<RVCardLabel&>(canvas.page.cards.Edit(index)); }
  std::wstring Text(std::size_t index) const { return static_cast<const RVCardLabel&>(canvas.page.cards[index]).text; }
  // The card of the next match; empty for none.
  std::wstring Next(const wchar_t* pattern, bool anew = false, bool matchCase = false) {
    canvas.parent.messages.clear();
    if (!canvas.wnd.SearchControl(pattern, matchCase, anew)) return {};
    EXPECT_EQ(canvas.parent.messages.size(), 1u);
    EXPECT_EQ(canvas.parent.messages[0].message, Message::CardFound);
    return canvas.parent.messages[0].cardId;
  }

  Canvas canvas;
};

TEST_F(PageSearchTest, GoesFromTheFirstCardToTheLastAndRound) {
  Fill({L"aaaa", L"none", L"xAA"});
  EXPECT_EQ(Next(L"aa", true), L"0");
  EXPECT_EQ(Next(L"aa"), L"0");
  EXPECT_EQ(Next(L"aa"), L"2");
  EXPECT_EQ(Next(L"aa"), L"") << "the end is told once";
  EXPECT_EQ(Next(L"aa"), L"0");
  EXPECT_EQ(Next(L"aa", true, true), L"0");
  EXPECT_EQ(Next(L"aa", false, true), L"0");
  EXPECT_EQ(Next(L"aa", false, true), L"") << "with case";
  EXPECT_EQ(Next(L"", true), L"");
  EXPECT_EQ(Next(L""), L"");
}

TEST_F(PageSearchTest, ReplacesWhatWasFoundLastAsAStep) {
  Fill({L"aa aa", L"aa"});
  EXPECT_FALSE(canvas.wnd.ReplaceControl(L"aa", L"b")) << "nothing was found yet";
  Next(L"aa", true);
  EXPECT_TRUE(canvas.wnd.ReplaceControl(L"aa", L"longer"));
  EXPECT_EQ(canvas.wnd.NextUndoName(), (UndoName{text::kReplace, 1}));
  EXPECT_EQ(Next(L"aa"), L"0");
  EXPECT_TRUE(canvas.wnd.ReplaceControl(L"aa", L"b"));
  EXPECT_EQ(Text(0), L"longer b");
  EXPECT_EQ(Next(L"aa"), L"1");
  EXPECT_FALSE(canvas.wnd.ReplaceControl(L"other", L"b"));
  EXPECT_EQ(canvas.wnd.UndoCount(), 3u) << "nothing replaced is no step";
  canvas.wnd.ControlUndo();
  EXPECT_EQ(Text(0), L"longer aa");
  EXPECT_EQ(Next(L"aa"), L"1") << "it goes on where it was";
  EXPECT_EQ(Next(L"aa"), L"");
  EXPECT_EQ(Next(L"aa"), L"0") << "what undo brought back is found";
}

TEST_F(PageSearchTest, ReplacesAllInOneStep) {
  Fill({L"aaaa", L"none", L"aA"});
  EXPECT_EQ(canvas.wnd.ReplaceAllControls(L"aa", L"a", false), 3u);
  EXPECT_EQ(Text(0) + Text(1) + Text(2), L"aanonea");
  EXPECT_EQ(UndoText(canvas.wnd.NextUndoName()), L"Replace in 2 cards");
  canvas.wnd.ControlUndo();
  EXPECT_EQ(Text(0) + Text(2), L"aaaaaA");
  EXPECT_FALSE(canvas.wnd.IsActionUndoEnabled());
  EXPECT_EQ(canvas.wnd.ReplaceAllControls(L"nowhere", L"", false), 0u);
  EXPECT_FALSE(canvas.wnd.IsActionUndoEnabled());
}

TEST_F(PageSearchTest, ACardThatChangedIsLookedThroughAnew) {
  Fill({L"aa aa", L"aa"});
  Next(L"aa", true);
  PageEdit edit = canvas.wnd.Edit({text::kChange, 1});
  static_cast<RVCardLabel&>(edit.Card(std::size_t{0})).text = L"b";
  edit.End();
  EXPECT_FALSE(canvas.wnd.ReplaceControl(L"aa", L"x"));
  EXPECT_EQ(Text(0), L"b");
  EXPECT_EQ(Next(L"aa"), L"1");
}

TEST_F(PageSearchTest, TheSearchGoesOnBehindACardThatIsDeleted) {
  Fill({L"aa", L"aa", L"aa", L"aa"});
  Next(L"aa", true);
  Next(L"aa");
  canvas.wnd.SelectControls({L"2", L"1"});
  canvas.wnd.DeleteSelectedControls();
  EXPECT_EQ(Next(L"aa"), L"3");
  canvas.wnd.SelectControls({L"3"});
  canvas.wnd.DeleteSelectedControls();
  EXPECT_EQ(Next(L"aa"), L"0") << "from the last to the first";
  canvas.wnd.SelectControls({L"0"});
  canvas.wnd.DeleteSelectedControls();
  EXPECT_EQ(Next(L"aa"), L"");
}

TEST_F(PageSearchTest, TheFoundCardIsPickedWhateverItsId) {
  Fill({L"x", L"aa"});
  Label(0).id = Label(1).id;
  EXPECT_FALSE(canvas.wnd.SelectSearchedCard());
  Next(L"aa", true);
  EXPECT_TRUE(canvas.wnd.SelectSearchedCard());
  EXPECT_EQ(canvas.wnd.PickedCard(), canvas.page.cards[1].Key());
  canvas.wnd.ClearSelection();
  EXPECT_EQ(canvas.wnd.PickedCard(), 0u);
}

TEST_F(PageSearchTest, KeysAndMenuAskForTheDialog) {
  canvas.wnd.OnKeyDown('F', kCtrl);
  canvas.wnd.OnKeyDown('H', kCtrl);
  EXPECT_TRUE(canvas.wnd.OnCommand(kFindCommand));
  ASSERT_EQ(canvas.parent.messages.size(), 3u);
  const long long numbers[] = {kFindCommand, kReplaceCommand, kFindCommand};
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(canvas.parent.messages[i].message, Message::Command);
    EXPECT_EQ(canvas.parent.messages[i].value, numbers[i]);
  }
}

}  // namespace
}  // namespace xrpt
