#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>

#include "host/AtomicWrite.h"
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
  const Path pipe = host.Cfg() / "pipe";
  ::mkfifo(pipe.c_str(), 0666);
  EXPECT_THAT(Reason(host.Cfg() / "none"), HasSubstr("No such file"));
  EXPECT_THAT(Reason(host.Cfg()), HasSubstr("directory"));
  EXPECT_NE(Reason(pipe), "read");
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

TEST_F(Files, DeviceIsWrittenToAndNeverReplaced) {
  EXPECT_FALSE(host->files->Write("/dev/full", "x"));
  EXPECT_THAT(host.logger->Text(4), HasSubstr("No space left"));
  EXPECT_TRUE(host->files->Write("/dev/null", "x"));
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
  EXPECT_EQ(RecoveredIn(host.State() / "recovered"), "x");
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
