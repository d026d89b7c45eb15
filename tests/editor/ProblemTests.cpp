// The list of problems, the marks on the page, and remedies as steps of the history.
#include <gmock/gmock.h>

#include "canvas/UndoTexts.h"
#include "editor/CDlgEditor.h"
#include "editor/ProblemCards.h"
#include "editor/ProblemMarks.h"
#include "formulas/checks/OpenReportCheck.h"
#include "model/RVCardConditioned.h"
#include "platform/Text.h"
#include "support/AnsweringPort.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;

constexpr CheckCode kBad{L"BAD", 62000, Severity::Error};
constexpr CheckCode kPoor{L"POOR", 62001, Severity::Warning};
constexpr CheckCode kFair{L"FAIR", 62004, Severity::Information};

Problem About(const CheckCode& code, CardKey card, std::optional<std::wstring> detail = std::nullopt) {
  Problem problem{{.code = &code, .detail = std::move(detail)}, card};
  problem.finding.place.card = card == 0 ? -1 : 0;
  return problem;
}

class ProblemTest : public HostTest {
 protected:
  // All that is found in the frame's report.
  std::vector<Problem> Find(const RVEditControlWnd& frame) {
    OpenReportCheck check(*host);
    const ReportSnapshot snapshot(frame.Report());
    check.Look(snapshot);
    check.Work();
    std::vector<Problem> problems;
    for (const Finding& finding : check.Findings()) {
      const CardPlace& at = finding.place;
      const bool hasCard = at.card >= 0;
      const auto page = static_cast<std::size_t>(at.page - 1);
      problems.push_back({finding, hasCard ? snapshot.pages[page].cards[static_cast<std::size_t>(at.card)]->Key() : 0});
    }
    return problems;
  }
  Problem Of(const RVEditControlWnd& frame, std::wstring_view code) {
    for (Problem& problem : Find(frame)) {
      if (problem.finding.code->name == code) return problem;
    }
    ADD_FAILURE() << "nothing of that code was found";
    return About(kBad, 0);
  }
  bool Has(const RVEditControlWnd& frame, std::wstring_view code) {
    const std::vector<Problem> found = Find(frame);
    return std::any_of(found.begin(), found.end(), [&](const Problem& p) { return p.finding.code->name == code; });
  }
  void Open(RVEditControlWnd& frame, const std::string& pages, const std::string& formulas = {}) {
    const std::string text =
        "<reportLayout><id>R</id><name>r</name>" + pages + "<formules>" + formulas + "</formules></reportLayout>";
    ASSERT_TRUE(frame.Setup(host.WriteCfg("r.xrpt", text).wstring()).loaded);
  }
  // With a style that is there when the report is opened and gone afterwards.
  void OpenWithStyle(RVEditControlWnd& frame, const std::string& pages, const std::string& formulas = {}) {
    const Path style = host.WriteCfg("S1.Gone.XSTY",
                                     "<style><id>S1</id><name>Gone</name><font><name>Arial</name>"
                                     "</font></style>");
    host->identifiers->invalidateGuid(GuidKind::Styles, true);
    Open(frame, pages, formulas);
    std::filesystem::remove(style);
    host->identifiers->invalidateGuid(GuidKind::Styles, true);
  }
  static std::string Page(const std::string& cards) { return "<page><id>p</id>" + cards + "</page>"; }
  static std::string Label(const std::string& id, const std::string& more = {}) {
    return "<label>" + (id.empty() ? "" : "<id>" + id + "</id>") +
           "<x>10</x><y>10</y><width>50</width><height>10</height>" + more + "</label>";
  }

  AnsweringPort port;
};

TEST_F(ProblemTest, TheListShowsWhatTheUserChose) {
  ProblemList list;
  list.AddNotice(Severity::Error, L"no file");
  list.SetFound({About(kPoor, 1), About(kBad, 1), About(kFair, 2, L"X"), About(kPoor, 0)});
  const auto rows = [&list] {
    std::vector<Severity> rows;
    for (std::size_t row = 0; row < list.Size(); ++row) rows.push_back(list.SeverityOf(row));
    return rows;
  };
  using enum Severity;
  EXPECT_THAT(rows(), ElementsAre(Error, Warning, Error, Information, Warning));
  EXPECT_EQ(list.MessageOf(0), L"no file");
  EXPECT_EQ(list.ProblemOf(0), nullptr);
  EXPECT_NE(list.MessageOf(3).find(L"X"), std::wstring::npos);
  EXPECT_EQ(list.WorstOf(1), Error);
  EXPECT_EQ(list.WorstOf(2), Information);
  EXPECT_EQ(list.WorstOf(3), std::nullopt);
  EXPECT_EQ(list.MessagesOf(1).size(), 2u);

  list.Show(Error, false);
  EXPECT_THAT(rows(), ElementsAre(Warning, Information, Warning));
  EXPECT_EQ(list.Count(Error), 2u) << "counted all the same";
  EXPECT_EQ(list.WorstOf(1), Warning) << "marks follow the filter";
  EXPECT_EQ(list.RowOf(About(kFair, 2, L"X")), 1u);
  EXPECT_EQ(list.RowOf(About(kFair, 2, L"Y")), std::nullopt);
  EXPECT_EQ(list.RowOf(About(kBad, 1)), std::nullopt);
  list.SetFound({});
  EXPECT_EQ(list.Size(), 0u);
  EXPECT_FALSE(list.HasMarks());
  for (int i = 0; i < 250; ++i) list.AddNotice(Information, std::to_wstring(i));
  EXPECT_EQ(list.Size(), ProblemList::kMostNotices);
  EXPECT_EQ(list.MessageOf(list.Size() - 1), L"249");
}

TEST_F(ProblemTest, EachRemedyIsOneStepThatUndoTakesBack) {
  const std::string formula = "<formule><name>SPARE</name><text>1</text></formule>";
  const std::string front = Label("front", "<backcolor>FFFFFF</backcolor>");
  const struct {
    const wchar_t* code;
    std::string pages;
  } rows[] = {{L"CARD_OUTSIDE_PAGE", Page("<label><id>a</id><x>205</x><y>290</y><width>50</width></label>")},
              {L"TEXT_CUT_OFF", Page(Label("a",
                                           "<text><textStr>one two three four five six seven eight nine ten "
                                           "eleven twelve thirteen fourteen</textStr></text><font><size>20</size>"
                                           "</font>"))},
              {L"FORMULA_UNUSED", Page("")},
              {L"STYLE_UNKNOWN", Page(Label("a", "<style>S1</style>"))},
              {L"CARD_ID_SHARED", Page(Label("a") + Label("b")) + Page(Label("a"))},
              {L"CARD_WITHOUT_ID", Page(Label("a") + Label(""))},
              {L"CARD_HIDDEN", Page(front + Label("back"))}};
  for (const auto& [code, pages] : rows) {
    RVEditControlWnd frame(port, EditingOptions::Comfort());
    OpenWithStyle(frame, pages, formula);
    const std::string before = frame.Report().TemplateText();
    const Problem problem = Of(frame, code);
    ASSERT_TRUE(ApplyRemedy(frame, problem)) << ToUtf8(code);
    EXPECT_FALSE(Has(frame, code)) << ToUtf8(code);
    EXPECT_TRUE(frame.IsModified());
    EXPECT_EQ(frame.History().DoneNames().size(), 1u);
    EXPECT_EQ(UndoText(frame.History().NextUndoName()), HostText(problem.finding.remedy.textId));
    ASSERT_TRUE(frame.Undo());
    EXPECT_TRUE(Has(frame, code));
    EXPECT_FALSE(frame.IsModified());
    ASSERT_TRUE(frame.Redo());
    EXPECT_FALSE(Has(frame, code));
  }
}

TEST_F(ProblemTest, ACardInsideAnotherIsPutRightToo) {
  RVEditControlWnd frame(port);
  OpenWithStyle(
      frame, Page("<conditioned><id>c</id><width>50</width><height>20</height><control><condition>1 &lt; 2</condition>"
                  "<label><id>i</id><style>S1</style></label></control></conditioned>"));
  const auto inner = [&frame]() -> const RVCardControl& {
    return *dynamic_cast<const RVCardConditioned&>(frame.CurrentPage().Page().cards[0]).cards.at(0);
  };
  const Problem problem = Of(frame, L"STYLE_UNKNOWN");
  EXPECT_EQ(problem.finding.place.inner, 0);
  EXPECT_TRUE(ApplyRemedy(frame, problem));
  EXPECT_FALSE(Has(frame, L"STYLE_UNKNOWN"));
  EXPECT_EQ(inner().id, L"i");
  frame.Undo();
  EXPECT_TRUE(Has(frame, L"STYLE_UNKNOWN"));
}

// Between finding and mending the report went on changing.
TEST_F(ProblemTest, TheCardIsFoundWhereverItIsNow) {
  RVEditControlWnd frame(port, EditingOptions::Comfort());
  Open(frame, Page(Label("a") + "<label><id>far</id><x>500</x></label>") + Page(""));
  const Problem problem = Of(frame, L"CARD_OUTSIDE_PAGE");
  frame.MovePage(0, 2);
  frame.Page(1).SelectPlaces({1});
  frame.Page(1).ControlBringToFront();
  const auto spot = FindCard(frame, problem);
  ASSERT_TRUE(spot);
  EXPECT_EQ(spot->page, 1u);
  EXPECT_EQ(spot->card, 0u);
  frame.ShowPage(0);
  EXPECT_TRUE(ShowProblem(frame, problem));
  EXPECT_EQ(frame.CurrentPageIndex(), 1u);
  EXPECT_EQ(frame.CurrentPage().SelectedIndexes(), std::vector<std::size_t>{0});
  EXPECT_FALSE(CardTitle(frame, problem).empty());
  frame.CurrentPage().ControlDelete();
  EXPECT_FALSE(FindCard(frame, problem));
  EXPECT_FALSE(ShowProblem(frame, problem));
  const std::size_t steps = frame.History().DoneNames().size();
  EXPECT_FALSE(ApplyRemedy(frame, problem)) << "its card is gone";
  EXPECT_EQ(frame.History().DoneNames().size(), steps);
}

TEST_F(ProblemTest, OfTwoCardsWithOneIdTheRightOneIsShown) {
  RVEditControlWnd frame(port);
  Open(frame, Page(Label("a") + Label("twin") + Label("twin")));
  const Problem problem = Of(frame, L"CARD_ID_SHARED");
  EXPECT_TRUE(ShowProblem(frame, problem));
  EXPECT_EQ(frame.CurrentPage().SelectedIndexes(), std::vector<std::size_t>{2});
}

TEST_F(ProblemTest, TheHostSelectsByIdentifierAndHidesTheMarks) {
  CDlgEditor editor(port);
  Open(editor.Frame(), Page(Label("a")) + Page(Label("b") + Label("c")));
  EXPECT_TRUE(editor.OnControlByIdSelect(L"c"));
  EXPECT_EQ(editor.Frame().CurrentPageIndex(), 1u);
  EXPECT_EQ(editor.Frame().CurrentPage().SelectedCardId(), L"c");
  EXPECT_FALSE(editor.OnControlByIdSelect(L"nobody"));
  EXPECT_EQ(editor.Frame().CurrentPage().SelectedCardId(), L"c");
  EXPECT_TRUE(editor.Frame().AreMarksShown());
  editor.OnCtrlWarningHide();
  EXPECT_FALSE(editor.Frame().AreMarksShown());
  EXPECT_FALSE(editor.Frame().IsModified());
  editor.Frame().ToggleMarks();
  EXPECT_TRUE(editor.Frame().AreMarksShown());
}

TEST_F(ProblemTest, MarksStandAtTheCornersOfCardsInSight) {
  RVEditControlWnd frame(port);
  Open(frame, Page(Label("a") + "<label><id>b</id><x>100</x><y>50</y><width>30</width><height>10</height></label>" +
                   "<label><id>in order</id><x>20</x><y>90</y></label>"));
  const RVEditTemplateWnd& page = frame.CurrentPage();
  const CardList& cards = page.Page().cards;
  const Rect client{0, 0, 4000, 4000};
  ProblemList list;
  EXPECT_TRUE(PlaceMarks(page, list, client, 16).empty());
  list.SetFound({About(kPoor, cards[0].Key()), About(kBad, cards[1].Key()), About(kFair, 987654321)});
  std::vector<CardMark> marks = PlaceMarks(page, list, client, 16);
  ASSERT_EQ(marks.size(), 2u);
  for (const CardMark& mark : marks) {
    const Rect card = ToPixels(page.Placement(), RectOf(cards[cards.IndexOf(mark.card)]));
    EXPECT_EQ(mark.rect.right, card.right);
    EXPECT_EQ(mark.rect.top, card.top);
    EXPECT_EQ(mark.rect.right - mark.rect.left, 16);
    EXPECT_EQ(mark.severity, mark.card == cards[1].Key() ? Severity::Error : Severity::Warning);
  }
  const Rect first = ToPixels(page.Placement(), RectOf(cards[0]));
  marks = PlaceMarks(page, list, {0, 0, first.right - 5, first.bottom}, 16);
  ASSERT_EQ(marks.size(), 1u) << "the other is out of sight";
  EXPECT_EQ(marks[0].rect.right, first.right - 5) << "the mark stays in sight";
}

// However many cards crowd together, a page has room for so many marks; the worst is the one that shows.
TEST_F(ProblemTest, CrowdedMarksAreOne) {
  RVEditControlWnd frame(port);
  std::string cards;
  for (int i = 0; i < 300; ++i) cards += Label("c" + std::to_string(i));
  Open(frame, Page(cards));
  std::vector<Problem> problems;
  const CardList& all = frame.CurrentPage().Page().cards;
  for (std::size_t i = 0; i < all.Size(); ++i) problems.push_back(About(i == 150 ? kBad : kPoor, all[i].Key()));
  ProblemList list;
  list.SetFound(problems);
  const auto marks = PlaceMarks(frame.CurrentPage(), list, {0, 0, 4000, 4000}, 16);
  ASSERT_EQ(marks.size(), 1u);
  EXPECT_EQ(marks[0].severity, Severity::Error);
}

}  // namespace
}  // namespace xrpt
