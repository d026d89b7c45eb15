// Report locks: who has a report open, what a crash leaves, who wins.
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <csignal>

#include "host/FileLocks.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

class Locks : public HostTest {
 protected:
  Path file = host.WriteCfg("A.Energy.xrpt", "x");
  Path lock = LockFileOf(file);
  FileLocks mine;
  FileLocks theirs;

  // The lock as another machine would have left it.
  void MakeForeign() {
    std::string text = TestHost::ReadFile(lock);
    const std::size_t boot = text.find("boot=");
    text.replace(boot, text.find('\n', boot) - boot, "boot=elsewhere");
    std::filesystem::remove(lock);
    TestHost::WriteFile(lock, text);
  }
  void Age(std::chrono::seconds age) {
    std::filesystem::last_write_time(lock, std::filesystem::file_time_type::clock::now() - age);
  }
};

TEST_F(Locks, SayWhoHasTheReportOpenAndSinceWhen) {
  EXPECT_EQ(mine.Take(file).outcome, LockOutcome::Mine);
  EXPECT_EQ(mine.Take(file).outcome, LockOutcome::Mine) << "twice is once";
  const LockState state = theirs.Take(file);
  EXPECT_EQ(state.outcome, LockOutcome::Others);
  EXPECT_FALSE(state.holder.user.empty());
  EXPECT_FALSE(state.holder.machine.empty());
  EXPECT_NEAR(static_cast<double>(state.holder.since), static_cast<double>(std::time(nullptr)), 60.0);
  const Path link = host.Folder() / "link.xrpt";
  std::filesystem::create_symlink(file, link);
  EXPECT_EQ(theirs.Take(link).outcome, LockOutcome::Others) << "the same report by another way";
  mine.Release(file);
  EXPECT_EQ(theirs.Take(file).outcome, LockOutcome::Mine);
  theirs.Release(file);
  EXPECT_FALSE(std::filesystem::exists(lock));
}

TEST_F(Locks, TakenOverAreTheOthersWhoLearnsOfItAndLeavesThemAlone) {
  mine.Take(file);
  EXPECT_TRUE(mine.Beat().empty());
  EXPECT_EQ(theirs.TakeOver(file).outcome, LockOutcome::Mine);
  EXPECT_EQ(mine.Beat(), std::vector<Path>{file});
  mine.Release(file);
  EXPECT_EQ(mine.Take(file).outcome, LockOutcome::Others) << "still theirs";
}

TEST_F(Locks, OfAProcessThatWasKilledAreNobodys) {
  const pid_t child = ::fork();
  if (child == 0) {
    FileLocks locks;
    locks.Take(file);
    ::raise(SIGKILL);
  }
  ASSERT_EQ(::waitpid(child, nullptr, 0), child);
  ASSERT_TRUE(std::filesystem::exists(lock));
  EXPECT_EQ(mine.Take(file).outcome, LockOutcome::Mine) << "at once";
}

TEST_F(Locks, OfAnotherMachineHoldAsLongAsItSaysItIsThere) {
  mine.Take(file);
  MakeForeign();
  EXPECT_EQ(theirs.Take(file).outcome, LockOutcome::Others);
  Age(FileLocks::kSilence / 2);
  EXPECT_EQ(theirs.Take(file).outcome, LockOutcome::Others);
  Age(FileLocks::kSilence + std::chrono::seconds(10));
  EXPECT_EQ(theirs.Take(file).outcome, LockOutcome::Mine);
}

TEST_F(Locks, FromTheFutureDoNotHoldForEver) {
  mine.Take(file);
  MakeForeign();
  Age(-std::chrono::hours(24 * 365));
  EXPECT_EQ(theirs.Take(file).outcome, LockOutcome::Mine);
}

TEST_F(Locks, BeatKeepsThemYoung) {
  mine.Take(file);
  Age(std::chrono::hours(1));
  mine.Beat();
  EXPECT_LT(std::time(nullptr) - host->files->Stamp(lock).modified / 1'000'000'000, 60);
}

TEST_F(Locks, CannotBeHadWhereNothingCanBeWritten) {
  const LockState state = mine.Take(host.Folder() / "none" / "A.x.xrpt");
  EXPECT_EQ(state.outcome, LockOutcome::NotToBeHad);
  EXPECT_FALSE(state.reason.empty());
}

TEST_F(Locks, AbandonedAreLeftovers) {
  mine.Take(file);
  const Path other = host.WriteCfg(".editor.lock", "another program's");
  EXPECT_TRUE(host->files->ClearLeftovers(host.Cfg()).empty());
  MakeForeign();
  Age(std::chrono::hours(1));
  EXPECT_EQ(host->files->ClearLeftovers(host.Cfg()), std::vector<Path>{lock});
  EXPECT_TRUE(std::filesystem::exists(other));
}

}  // namespace
}  // namespace xrpt
