// The check beside the editor with its thread really running: it finds what a check at once finds, follows a report
// that changes meanwhile, and who edits never waits.
#include <chrono>
#include <semaphore>
#include <thread>

#include "formulas/FormulaTable.h"
#include "formulas/checks/BackgroundCheck.h"
#include "formulas/checks/OpenReportCheck.h"
#include "model/RVCardFormule.h"
#include "support/CheckedReport.h"

namespace xrpt {
namespace {

// Stands still at the first date it is asked about, until it is let go.
class StuckDates final : public DateService {
 public:
  StuckDates(std::binary_semaphore& reached, std::binary_semaphore& goOn) : reached_(reached), goOn_(goOn) {}
  bool String2DateTime(std::wstring_view, RVDateTime&) const override {
    if (!isFirst_.exchange(false)) return false;
    reached_.release();
    goOn_.acquire();
    return false;
  }

 private:
  std::binary_semaphore& reached_;
  std::binary_semaphore& goOn_;
  mutable std::atomic<bool> isFirst_ = true;
};

class BackgroundCheckTest : public ReportCheckTest {
 protected:
  void Load(const ReportText& text) {
    XmlDocument document;
    ASSERT_TRUE(document.Parse(text.Xml()));
    report.SetTemplate(document.Root());
  }
  void Wait(const BackgroundCheck& check) {
    for (int i = 0; i < 60000 && !check.IsDone(); ++i) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    ASSERT_TRUE(check.IsDone());
  }
  RVCardFormule& Edit(std::size_t index) { return dynamic_cast<RVCardFormule&>(report.pages[0]->cards.Edit(index)); }
  static std::string Many(int count) {
    std::string cards;
    for (int i = 0; i < count; ++i) cards += Formule("[MAIN.P] + " + std::to_string(i), "c" + std::to_string(i));
    return cards;
  }

  RVReport report{*host};
  std::atomic<int> told{0};
};

TEST_F(BackgroundCheckTest, TellsWhatIsNewAndOnlyThen) {
  Load({Formule("") + Formule("1", "c2")});
  BackgroundCheck check(*host, CheckChoice::All(), [this] { ++told; });
  EXPECT_TRUE(check.IsDone());
  check.Check(report);
  Wait(check);
  auto found = check.Take();
  ASSERT_TRUE(found);
  ASSERT_EQ(found->size(), 1u);
  EXPECT_EQ(found->at(0).finding.code->name, L"FORMULECTRL_FORMULE_EMPTY");
  EXPECT_EQ(found->at(0).card, report.pages[0]->cards[0].Key());
  EXPECT_FALSE(check.Take()) << "taken once";

  Edit(1).value = L"2";
  check.Check(report);
  Wait(check);
  EXPECT_FALSE(check.Take()) << "nothing new";
  EXPECT_EQ(told, 1);
  EXPECT_EQ(check.CardsChecked(), 3u);
  check.Check(report);
  EXPECT_TRUE(check.IsDone()) << "a report as it was is no work";

  Edit(0).value = L"1";
  check.Check(report);
  Wait(check);
  found = check.Take();
  ASSERT_TRUE(found);
  EXPECT_TRUE(found->empty());
}

TEST_F(BackgroundCheckTest, AnEditOfOneCardOfManyChecksOne) {
  Load({Many(10000)});
  BackgroundCheck check(*host, CheckChoice::All(), [this] { ++told; });
  check.Check(report);
  Wait(check);
  EXPECT_EQ(check.CardsChecked(), 10000u);
  Edit(4711).value = L"1 +";
  check.Check(report);
  Wait(check);
  EXPECT_EQ(check.CardsChecked(), 10001u);
  const auto found = check.Take();
  ASSERT_TRUE(found);
  ASSERT_EQ(found->size(), 1u);
  EXPECT_EQ(found->at(0).finding.place.card, 4711);
}

// Changes follow each other faster than the check comes along; what it says in the end is about the last.
TEST_F(BackgroundCheckTest, FollowsAReportThatGoesOnChanging) {
  Load({Many(500)});
  BackgroundCheck check(*host, CheckChoice::All(), [this] { ++told; });
  for (int round = 0; round < 200; ++round) {
    Edit(static_cast<std::size_t>(round * 7 % 500)).value = round % 3 ? L"1 +" : L"1";
    if (round % 20 == 0) report.pages[0]->cards.MoveToFront({static_cast<std::size_t>(round)});
    if (round % 50 == 0) report.formules = FormulasDocument(kFormulesRoot, {{L"A", std::to_wstring(round)}});
    check.Check(report);
    if (round % 5 == 0) check.Take();
  }
  Wait(check);
  check.CheckAfresh(report);
  Wait(check);
  OpenReportCheck atOnce(*host);
  const ReportSnapshot now(report);
  atOnce.Look(now);
  atOnce.Work();
  BackgroundCheck second(*host, CheckChoice::All(), [] {});
  second.Check(report);
  Wait(second);
  const auto found = second.Take();
  ASSERT_TRUE(found);
  std::vector<Finding> findings;
  for (const Problem& problem : *found) findings.push_back(problem.finding);
  EXPECT_EQ(findings, atOnce.Findings());
}

TEST_F(BackgroundCheckTest, WhoEditsDoesNotWait) {
  std::binary_semaphore reached(0), goOn(0);
  host->dates = std::make_unique<StuckDates>(reached, goOn);
  Load({"<date><id>d</id></date>" + Formule("", "f")});
  BackgroundCheck check(*host, CheckChoice::AllHost(), [this] { ++told; });
  check.Check(report);
  reached.acquire();
  for (const wchar_t* value : {L"1", L"1 +", L"2"}) {
    Edit(1).value = value;
    check.Check(report);
    EXPECT_FALSE(check.Take());
    EXPECT_FALSE(check.IsDone());
  }
  goOn.release();
  Wait(check);
  const auto found = check.Take();
  ASSERT_TRUE(found);
  ASSERT_EQ(found->size(), 1u) << "the formula is in order by now";
  EXPECT_EQ(found->at(0).finding.code->name, L"DATECTRL_DATE_ERROR");
  EXPECT_EQ(told, 1) << "of what was overtaken nothing is told";
}

TEST_F(BackgroundCheckTest, LooksAgainAtWhatLiesOutsideTheReport) {
  Load({"<staticImage><id>i</id><image><imageId>late</imageId><imagePath>./</imagePath></image></staticImage>"});
  BackgroundCheck check(*host, CheckChoice::AllHost(), [this] { ++told; });
  check.Check(report);
  Wait(check);
  EXPECT_EQ(check.Take().value().size(), 1u);
  TestHost::WriteFile(host.Images() / "late.img", "");
  check.CheckAfresh(report);
  Wait(check);
  EXPECT_EQ(check.Take().value().size(), 0u);
}

// Handing in, taking and ending cost no more than copying pointers, however much there is to check.
TEST_F(BackgroundCheckTest, EndsInTheMiddle) {
  Load({Many(20000)});
  auto check = std::make_unique<BackgroundCheck>(*host, CheckChoice::All(), [this] { ++told; });
  check->Check(report);
  check.reset();
  EXPECT_EQ(told, 0);
}

}  // namespace
}  // namespace xrpt
