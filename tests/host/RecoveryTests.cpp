// Unsaved work: kept out of sight, found after a crash, gone once decided about.
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <csignal>

#include "host/RecoveryStore.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::IsEmpty;

class Recovery : public HostTest {
 protected:
  // A session that keeps these texts under 1, 2, ... and is killed.
  void Crash(const std::vector<std::string>& texts) {
    const pid_t child = ::fork();
    if (child == 0) {
      RecoveryStore store(*host, host.State());
      int number = 0;
      for (const std::string& text : texts) store.Keep(++number, Origin(text), text);
      store.Wait();
      ::raise(SIGKILL);
    }
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
  }
  Recovered Origin(const std::string& name) { return {{}, host.Cfg() / (name + ".xrpt"), FromUtf8(name), 0}; }
  std::vector<Path> FilesInState() {
    std::vector<Path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(host.State())) {
      if (entry.is_regular_file()) files.push_back(entry.path());
    }
    return files;
  }
};

TEST_F(Recovery, WhatACrashLeftIsOfferedUntilItIsDecidedAbout) {
  Crash({"one", "two"});
  Crash({"three"});
  {
    RecoveryStore store(*host, host.State());
    const std::vector<Recovered> left = store.Left();
    ASSERT_EQ(left.size(), 3u);
    for (const Recovered& one : left) {
      EXPECT_EQ(TestHost::ReadFile(one.text), ToUtf8(one.name));
      EXPECT_EQ(one.file, Origin(ToUtf8(one.name)).file);
      EXPECT_NEAR(static_cast<double>(one.since), static_cast<double>(std::time(nullptr)), 60.0);
    }
    EXPECT_THAT(RecoveryStore(*host, host.State()).Left(), IsEmpty()) << "offered to one session only";
    store.Discard(left[0]);
    EXPECT_EQ(store.Left().size(), 2u);
  }
  RecoveryStore next(*host, host.State());
  for (const Recovered& one : next.Left()) next.Discard(one);
  EXPECT_THAT(FilesInState(), IsEmpty());
}

TEST_F(Recovery, OfALivingSessionIsNobodyElsesAndGoesWithASave) {
  RecoveryStore store(*host, host.State());
  store.Keep(1, Origin("one"), "first");
  store.Keep(1, Origin("one"), "second");
  EXPECT_TRUE(store.Wait());
  EXPECT_THAT(RecoveryStore(*host, host.State()).Left(), IsEmpty());
  std::vector<Path> files = FilesInState();
  EXPECT_EQ(std::count_if(files.begin(), files.end(), [](const Path& f) { return TestHost::ReadFile(f) == "second"; }),
            1);
  for (const Path& file : files) {
    EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0600)) << file;
    EXPECT_EQ(std::filesystem::status(file.parent_path()).permissions(), std::filesystem::perms(0700)) << file;
  }
  store.Drop(1);
  EXPECT_TRUE(store.Wait());
  files = FilesInState();
  EXPECT_THAT(std::count_if(files.begin(), files.end(), [](const Path& f) { return f.extension() == ".xrpt"; }), 0);
}

TEST_F(Recovery, AnOrderlyEndWritesWhatIsStillWaitingAndLeavesNothingElse) {
  { RecoveryStore(*host, host.State()).Keep(1, Origin("kept"), "kept"); }
  RecoveryStore store(*host, host.State());
  const std::vector<Recovered> left = store.Left();
  ASSERT_EQ(left.size(), 1u);
  EXPECT_EQ(TestHost::ReadFile(left[0].text), "kept");
  store.Discard(left[0]);
  {
    RecoveryStore saved(*host, host.State());
    saved.Keep(1, Origin("x"), "x");
    saved.Drop(1);
  }
  EXPECT_THAT(FilesInState(), IsEmpty());
}

TEST_F(Recovery, ThatCannotBeWrittenIsToldOnce) {
  TestHost::WriteFile(host.State() / "recovery", "in the way");
  RecoveryStore store(*host, host.State());
  for (int i = 0; i < 3; ++i) {
    store.Keep(1, Origin("x"), "x");
    EXPECT_EQ(store.Wait().outcome, SaveOutcome::Failed);
  }
  const std::string log = host.logger->Text(3);
  EXPECT_EQ(std::count(log.begin(), log.end(), '\n'), 1) << log;
}

TEST_F(Recovery, OfAgeIsClearedAway) {
  Crash({"old", "young"});
  for (const Path& file : FilesInState()) {
    if (file.extension() == ".xrpt" && TestHost::ReadFile(file) == "young") continue;
    std::filesystem::last_write_time(file, std::filesystem::file_time_type::clock::now() - std::chrono::hours(31 * 24));
  }
  host->files->ClearLeftovers(host.State());
  RecoveryStore store(*host, host.State());
  const std::vector<Recovered> left = store.Left();
  ASSERT_EQ(left.size(), 1u);
  EXPECT_EQ(TestHost::ReadFile(left[0].text), "young");
}

}  // namespace
}  // namespace xrpt
