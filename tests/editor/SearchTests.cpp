// Searching and replacing through the frame: what the search dialog of a host sends, and what the editor's own window
// does with lists and previews.
#include <gmock/gmock.h>

#include "canvas/RVEditTemplateWnd.h"
#include "canvas/RVSelection.h"
#include "editor/RVEditControlWnd.h"
#include "editor/ReportSearch.h"
#include "formulas/CDlgSearchReplace.h"
#include "support/AnsweringPort.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;

class SearchTest : public HostTest {
 protected:
  SearchTest() {
    host.WriteCfg("ID.plant.xrpt",
                  "<reportLayout><id>ID</id><name>plant</name>"
                  "<page>" +
                      Label("a", "Load and load") + Label("b", "nothing") + Label("c", "overload") + "</page><page>" +
                      Label("d", "LOAD") +
                      "</page><formules><formule><name>Peak</name><text>2 * Load</text></formule>"
                      "<formule><name>Load</name><text>7</text></formule></formules></reportLayout>");
    frame.Setup(L"plant");
  }
  static std::string Label(const std::string& id, const std::string& text) {
    return "<label><id>" + id + "</id><text><textStr>" + text + "</textStr></text></label>";
  }
  std::wstring TextOf(std::size_t page, const std::wstring& id) {
    const RVCardControl& card = *frame.Report().pages[page]->cards.Find(id);
    return FindField(card.GetRuntimeClass().table, "textStr")->text(card);
  }
  std::wstring Selected() { return frame.CurrentPage().SelectedCardId(); }
  std::wstring PeakText() { return ReadFormulas(frame.Report().formules)[0].text; }
  // Where each match stands: page, card and position; page 9 for formulas.
  static std::vector<std::vector<std::size_t>> Places(const ReportSearch& search) {
    std::vector<std::vector<std::size_t>> places;
    for (const SearchHit& hit : search.Hits()) {
      places.push_back({hit.place.page == TextPlace::kFormulas ? 9 : hit.place.page, hit.place.card, hit.position});
    }
    return places;
  }

  AnsweringPort port;
  RVEditControlWnd frame{port};
};

TEST_F(SearchTest, TheDialogStepsThroughThePageAndReplacesWhatItFound) {
  CDlgSearchReplace dialog(frame);
  dialog.text = L"load";
  dialog.replacement = L"power";
  EXPECT_EQ(dialog.Replace(), 0u) << "nothing was found yet";
  EXPECT_TRUE(dialog.Search());
  EXPECT_TRUE(dialog.Search());
  EXPECT_EQ(Selected(), L"a");
  EXPECT_TRUE(dialog.IsReplaceEnabled());
  EXPECT_EQ(dialog.Replace(), 1u);
  EXPECT_EQ(TextOf(0, L"a"), L"Load and power");
  EXPECT_FALSE(dialog.IsReplaceEnabled());
  EXPECT_TRUE(dialog.Search());
  EXPECT_EQ(Selected(), L"c");
  EXPECT_FALSE(dialog.Search()) << "the page ends";
  EXPECT_TRUE(dialog.Search()) << "and begins again";
  EXPECT_EQ(Selected(), L"a");
  frame.ShowPage(1);
  EXPECT_TRUE(dialog.Search()) << "another page is another search";
  EXPECT_EQ(Selected(), L"d");
}

TEST_F(SearchTest, ReplacingAllIsOneStepOverAllPages) {
  CDlgSearchReplace dialog(frame);
  dialog.text = L"load";
  dialog.replacement = L"power";
  EXPECT_EQ(dialog.ReplaceAll(), 4u);
  EXPECT_THAT(port.told, ElementsAre(34899));
  EXPECT_EQ(TextOf(0, L"c"), L"overpower");
  EXPECT_EQ(TextOf(1, L"d"), L"power");
  EXPECT_TRUE(frame.Undo());
  EXPECT_EQ(TextOf(0, L"a"), L"Load and load");
  EXPECT_EQ(TextOf(1, L"d"), L"LOAD");
  EXPECT_FALSE(frame.CanUndo());
  EXPECT_TRUE(frame.Redo());
  EXPECT_EQ(TextOf(1, L"d"), L"power");
}

TEST_F(SearchTest, TheListOfAReportHasFormulasLastAndIsWalkedRoundBothWays) {
  ReportSearch search(frame);
  search.text = L"load";
  search.Restart();
  EXPECT_THAT(Places(search), ElementsAre(ElementsAre(0, 0, 0), ElementsAre(0, 0, 9), ElementsAre(0, 2, 4)));
  search.wholeReport = true;
  search.Restart();
  ASSERT_EQ(search.Hits().size(), 5u);
  EXPECT_EQ(Places(search).back(), (std::vector<std::size_t>{9, 0, 4}));
  EXPECT_EQ(search.Hits().back().in->owner.id, L"Peak");
  EXPECT_FALSE(search.Current());
  EXPECT_TRUE(search.Previous());
  EXPECT_EQ(search.Current(), 4u);
  EXPECT_TRUE(search.Previous());
  EXPECT_EQ(frame.CurrentPageIndex(), 1u);
  EXPECT_EQ(Selected(), L"d");
  EXPECT_TRUE(search.Next());
  EXPECT_TRUE(search.Next());
  EXPECT_EQ(search.Current(), 0u);
  EXPECT_EQ(frame.CurrentPageIndex(), 0u);
  EXPECT_EQ(Selected(), L"a");
  EXPECT_FALSE(frame.CanUndo()) << "looking is no step";
  search.text = L"";
  search.Restart();
  EXPECT_TRUE(search.Hits().empty());
  EXPECT_FALSE(search.Next());
}

TEST_F(SearchTest, GoingOnLooksPastWhatWasReplaced) {
  ReportSearch search(frame);
  search.text = L"load";
  search.replacement = L"load load";
  search.Restart();
  EXPECT_FALSE(search.Replace()) << "nothing is current";
  for (int turn = 0; turn < 3; ++turn) {
    EXPECT_TRUE(search.Next());
    EXPECT_TRUE(search.Replace());
  }
  EXPECT_EQ(TextOf(0, L"a"), L"load load and load load");
  EXPECT_EQ(TextOf(0, L"c"), L"overload load");
  EXPECT_TRUE(search.Next());
  EXPECT_EQ(search.Current(), 0u) << "the first again";
}

TEST_F(SearchTest, TheCurrentMatchStaysCurrentWhileOthersComeAndGo) {
  ReportSearch search(frame);
  search.text = L"load";
  search.Restart();
  search.GoTo(2);
  EXPECT_FALSE(search.Refresh());
  EXPECT_EQ(search.Current(), 2u);
  PageEdit edit = frame.CurrentPage().Edit({});
  RVCardControl& card = edit.Card(0);
  FindField(card.GetRuntimeClass().table, "textStr")->assign(card, "no more");
  edit.End();
  EXPECT_TRUE(search.Refresh());
  EXPECT_EQ(search.Current(), 0u);
  EXPECT_EQ(search.Hits()[0].place.card, 2u);
}

TEST_F(SearchTest, WhatIsChosenFromThePreviewIsReplacedAsOneStep) {
  ReportSearch search(frame);
  search.text = L"load";
  search.replacement = L"power";
  search.wholeReport = true;
  search.Restart();
  std::vector<TextChange> changes = search.Preview();
  ASSERT_EQ(changes.size(), 4u);
  EXPECT_EQ(changes[0].after, L"power and power");
  EXPECT_EQ(PeakText(), L"2 * Load") << "a preview changes nothing";
  changes.erase(changes.begin() + 1);
  EXPECT_EQ(search.ReplaceAll(changes), 4u);
  EXPECT_EQ(PeakText(), L"2 * power");
  EXPECT_EQ(TextOf(0, L"c"), L"overload");
  EXPECT_EQ(TextOf(1, L"d"), L"power");
  EXPECT_EQ(search.Hits().size(), 1u);
  EXPECT_TRUE(frame.Undo());
  EXPECT_EQ(PeakText(), L"2 * Load");
  EXPECT_EQ(TextOf(1, L"d"), L"LOAD");
  EXPECT_FALSE(frame.CanUndo());
}

TEST_F(SearchTest, WhoUsesADeviceIsTold) {
  host.WriteCfg("G.graph.xrpt",
                "<reportLayout><id>G</id><name>graph</name><page/><page><reportGraph><id>g</id><variable>"
                "<id>VIRTUAL_Site.P</id></variable></reportGraph><formule><id>f</id><value>[MAIN.P]</value></formule>"
                "</page><formules><formule><name>Peak</name><text>2 * [VIRTUAL_Site.P.GOBACK@P1]</text></formule>"
                "</formules></reportLayout>");
  frame.Setup(L"graph");
  const std::vector<TextUse> users = UsersOfSource(frame.Report(), L"VIRTUAL_Site");
  ASSERT_EQ(users.size(), 2u);
  EXPECT_EQ(users[0].place.page, 1u);
  EXPECT_EQ(users[0].owner.cardId, L"g");
  EXPECT_EQ(users[1].owner.id, L"Peak");
  EXPECT_EQ(UsersOfSource(frame.Report(), L"GOBACK@P1").size(), 1u);
  EXPECT_TRUE(UsersOfSource(frame.Report(), L"VIRTUAL_Si").empty());
}

TEST_F(SearchTest, FormulasThatWouldReferToEachOtherStayAsTheyAre) {
  ReportSearch search(frame);
  search.text = L"Load";
  search.replacement = L"Peak";
  search.matchCase = search.wholeReport = true;
  search.Restart();
  EXPECT_EQ(search.ReplaceAll(search.Preview()), 0u);
  EXPECT_THAT(port.told, ElementsAre(32445));
  EXPECT_EQ(TextOf(0, L"a"), L"Load and load");
  search.GoTo(search.Hits().size() - 1);
  EXPECT_FALSE(search.Replace());
  EXPECT_EQ(PeakText(), L"2 * Load");
  search.replacement = L"3";
  search.GoTo(search.Hits().size() - 1);
  EXPECT_TRUE(search.Replace());
  EXPECT_EQ(PeakText(), L"2 * 3");
}

}  // namespace
}  // namespace xrpt
