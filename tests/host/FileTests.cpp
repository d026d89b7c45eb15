#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <csignal>

#include "host/AtomicWrite.h"
#include "host/TemporaryFile.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr std::size_t kLimit = 1000;

// Root may write anywhere; these tests need somebody who may not.
class AsOrdinaryUser {
 public:
  AsOrdinaryUser() : wasRoot_(::geteuid() == 0 && ::seteuid(65534) == 0) {}
  ~AsOrdinaryUser() {
    if (wasRoot_ && ::seteuid(0) != 0) std::abort();
  }

 private:
  bool wasRoot_;
};

// No file may grow beyond so many bytes: a full disk, as a program sees it.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    ::getrlimit(RLIMIT_FSIZE, &former_);
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small = {bytes, former_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
  }
  ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &former_); }

 private:
  rlimit former_{};
};

class Files : public HostTest {
 protected:
  Files() { std::filesystem::permissions(host.Folder(), std::filesystem::perms::all); }
  std::string Reason(const Path& file, std::size_t limit = kLimit) {
    FileError error;
    const std::optional<std::string> bytes = host->files->Read(file, limit, &error);
    return bytes ? "read" : error.reason;
  }
  std::vector<std::string> NamesIn(const Path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
  }
  std::string RecoveredIn(const Path& folder) {
    const std::vector<Path> kept = host->files->List(folder, L".recovered");
    return kept.size() == 1 ? TestHost::ReadFile(kept[0]) : "files: " + std::to_string(kept.size());
  }
  Path Locked() {
    const Path folder = host.Folder() / "locked";
    TestHost::WriteFile(folder / "old.xrpt", "old");
    ::chmod((folder / "old.xrpt").c_str(), 0644);
    ::chmod(folder.c_str(), 0555);
    return folder;
  }
};

TEST_F(Files, SayWhyTheyCannotBeRead) {
  const Path secret = host.WriteCfg("secret", "x");
  ::chmod(secret.c_str(), 0);
  EXPECT_THAT(Reason(host.Cfg() / "none"), HasSubstr("No such file"));
  EXPECT_THAT(Reason(host.Cfg()), HasSubstr("directory"));
  const AsOrdinaryUser user;
  EXPECT_THAT(Reason(secret), HasSubstr("Permission denied"));
}

TEST_F(Files, AreReadUpToTheLimitAndNotOneByteMore) {
  const Path file = host.WriteCfg("ten", "0123456789");
  EXPECT_EQ(Reason(file, 10), "read");
  EXPECT_THAT(Reason(file, 9), HasSubstr("too large"));
  EXPECT_EQ(host->files->Read(host.WriteCfg("empty", ""), 0), "");
  EXPECT_EQ(Reason("/proc/self/status", 10), std::string("File too large")) << "a file that hides its size";
}

TEST_F(Files, WriteReplacesAllAndLeavesNothingElse) {
  const Path file = host.WriteCfg("report.xrpt", std::string(5000, 'x'));
  ::chmod(file.c_str(), 0640);
  ASSERT_TRUE(host->files->Write(file, std::string("n\0w", 3)));
  EXPECT_EQ(TestHost::ReadFile(file), std::string("n\0w", 3));
  EXPECT_THAT(NamesIn(host.Cfg()), ElementsAre("report.xrpt"));
  EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0640));
}

TEST_F(Files, WriteGoesThroughALink) {
  const Path target = host.WriteCfg("target.xrpt", "old");
  const Path link = host.Folder() / "link.xrpt";
  std::filesystem::create_symlink(target, link);
  ASSERT_TRUE(host->files->Write(link, "new"));
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(TestHost::ReadFile(target), "new");
}

TEST_F(Files, FullDiskKeepsTheOldFileAndLogsTheReason) {
  const Path file = host.WriteCfg("report.xrpt", "old");
  const FullDisk disk(100);
  EXPECT_FALSE(host->files->Write(file, std::string(5000, 'x')));
  EXPECT_EQ(TestHost::ReadFile(file), "old");
  EXPECT_THAT(NamesIn(host.Cfg()), ElementsAre("report.xrpt"));
  EXPECT_THAT(host.logger->Text(4), HasSubstr(file.string()));
  EXPECT_THAT(host.logger->Text(4), HasSubstr("File too large"));
}

TEST_F(Files, FailedWriteKeepsTheBytesBesideTheTarget) {
  const Path file = host.Cfg() / "report.xrpt";
  std::filesystem::create_directories(file);
  EXPECT_FALSE(host->files->Write(file, "unsaved"));
  EXPECT_EQ(TestHost::ReadFile(host.Cfg() / "report.xrpt.recovered"), "unsaved");
  EXPECT_THAT(host.logger->Text(4), HasSubstr("report.xrpt.recovered"));
  std::filesystem::remove(file);
  EXPECT_TRUE(host->files->Write(file, "saved"));
  EXPECT_THAT(NamesIn(host.Cfg()), ElementsAre("report.xrpt")) << "what was kept is stale once it is saved";
}

TEST_F(Files, LockedFolderKeepsTheBytesInTheStateFolder) {
  const Path folder = Locked();
  {
    const AsOrdinaryUser user;
    EXPECT_FALSE(host->files->Write(folder / "old.xrpt", "unsaved"));
    EXPECT_FALSE(host->files->Write(folder / "new.xrpt", "unsaved"));
  }
  EXPECT_EQ(TestHost::ReadFile(folder / "old.xrpt"), "old");
  EXPECT_THAT(NamesIn(folder), ElementsAre("old.xrpt"));
  EXPECT_EQ(host->files->List(host.State() / "recovered", L".recovered").size(), 2u);
}

TEST_F(Files, WriteIntoAMissingFolderKeepsTheBytes) {
  EXPECT_FALSE(host->files->Write(host.Folder() / "none" / "report.xrpt", "unsaved"));
  EXPECT_EQ(RecoveredIn(host.State() / "recovered"), "unsaved");
}

TEST_F(Files, ReadOnlyFileIsNotReplacedBehindItsBack) {
  const Path file = host.WriteCfg("report.xrpt", "old");
  ::chmod(file.c_str(), 0444);
  ::chmod(host.Cfg().c_str(), 0777);
  const AsOrdinaryUser user;
  EXPECT_FALSE(host->files->Write(file, "new"));
  EXPECT_EQ(TestHost::ReadFile(file), "old");
}

// A test that waits here has failed, too.
TEST_F(Files, PipesAndDevicesAreNeitherReadNorWritten) {
  const Path pipe = host.Cfg() / "pipe";
  ::mkfifo(pipe.c_str(), 0666);
  for (const Path& special : {pipe, Path("/dev/null"), Path("/dev/full"), Path("/dev/zero")}) {
    EXPECT_THAT(Reason(special), HasSubstr("Not a plain file")) << special;
    EXPECT_THAT(host->files->Write(special, "x").reason, HasSubstr("Not a plain file")) << special;
    EXPECT_TRUE(std::filesystem::is_other(special)) << special;
  }
}

TEST_F(Files, WriteKeepsOwnerModeAndAttributes) {
  const Path file = host.WriteCfg("report.xrpt", "old");
  const bool hasOwner = ::geteuid() != 0 || ::chown(file.c_str(), 65534, 65533) == 0;
  ::chmod(file.c_str(), 02664);
  const bool hasAttribute = ::setxattr(file.c_str(), "user.note", "kept", 4, 0) == 0;
  struct stat before {};
  ::stat(file.c_str(), &before);
  ASSERT_TRUE(host->files->Write(file, "new"));
  struct stat after {};
  ::stat(file.c_str(), &after);
  EXPECT_NE(after.st_ino, before.st_ino) << "replaced, not overwritten";
  EXPECT_EQ(std::tuple(after.st_uid, after.st_gid, after.st_mode),
            std::tuple(before.st_uid, before.st_gid, before.st_mode));
  char value[8] = {};
  EXPECT_TRUE(!hasAttribute || ::getxattr(file.c_str(), "user.note", value, sizeof value) == 4);
  EXPECT_TRUE(hasOwner);
}

// The file itself must stay, so it is written in place, with a copy beside it until that is done.
TEST_F(Files, ThatCannotBeReplacedAreWrittenInPlace) {
  const Path file = host.WriteCfg("report.xrpt", std::string(100, 'o'));
  std::filesystem::create_hard_link(file, host.Cfg() / "other name");
  const Path foreign = host.WriteCfg("foreign.xrpt", "old");
  ::chmod(foreign.c_str(), 0666);
  ::chmod(host.Cfg().c_str(), 0777);
  EXPECT_TRUE(host->files->Write(file, "new"));
  EXPECT_EQ(TestHost::ReadFile(host.Cfg() / "other name"), "new");
  struct stat owner {};
  ::stat(foreign.c_str(), &owner);
  {
    const AsOrdinaryUser user;
    EXPECT_TRUE(host->files->Write(foreign, "new"));
  }
  struct stat after {};
  ::stat(foreign.c_str(), &after);
  EXPECT_EQ(std::pair(after.st_uid, after.st_ino), std::pair(owner.st_uid, owner.st_ino));
  EXPECT_EQ(TestHost::ReadFile(foreign), "new");
  EXPECT_THAT(NamesIn(host.Cfg()), ElementsAre("foreign.xrpt", "other name", "report.xrpt"));
}

TEST_F(Files, FullDiskLeavesAFileOfSeveralNamesAsItWas) {
  const Path file = host.WriteCfg("report.xrpt", "old");
  std::filesystem::create_hard_link(file, host.Cfg() / "other name");
  const FullDisk disk(100);
  EXPECT_FALSE(host->files->Write(file, std::string(5000, 'x')));
  EXPECT_EQ(TestHost::ReadFile(file), "old");
}

TEST_F(Files, LeftoversAreClearedOnceNobodyNeedsThem) {
  TemporaryFile living;
  ASSERT_FALSE(living.Create(host.Cfg() / "report.xrpt", 0600));
  const Path dead = host.WriteCfg(".xrpt-4711-1.tmp", "half");
  const Path fresh = host.WriteCfg("a.xrpt.recovered", "yesterday's");
  const Path old = host.WriteCfg("b.xrpt.recovered", "last winter's");
  std::filesystem::last_write_time(old, std::filesystem::file_time_type::clock::now() - std::chrono::hours(31 * 24));
  host.WriteCfg("xrpt-notes.tmp", "not ours");
  EXPECT_THAT(host->files->ClearLeftovers(host.Cfg()), ::testing::UnorderedElementsAre(dead, old));
  EXPECT_EQ(NamesIn(host.Cfg()).size(), 3u);
  EXPECT_FALSE(living.RenameTo(host.Cfg() / "report.xrpt", true)) << "the one being written was left alone";
  EXPECT_TRUE(std::filesystem::exists(fresh));
}

TEST_F(Files, ListIsByNameAndOfPlainFilesOnly) {
  for (const char* name : {"b.xrpt", "a.xrpt", "c.XRPT", "d.xrpt.recovered"}) host.WriteCfg(name, "");
  std::filesystem::create_directories(host.Cfg() / "folder.xrpt");
  const auto list = host->files->List(host.Cfg(), L".xrpt");
  EXPECT_THAT(list, ElementsAre(host.Cfg() / "a.xrpt", host.Cfg() / "b.xrpt"));
  EXPECT_THAT(host->files->List(host.Cfg() / "none", L".xrpt"), IsEmpty());
}

TEST_F(Files, RenameAndRemoveNeverTakeAnotherFileOrAFolder) {
  const Path a = host.WriteCfg("a", "a");
  const Path b = host.WriteCfg("b", "b");
  EXPECT_FALSE(host->files->Rename(a, b));
  EXPECT_FALSE(host->files->Remove(host.Images())) << "an empty folder";
  EXPECT_TRUE(host->files->Rename(a, host.Cfg() / "c"));
  EXPECT_TRUE(host->files->Remove(b));
  EXPECT_FALSE(host->files->Remove(b));
  EXPECT_THAT(NamesIn(host.Cfg()), ElementsAre("c"));
}

TEST_F(Files, WriteOverAnExpectedVersionLeavesAnotherOneAlone) {
  const Path file = host.WriteCfg("a", "one");
  const FileVersion none;
  const FileVersion read(host->files->Stamp(file), "one");
  EXPECT_EQ(host->files->Write(file, "mine", &none).outcome, SaveOutcome::Changed) << "there is a file by now";
  const auto written = std::filesystem::last_write_time(file);
  host.WriteCfg("a", "two");
  std::filesystem::last_write_time(file, written);
  EXPECT_EQ(host->files->Write(file, "mine", &read).outcome, SaveOutcome::Changed) << "same size, same time";
  EXPECT_EQ(TestHost::ReadFile(file), "two");
  host.WriteCfg("a", "one");
  EXPECT_TRUE(host->files->Write(file, "mine", &read)) << "written anew, with the same content";
  std::filesystem::remove(file);
  EXPECT_EQ(host->files->Write(file, "mine", &read).outcome, SaveOutcome::Changed) << "gone";
  EXPECT_TRUE(host->files->Write(file, "mine", &none));
}

TEST_F(Files, StampTellsAWriteFromNone) {
  const Path file = host.WriteCfg("a", "one");
  const FileStamp before = host->files->Stamp(file);
  EXPECT_EQ(host->files->Stamp(file), before);
  host->files->Write(file, "four");
  EXPECT_NE(host->files->Stamp(file), before);
  EXPECT_FALSE(host->files->Stamp(host.Cfg() / "none").exists);
}

}  // namespace
}  // namespace xrpt
