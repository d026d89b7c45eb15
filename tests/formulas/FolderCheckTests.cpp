// Folders checked on several threads, and stopped.
#include <gmock/gmock.h>

#include "formulas/checks/FolderCheck.h"
#include "support/CheckedReport.h"

namespace xrpt {
namespace {

using Codes = std::vector<std::string>;

class FolderCheckTest : public ReportCheckTest {
 protected:
  FolderCheckTest() {
    check.folder = host.Cfg();
    check.done = [this](const ReportFindings& report, std::size_t through, std::size_t of) {
      for (const Finding& finding : report.findings) {
        found.push_back(report.file.filename().string() + " " + ToUtf8(finding.code->name));
      }
      EXPECT_LE(through, of);
      if (afterEach) afterEach(through);
    };
  }

  void Write(const std::string& file, const std::string& cards, const std::string& name) {
    ReportText report{cards};
    report.name = name;
    host.WriteCfg(file, report.Xml());
  }

  FolderCheck check;
  Codes found;
  std::function<void(std::size_t)> afterEach;
};

TEST_F(FolderCheckTest, AnyNumberOfThreadsFindsTheSameInTheSameOrder) {
  for (int i = 0; i < 200; ++i) {
    // Every third is much larger than the others, so that threads overtake each other.
    std::string cards = Formule("");
    for (int n = 0; i % 3 == 0 && n < 200; ++n) cards += Formule("1 + " + std::to_string(n));
    Write(std::to_string(1000 + i) + ".xrpt", cards, "n" + std::to_string(i));
  }
  CheckFolder(check);
  const Codes one = found;
  ASSERT_EQ(one.size(), 200u);
  EXPECT_THAT(one.front(), ::testing::HasSubstr("1000.xrpt"));
  for (const int jobs : {2, 7}) {
    found.clear();
    check.jobs = jobs;
    const FolderOutcome outcome = CheckFolder(check);
    EXPECT_EQ(outcome.done, 200u);
    EXPECT_FALSE(outcome.stopped);
    EXPECT_EQ(found, one) << jobs;
  }
}

TEST_F(FolderCheckTest, StopsSoonAndTellsWhatWasDone) {
  for (int i = 0; i < 300; ++i) Write(std::to_string(1000 + i) + ".xrpt", Formule(""), "n");
  for (const int jobs : {1, 3}) {
    std::atomic<bool> stop = false;
    found.clear();
    check.stop = &stop;
    check.jobs = jobs;
    afterEach = [&stop](std::size_t through) {
      if (through == 100) stop = true;
    };
    const FolderOutcome outcome = CheckFolder(check);
    EXPECT_TRUE(outcome.stopped);
    EXPECT_EQ(outcome.files, 300u);
    EXPECT_LE(outcome.done, found.size());
    EXPECT_LE(found.size() - outcome.done, static_cast<std::size_t>(jobs)) << "left in the middle";
    EXPECT_GE(outcome.done, 100u);
    EXPECT_LT(outcome.done, 300u);
  }
}

TEST_F(FolderCheckTest, ReportsThatShareAName) {
  Write("1.alike.xrpt", "", "alike");
  Write("2.alike.xrpt", "", "alike");
  Write("3.renamed.xrpt", "", "alike");
  Write("4.Alike.xrpt", "", "Alike");
  Write("5.alike2.xrpt", "", "alike2");
  check.choice = CheckChoice();
  check.choice.Add(L"REPORT_NAME_SHARED");
  CheckFolder(check);
  EXPECT_EQ(found, (Codes{"1.alike.xrpt REPORT_NAME_SHARED", "2.alike.xrpt REPORT_NAME_SHARED",
                          "3.renamed.xrpt REPORT_NAME_SHARED"}));
}

TEST_F(FolderCheckTest, OnlyWhatIsChosenIsTold) {
  Write("1.r.xrpt", Formule("", "") + "<conditioned/>", "r");
  check.choice = CheckChoice();
  EXPECT_FALSE(check.choice.Add(L"FORMULECTRL_FORMULE"));
  EXPECT_TRUE(check.choice.Add(L"FORMULECTRL_FORMULE_EMPTY"));
  EXPECT_FALSE(check.choice.HasAnyOfEditor());
  CheckFolder(check);
  EXPECT_EQ(found, Codes{"1.r.xrpt FORMULECTRL_FORMULE_EMPTY"});
  EXPECT_TRUE(check.choice.Add(L"all"));
  found.clear();
  CheckFolder(check);
  EXPECT_THAT(found, ::testing::Contains("1.r.xrpt CARD_WITHOUT_ID"));
}

}  // namespace
}  // namespace xrpt
