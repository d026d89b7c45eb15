// A report checked while it is edited: always the same as one checked from its file, and only what changed is looked
// at.
#include "formulas/FormulaTable.h"
#include "formulas/checks/FileCheck.h"
#include "formulas/checks/OpenReportCheck.h"
#include "model/RVCardFormule.h"
#include "model/RVCardImage.h"
#include "support/CheckedReport.h"

namespace xrpt {
namespace {

using Codes = std::vector<std::string>;

Codes CodesOf(const std::vector<Finding>& findings) {
  Codes codes;
  for (const Finding& finding : findings) {
    codes.push_back(ToUtf8(finding.code->name) + "@" + std::to_string(finding.place.page) + "." +
                    std::to_string(finding.place.card));
  }
  return codes;
}

class OpenReportTest : public ReportCheckTest {
 protected:
  void Load(const ReportText& text) {
    XmlDocument document;
    ASSERT_TRUE(document.Parse(text.Xml()));
    report.SetTemplate(document.Root());
  }

  // Everything that is to do, at once.
  Codes Now() {
    Look();
    EXPECT_TRUE(check.Work());
    return CodesOf(check.Findings());
  }

  void Look() {
    auto next = std::make_unique<const ReportSnapshot>(report, seen.get());
    check.Look(*next);
    seen = std::move(next);
  }

  // How many cards are looked at after a change.
  std::size_t LookedAt() {
    const std::size_t before = check.CardsChecked();
    Now();
    return check.CardsChecked() - before;
  }

  template <class Card>
  Card& Edit(std::size_t index) {
    return dynamic_cast<Card&>(report.pages[0]->cards.Edit(index));
  }

  RVReport report{*host};
  std::unique_ptr<const ReportSnapshot> seen;
  OpenReportCheck check{*host};
};

TEST_F(OpenReportTest, FindsWhatTheSavedFileWouldShow) {
  Load({Formule("") + Formule("A + [VIRTUAL_X.P]", "c2") + Conditioned("3"), "A=B", "VIRTUAL_Y", "GOBACK@P"});
  const Codes open = Now();
  EXPECT_EQ(open, (Codes{"FORMULECTRL_FORMULE_EMPTY@1.0", "FORMULECTRL_FORMULE_EXPRESSION_ERROR@1.1",
                         "FORMULECTRL_VIRTUAL_DEVICE_ERROR@1.1", "CONDITIONALCTRL_CONDITION_EXPRESSION_ERROR@1.2",
                         "CONDITIONALCTRL_CONDITION_EXPRESSION_ERROR@1.2", "REPORT_VIRTUAL_DEVICE_ERROR@0.-1",
                         "REPORT_GOBACK_VARIABLE_ERROR@0.-1", "FORMULA_UNKNOWN_NAME@0.-1", "CARD_ID_SHARED@1.2"}));
  const CheckChoice all = CheckChoice::All();
  const ReportFindings saved = FileCheck(all, {}).Check(host.WriteCfg("r.xrpt", report.TemplateText()));
  Codes fromFile = CodesOf(saved.findings), fromWindow = open;
  std::sort(fromFile.begin(), fromFile.end());
  std::sort(fromWindow.begin(), fromWindow.end());
  EXPECT_EQ(fromFile, fromWindow);
}

TEST_F(OpenReportTest, FindsStylesThatWereLostWhenItWasOpened) {
  host.WriteCfg("S1.Known.XSTY", "<style><id>S1</id><name>Known</name><font><name>Arial</name></font></style>");
  const std::string gone = "<style>GONE</style>";
  const Path file = host.WriteCfg(
      "R.r.xrpt", "<reportLayout><id>R</id><name>r</name><page><id>p</id><label><id>a</id>" + gone +
                      "</label><label><id>b</id></label><conditioned><id>c</id><control><condition>1 &lt; 2</condition>"
                      "<label>" +
                      gone + "</label></control></conditioned></page></reportLayout>");
  report.LoadFile(file);
  const auto styles = [this] {
    Codes found = Now();
    std::erase_if(found, [](const std::string& code) { return code.find("STYLE_UNKNOWN") == code.npos; });
    return found;
  };
  EXPECT_EQ(styles(), (Codes{"STYLE_UNKNOWN@1.0", "STYLE_UNKNOWN@1.2"}));
  Edit<RVCardLabel>(0).styleName = L"Known";
  EXPECT_EQ(styles(), Codes{"STYLE_UNKNOWN@1.2"});
  report.SaveTo(file);
  EXPECT_EQ(styles(), Codes{});  // now the file does not have it either
}

TEST_F(OpenReportTest, LooksOnlyAtWhatChanged) {
  std::string cards = Formule("TOTAL", "f");
  for (int i = 0; i < 300; ++i) cards += Formule("[MAIN.P] + 1", "c" + std::to_string(i));
  Load({cards, "TOTAL=3"});
  EXPECT_EQ(LookedAt(), 301u);
  EXPECT_EQ(LookedAt(), 0u);
  Edit<RVCardFormule>(7).value = L"1 +";
  EXPECT_EQ(LookedAt(), 1u);
  EXPECT_EQ(CodesOf(check.Findings()), Codes{"FORMULECTRL_FORMULE_EXPRESSION_ERROR@1.7"});
  report.pages[0]->cards.MoveToFront({7});
  EXPECT_EQ(LookedAt(), 0u);
  EXPECT_EQ(CodesOf(check.Findings()), Codes{"FORMULECTRL_FORMULE_EXPRESSION_ERROR@1.0"});
  report.pages[0]->cards.Remove({0});
  EXPECT_EQ(LookedAt(), 0u);
  EXPECT_EQ(CodesOf(check.Findings()), Codes());
}

// A card is edited in place while its step is open; what was seen of it then must not stay.
TEST_F(OpenReportTest, SeesEachStageOfAnEdit) {
  Load({Formule("1")});
  Now();
  RVCardFormule& first = Edit<RVCardFormule>(0);
  first.value = L"1 +";
  EXPECT_EQ(Now().size(), 1u);
  Edit<RVCardFormule>(0).value = L"2";
  EXPECT_EQ(Now(), Codes());
}

TEST_F(OpenReportTest, LooksAgainAtWhatHangsOnTheReport) {
  Load({Formule("TOTAL", "a") + Formule("1", "b") + "<label><id>l</id></label>", "TOTAL=1"});
  Now();
  report.formules = FormulasDocument(kFormulesRoot, {});
  EXPECT_EQ(LookedAt(), 1u) << "the one that uses a formula";
  EXPECT_EQ(CodesOf(check.Findings()), Codes{"FORMULECTRL_FORMULE_EXPRESSION_ERROR@1.0"});
  report.virtualDevices.Root().NewChild("virtualDevice").SetValue("id", L"VIRTUAL_A");
  EXPECT_EQ(LookedAt(), 2u) << "the two that may refer to devices";
  EXPECT_EQ(CodesOf(check.Findings()).back(), "REPORT_VIRTUAL_DEVICE_ERROR@0.-1");
  report.pages[0]->properties.width = 5.0;
  EXPECT_EQ(LookedAt(), 3u) << "all that stand on the page";
  check.Forget();
  EXPECT_EQ(LookedAt(), 3u);
}

TEST_F(OpenReportTest, WorksInSlices) {
  std::string cards;
  for (int i = 0; i < 20; ++i) cards += Formule("", "c" + std::to_string(i));
  Load({cards});
  Look();
  EXPECT_FALSE(check.Work([] { return true; }));
  EXPECT_TRUE(check.Findings().empty());
  int left = 7;
  EXPECT_FALSE(check.Work([&left] { return left-- == 0; }));
  EXPECT_EQ(check.CardsChecked(), 7u);
  Edit<RVCardFormule>(0).value = L"1";
  EXPECT_EQ(Now().size(), 19u);
  EXPECT_EQ(check.CardsChecked(), 21u) << "what was looked at before the change is not looked at again";
}

TEST_F(OpenReportTest, AnotherReportOfTheSameName) {
  Load({Formule("1")});
  report.name = L"alike";
  report.Save();
  EXPECT_EQ(Now(), Codes());
  const Path other = host.WriteCfg("OTHER.alike.xrpt", "<reportLayout/>");
  host.WriteCfg("THIRD.nearly alike.xrpt", "<reportLayout/>");
  EXPECT_EQ(Now(), Codes()) << "not looked for again";
  check.Forget();
  EXPECT_EQ(Now(), Codes{"REPORT_NAME_SHARED@0.-1"});
  report.name = L"unlike";
  EXPECT_EQ(Now(), Codes());
  report.name = L"alike";
  EXPECT_EQ(Now(), Codes{"REPORT_NAME_SHARED@0.-1"});
  report.name.clear();
  EXPECT_EQ(Now(), Codes()) << "a report without a name has no other's";
}

TEST_F(OpenReportTest, SnapshotsShareAndTellApart) {
  Load({Formule("1") + "<label><id>l</id></label>", "A=1"});
  Look();
  const auto same = [this] { return ReportSnapshot(report, seen.get()).IsSame(*seen); };
  EXPECT_TRUE(same());
  report.formules = FormulasDocument(kFormulesRoot, {{L"A", L"1"}});
  EXPECT_TRUE(same()) << "another document that reads alike";
  report.pages[0]->properties.height += 1.0;
  EXPECT_FALSE(same());
  Look();
  report.pages[0]->cards.MoveToFront({1});
  EXPECT_FALSE(same());
  Look();
  report.pages[0]->properties.Background().LoadOriginalImage(L"logo", L"plant");
  EXPECT_FALSE(same());
  Look();
  EXPECT_TRUE(same());
  Edit<RVCardFormule>(1).value = L"2";
  EXPECT_FALSE(same());
  EXPECT_EQ(dynamic_cast<const RVCardFormule&>(*seen->pages[0].cards[1]).value, L"1") << "as it was when looked at";
}

}  // namespace
}  // namespace xrpt
