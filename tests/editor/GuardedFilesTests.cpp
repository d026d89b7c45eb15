// Files under the frame's guard: nothing is lost or written over unasked, and what is not saved survives a crash.
#include <gmock/gmock.h>
#include <sys/wait.h>

#include <csignal>
#include <random>
#include <thread>

#include "editor/FileQuestions.h"
#include "editor/RVEditControlWnd.h"
#include "editor/ReportDifferences.h"
#include "host/FileLocks.h"
#include "host/RecoveryStore.h"
#include "platform/FileTexts.h"
#include "platform/Text.h"
#include "support/AnsweringPort.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

class GuardedFiles : public HostTest {
 protected:
  static std::string Text(const std::string& name, const std::string& more = "<page/>") {
    return "<reportLayout><id>ID-" + name + "</id><name>" + name + "</name>" + more + "</reportLayout>";
  }
  Path Write(const std::string& name) { return host.WriteCfg("ID-" + name + "." + name + ".xrpt", Text(name)); }
  std::vector<std::string> Files() {
    std::vector<std::string> names;
    for (const Path& file : host->files->List(host.Cfg(), L".xrpt")) names.push_back(file.filename().string());
    return names;
  }
  static bool Holds(const Path& file, const char* text) {
    return TestHost::ReadFile(file).find(text) != std::string::npos;
  }

  AnsweringPort port;
  RVEditControlWnd frame{port, EditingOptions::Comfort()};
};

TEST_F(GuardedFiles, WhatCannotBeOpenedLeavesTheOpenReportAloneAndSaysWhy) {
  Write("one");
  frame.Setup(L"one");
  frame.SetModified(true);
  const std::pair<const char*, const char*> rows[] = {
      {"<reportLayout><page>", "damaged"}, {"<svg/>", "no report"}, {"", "damaged"}};
  for (const auto& [bytes, reason] : rows) {
    const LoadResult result = frame.OpenFile(host.WriteCfg("bad.xrpt", bytes), nullptr);
    EXPECT_THAT(ToUtf8(TextOf(result)), HasSubstr("bad.xrpt")) << bytes;
    EXPECT_THAT(ToUtf8(TextOf(result)), HasSubstr(reason)) << bytes;
  }
  EXPECT_THAT(ToUtf8(TextOf(frame.Setup(L"missing"))), HasSubstr("No such file"));
  EXPECT_EQ(frame.Report().name, L"one");
  EXPECT_TRUE(frame.IsModified());
  EXPECT_EQ(port.opened, 5);
}

TEST_F(GuardedFiles, AFailedSaveIsToldAndTheWorkCanBeSavedElsewhere) {
  frame.AddPage();
  port.name = std::wstring(300, L'x');
  EXPECT_FALSE(frame.Save());
  EXPECT_EQ(frame.LastSave().outcome, SaveOutcome::Failed);
  EXPECT_EQ(port.failed, 1);
  EXPECT_TRUE(frame.IsModified());
  port.decisions = {text::kSaveAnswer};
  EXPECT_FALSE(frame.NewReport()) << "what the user wanted saved is not let go of";
  EXPECT_EQ(frame.PageCount(), 2u);
  EXPECT_TRUE(frame.SaveAs(L"short"));
  EXPECT_FALSE(frame.IsModified());
}

TEST_F(GuardedFiles, UnsavedChangesAreAskedAboutByNameWithThreeAnswers) {
  const Path file = Write("one");
  frame.Setup(L"one");
  frame.SetModified(true);
  port.decisions = {text::kCancelAnswer};
  EXPECT_FALSE(frame.NewReport());
  EXPECT_EQ(frame.Report().name, L"one");
  EXPECT_THAT(ToUtf8(port.questions.back().text), HasSubstr("one"));
  EXPECT_EQ(port.questions.back().answers.back(), text::kCancelAnswer);
  port.decisions = {text::kDontSave};
  EXPECT_TRUE(frame.MayClose());
  EXPECT_EQ(TestHost::ReadFile(file), Text("one"));
  port.decisions = {text::kSaveAnswer};
  EXPECT_TRUE(frame.NewReport());
  EXPECT_NE(TestHost::ReadFile(file), Text("one"));
}

TEST_F(GuardedFiles, ANamelessReportIsNamedByTheUserFirst) {
  Write("report1");
  frame.AddPage();
  port.name = std::nullopt;
  ASSERT_TRUE(frame.Save());
  EXPECT_EQ(frame.Report().name, L"report2") << "as proposed";
}

TEST_F(GuardedFiles, WhatOthersWroteIsReplacedOnlyWhenTheUserSaysSo) {
  const Path file = Write("one");
  frame.Setup(L"one");
  frame.AddPage();
  TestHost::WriteFile(file, Text("one", "<page/><page/><page/>"));
  port.decisions = {text::kShowDifferences, text::kCancelAnswer};
  EXPECT_FALSE(frame.Save());
  EXPECT_EQ(port.compared, 1);
  EXPECT_EQ(port.failed, 0) << "cancelling is no failure";
  EXPECT_TRUE(frame.IsModified());
  EXPECT_EQ(TestHost::ReadFile(file), Text("one", "<page/><page/><page/>"));
  port.decisions = {text::kOverwrite};
  EXPECT_TRUE(frame.Save());
  EXPECT_TRUE(Holds(file, "<revision>"));
  std::filesystem::remove(file);
  frame.AddPage();
  port.decisions = {text::kSaveAnswer};
  EXPECT_TRUE(frame.Save()) << "anew where it was removed";
  EXPECT_EQ(port.asked.back(), text::kRemovedOnDisk);
  frame.AddPage();
  EXPECT_TRUE(frame.Save());
  EXPECT_EQ(port.asked.back(), text::kRemovedOnDisk) << "nothing to ask any more";
}

TEST_F(GuardedFiles, AReportOfTheSameNameIsNeitherReplacedNorHiddenUnasked) {
  const Path older = host.WriteCfg("0.one.xrpt", Text("one"));
  frame.AddPage();
  port.name = L"one";
  port.decisions = {text::kCancelAnswer};
  EXPECT_FALSE(frame.Save());
  EXPECT_EQ(port.asked.back(), text::kOverwriteAnother);
  EXPECT_THAT(Files(), ElementsAre("0.one.xrpt"));
  port.decisions = {text::kOverwrite};
  EXPECT_TRUE(frame.Save());
  EXPECT_THAT(Files(), ElementsAre("0.one.xrpt"));
  EXPECT_TRUE(Holds(older, "<revision>"));
}

TEST_F(GuardedFiles, AReportOpenedByPathGoesBackThere) {
  const Path file = TestHost::WriteFile(host.Folder() / "elsewhere" / "copy.xrpt", Text("one"));
  frame.OpenFile(file, nullptr);
  frame.AddPage();
  EXPECT_TRUE(frame.Save());
  EXPECT_THAT(Files(), IsEmpty());
  EXPECT_TRUE(Holds(file, "<revision>"));
  const Path other = host.Folder() / "elsewhere" / "other.xrpt";
  EXPECT_TRUE(frame.SaveAsFile(other));
  EXPECT_EQ(frame.Report().File(), other);
  EXPECT_EQ(frame.Report().name, L"other");
}

TEST_F(GuardedFiles, LostStylesAreAskedAboutOnce) {
  const Path file = host.WriteCfg("A.one.xrpt", Text("one", "<page><label><style>GONE</style></label></page>"));
  frame.Setup(L"one");
  frame.AddPage();
  port.decisions = {text::kCancelAnswer};
  EXPECT_FALSE(frame.Save());
  EXPECT_TRUE(Holds(file, "GONE"));
  port.decisions = {text::kSaveAnyway};
  EXPECT_TRUE(frame.Save());
  frame.AddPage();
  EXPECT_TRUE(frame.Save());
  EXPECT_THAT(port.asked, ElementsAre(text::kLoseStyles, text::kLoseStyles));
}

TEST_F(GuardedFiles, WhoHasAReportOpenIsNamedAndKeepsIt) {
  const Path file = Write("one");
  FileLocks others;
  others.Take(file);
  port.decisions = {text::kCancelAnswer};
  EXPECT_TRUE(frame.Setup(L"one").cancelled);
  EXPECT_EQ(frame.Report().name, L"");
  port.decisions = {text::kOpenReadOnly};
  frame.Setup(L"one");
  EXPECT_TRUE(frame.IsReadOnly());
  frame.AddPage();
  port.decisions = {text::kCancelAnswer};
  EXPECT_FALSE(frame.Save());
  EXPECT_EQ(TestHost::ReadFile(file), Text("one"));
  port.decisions = {text::kTakeOver};
  EXPECT_TRUE(frame.Save());
  EXPECT_FALSE(frame.IsReadOnly());
  EXPECT_THAT(others.Beat(), ElementsAre(file));
  EXPECT_FALSE(frame.Beat());
  others.TakeOver(file);
  EXPECT_TRUE(frame.Beat());
  EXPECT_TRUE(frame.IsReadOnly());
  EXPECT_TRUE(frame.NewReport());
  EXPECT_FALSE(frame.IsReadOnly());
}

TEST_F(GuardedFiles, TheLockGoesWithTheReport) {
  const Path one = Write("one");
  const Path two = Write("two");
  FileLocks others;
  frame.Setup(L"one");
  EXPECT_EQ(others.Take(one).outcome, LockOutcome::Others);
  frame.Setup(L"two");
  EXPECT_EQ(others.Take(one).outcome, LockOutcome::Mine);
  EXPECT_EQ(others.Take(two).outcome, LockOutcome::Others);
  frame.SaveAs(L"three");
  EXPECT_EQ(others.Take(two).outcome, LockOutcome::Mine);
  EXPECT_EQ(others.Take(frame.Report().File()).outcome, LockOutcome::Others);
}

// What a session of two pages more leaves when it is killed.
class Crashed : public GuardedFiles {
 protected:
  void Crash(const wchar_t* report) {
    const pid_t child = ::fork();
    if (child == 0) {
      AnsweringPort quiet;
      RVEditControlWnd dying(quiet, EditingOptions::Comfort());
      if (report) dying.Setup(report);
      dying.AddPage();
      dying.AddPage();
      dying.KeepUnsaved();
      host->recovery->Wait();
      ::raise(SIGKILL);
    }
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
  }
};

TEST_F(Crashed, SessionsLeaveTheirWorkToTheNext) {
  const Path file = Write("one");
  Crash(L"one");
  Crash(nullptr);
  EXPECT_EQ(TestHost::ReadFile(file), Text("one")) << "never the user's own file";
  const std::vector<Recovered> left = host->recovery->Left();
  ASSERT_EQ(left.size(), 2u);
  for (const Recovered& work : left) {
    ASSERT_TRUE(frame.OpenRecovered(work).loaded);
    EXPECT_EQ(frame.PageCount(), 3u);
    EXPECT_TRUE(frame.IsModified());
    EXPECT_EQ(frame.Report().File(), work.file);
    EXPECT_TRUE(frame.Save());
  }
  EXPECT_TRUE(Holds(file, "<revision>"));
  EXPECT_THAT(Files(), UnorderedElementsAre("ID-one.one.xrpt", EndsWith(".report1.xrpt")));
  EXPECT_THAT(host->recovery->Left(), IsEmpty());
}

TEST_F(Crashed, WorkOpenedAgainIsKeptAgainAndGoneOnceDecided) {
  Crash(nullptr);
  const Recovered work = host->recovery->Left().at(0);
  port.decisions = {};
  frame.OpenRecovered(work);
  EXPECT_FALSE(std::filesystem::exists(work.text));
  const auto kept = [this] {
    host->recovery->Wait();
    int count = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(host.State()))
      count += entry.path().extension() == ".xrpt" ? 1 : 0;
    return count;
  };
  EXPECT_EQ(kept(), 1);
  port.decisions = {text::kDontSave};
  EXPECT_TRUE(frame.MayClose());
  EXPECT_EQ(kept(), 0);
}

// XRPT_KILLS sets another number of them.
TEST_F(Crashed, KillsWhileWorkIsKeptLeaveWholeReports) {
  const char* wanted = std::getenv("XRPT_KILLS");
  const int kills = wanted ? std::atoi(wanted) : 60;
  const Path file = Write("one");
  std::mt19937 random(7);
  int found = 0;
  for (int i = 0; i < kills; ++i) {
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    const pid_t child = ::fork();
    if (child == 0) {
      AnsweringPort quiet;
      RVEditControlWnd dying(quiet, EditingOptions::Comfort());
      dying.Setup(L"one");
      ::close(ready[1]);
      for (;;) {
        dying.AddPage();
        dying.KeepUnsaved();
        if (dying.PageCount() % 4 == 0) host->recovery->Wait();
      }
    }
    ::close(ready[1]);
    char none = 0;
    EXPECT_EQ(::read(ready[0], &none, 1), 0) << "until the child is ready";
    ::close(ready[0]);
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 30000));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    ASSERT_EQ(TestHost::ReadFile(file), Text("one"));
    RecoveryStore next(*host, host.State());
    for (const Recovered& work : next.Left()) {
      ++found;
      EXPECT_TRUE(RVReport().LoadFile(work.text).loaded) << TestHost::ReadFile(work.text).size();
      EXPECT_EQ(work.file, file);
      next.Discard(work);
    }
  }
  EXPECT_GT(found, 0);
  int left = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(host.State() / "recovery"))
    left += entry.is_regular_file() ? 1 : 0;
  EXPECT_EQ(left, 0) << "nothing is left of them";
}

TEST(ReportsDiffer, FieldByFieldInWordsOfThePanel) {
  TestHost host;
  const auto report = [&](const std::string& pages) {
    auto loaded = std::make_unique<RVReport>();
    loaded->LoadFile(host.WriteCfg("A.x.xrpt", "<reportLayout><id>A</id><name>x</name>" + pages + "</reportLayout>"));
    return loaded;
  };
  const std::string page = "<page><id>P</id><name>n</name>";
  const auto label = [](const char* text) {
    return "<label><id>1</id><text><textStr>" + std::string(text) + "</textStr></text></label>";
  };
  const auto left = report(page + label("old") + "<label><id>2</id></label></page>");
  const auto right = report(page + label("new") + "<date><id>3</id></date></page><page/>");
  std::size_t more = 0;
  EXPECT_THAT(DifferencesOf(*left, *left, 10, more), IsEmpty());
  const std::vector<Difference> all = DifferencesOf(*left, *right, 10, more);
  ASSERT_EQ(all.size(), 4u);
  EXPECT_EQ(all[0].onDisk, L"old");
  EXPECT_EQ(all[0].here, L"new");
  EXPECT_THAT(ToUtf8(all[0].where), HasSubstr("Page 1"));
  EXPECT_EQ(all[1].onDisk, L"") << "only here";
  EXPECT_EQ(all[2].here, L"") << "only on disk";
  EXPECT_EQ(DifferencesOf(*left, *right, 1, more).size(), 1u);
  EXPECT_EQ(more, 3u);
}

TEST(QuestionTexts, NamesWithPercentSignsStayAsTheyAre) {
  TestHost host;
  const SaveResult refused{SaveOutcome::Changed, host.WriteCfg("100%s.xrpt", "x"), {}, {}};
  EXPECT_THAT(ToUtf8(AskToReplace(refused).text), HasSubstr("100%s.xrpt"));
}

}  // namespace
}  // namespace xrpt
