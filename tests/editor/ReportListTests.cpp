// What the list of reports decides, and what becomes of the files.
#include <gmock/gmock.h>

#include "editor/CDlgInformesList.h"
#include "editor/EditorTexts.h"
#include "model/RVReport.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class Hands final : public ReportListPort {
 public:
  std::size_t Decide(const Question& question) override {
    questions.push_back(question);
    return answer;
  }
  std::optional<std::wstring> AskForName(int, const std::wstring& proposed) override {
    proposals.push_back(ToUtf8(proposed));
    return name;
  }
  void TellFailure(const std::wstring& sentence) override { failures.push_back(ToUtf8(sentence)); }

  std::size_t answer = 0;
  std::optional<std::wstring> name;
  std::vector<Question> questions;
  std::vector<std::string> proposals, failures;
};

constexpr char kWater[] = "<reportLayout>\n\t<name>Water</name><other a='1'/>\n\t<id>A</id>\n</reportLayout>\n";

class ReportList : public HostTest {
 protected:
  ReportList() {
    host.WriteCfg("A.Water.xrpt", kWater);
    host.WriteCfg("B.gas.xrpt", "<reportLayout><id>B</id><name>gas</name></reportLayout>");
    host.WriteCfg("C.Gas.xrpt", "<reportLayout><id>C</id><name>Gas</name></reportLayout>");
  }
  CDlgInformesList List(const std::wstring& current = L"", const char* open = nullptr) {
    return {hands, current, open ? host.Cfg() / open : Path()};
  }
  static std::vector<std::string> Names(const CDlgInformesList& list) {
    std::vector<std::string> names;
    for (const ListedReport& row : list.Rows()) names.push_back(ToUtf8(row.name));
    return names;
  }
  bool Has(const char* file) const { return std::filesystem::exists(host.Cfg() / file); }

  Hands hands;
};

TEST_F(ReportList, IsOrderedFilteredAndBeginsWithTheOpenReport) {
  CDlgInformesList list = List(L"Water", "A.Water.xrpt");
  EXPECT_THAT(Names(list), ElementsAre("gas", "Gas", "Water"));
  EXPECT_THAT(list.Selection(), ElementsAre(2u));
  list.OrderList(ReportColumn::Name);
  EXPECT_THAT(Names(list), ElementsAre("Water", "Gas", "gas"));
  EXPECT_THAT(list.Selection(), ElementsAre(0u)) << "stays with its report";
  list.SetFilter(L" gas  c. ");
  EXPECT_THAT(Names(list), ElementsAre("Gas"));
  EXPECT_EQ(list.Chosen(), L"Gas") << "what is hidden is not chosen";
  list.SetFilter(L"nothing");
  EXPECT_EQ(list.Chosen(), L"");
  EXPECT_FALSE(list.UpdateButtons().open);
}

TEST_F(ReportList, TellsReportsOfOneNameApart) {
  host.WriteCfg("D.Water.xrpt", "<reportLayout><id>D</id><name>Water</name></reportLayout>");
  host.WriteCfg("bare.xrpt", "<reportLayout/>");
  CDlgInformesList list = List(L"Water", "A.Water.xrpt");
  EXPECT_EQ(list.Chosen(), L"Water") << "the open one again";
  list.SetFilter(L"D.Water");
  ASSERT_TRUE(list.Rows()[0].sharesName);
  EXPECT_FALSE(list.Rows()[0].isFound);
  EXPECT_EQ(Path(ToUtf8(list.Chosen())), host.Cfg() / "D.Water");
  list.SetFilter(L"bare");
  EXPECT_EQ(list.Chosen(), L"bare");
  EXPECT_EQ(list.Rows()[0].id, L"");
}

TEST_F(ReportList, RenamesTheFileAndNothingElseInIt) {
  host->settings->SetRegistryText(kLastReportValue, L"Water");
  CDlgInformesList list = List(L"Water");
  hands.name = L"Steam";
  EXPECT_TRUE(list.OnRename());
  EXPECT_EQ(list.Chosen(), L"Steam");
  EXPECT_FALSE(Has("A.Water.xrpt"));
  std::string expected = kWater;
  expected.replace(expected.find("Water"), 5, "Steam");
  EXPECT_EQ(TestHost::ReadFile(host.Cfg() / "A.Steam.xrpt"), expected);
  EXPECT_EQ(host->settings->RegistryText(kLastReportValue), L"Steam");
  RVReport report;
  report.Load(L"Steam");
  EXPECT_EQ(report.id, L"A") << "the same report as before";
}

TEST_F(ReportList, DuplicatesUnderAFreeNameWithAnIdentifierOfItsOwn) {
  CDlgInformesList list = List(L"Water");
  hands.name = L"Water_1";
  EXPECT_TRUE(list.OnDuplicate());
  EXPECT_THAT(hands.proposals, ElementsAre("Water_1"));
  RVReport copy;
  ASSERT_TRUE(copy.Load(list.Chosen()).loaded);
  EXPECT_EQ(copy.name, L"Water_1");
  EXPECT_NE(copy.id, L"A");
  EXPECT_EQ(copy.File().filename().string(), ToUtf8(copy.id) + ".Water_1.xrpt");
}

TEST_F(ReportList, RefusesNamesThatCannotBeOrAreTaken) {
  CDlgInformesList list = List(L"Water");
  for (const wchar_t* name : {L"", L"../up", L"Gas", L"gas"}) {
    hands.name = name;
    EXPECT_FALSE(list.OnRename()) << ToUtf8(name);
    EXPECT_FALSE(list.OnDuplicate()) << ToUtf8(name);
  }
  EXPECT_EQ(hands.failures.size(), 8u);
  EXPECT_EQ(TestHost::ReadFile(host.Cfg() / "A.Water.xrpt"), kWater);
  EXPECT_EQ(Names(list).size(), 3u);
}

TEST_F(ReportList, DeletesAfterAskingAndNeverWhatIsOpen) {
  CDlgInformesList list = List(L"Water", "A.Water.xrpt");
  EXPECT_FALSE(list.UpdateButtons().remove);
  EXPECT_FALSE(list.UpdateButtons().rename);
  EXPECT_FALSE(list.OnDelete());
  list.Select({0, 1, 2});
  EXPECT_FALSE(list.OnDelete());
  EXPECT_THAT(hands.questions, IsEmpty());
  list.Select({0, 1});
  hands.answer = 1;
  EXPECT_FALSE(list.OnDelete());
  EXPECT_TRUE(Has("B.gas.xrpt"));
  hands.answer = 0;
  EXPECT_TRUE(list.OnDelete());
  EXPECT_THAT(ToUtf8(hands.questions.back().detail), HasSubstr("C.Gas.xrpt"));
  EXPECT_THAT(Names(list), ElementsAre("Water"));
  EXPECT_THAT(list.Selection(), ElementsAre(0u));
}

TEST_F(ReportList, LeavesAloneWhatSomebodyElseHasOpen) {
  class Taken final : public LockService {
   public:
    LockState Take(const Path&) override { return {LockOutcome::Others, {L"ana", L"plant-7", 0}, {}}; }
    LockState TakeOver(const Path& file) override { return Take(file); }
    void Release(const Path&) override {}
    std::vector<Path> Beat() override { return {}; }
  };
  host->locks = std::make_unique<Taken>();
  CDlgInformesList list = List(L"Water");
  hands.name = L"Steam";
  EXPECT_FALSE(list.OnRename());
  EXPECT_FALSE(list.OnDelete());
  EXPECT_THAT(hands.failures, ElementsAre(HasSubstr("ana"), HasSubstr("plant-7")));
  EXPECT_TRUE(Has("A.Water.xrpt"));
  EXPECT_FALSE(Has("A.Steam.xrpt"));
}

}  // namespace
}  // namespace xrpt
