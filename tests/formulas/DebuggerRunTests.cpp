// The debugger on its own thread: over a folder as people leave it, watched from another thread, and stopped.
#include <sys/stat.h>
#include <semaphore>

#include <gmock/gmock.h>

#include "support/CheckedReport.h"

namespace xrpt {
namespace {

namespace fs = std::filesystem;
using Codes = std::vector<std::string>;

// The host's files, with a word before each report is read.
class WatchedFiles final : public FileService {
 public:
  explicit WatchedFiles(std::unique_ptr<FileService> files) : files_(std::move(files)) {}
  std::optional<std::string> Read(const Path& file, std::size_t limit, FileError* error) override {
    if (beforeReport && file.extension() == ".xrpt") beforeReport(file);
    return files_->Read(file, limit, error);
  }
  SaveResult Write(const Path& file, std::string_view bytes, const FileVersion* expected) override {
    return files_->Write(file, bytes, expected);
  }
  std::vector<Path> List(const Path& folder, std::wstring_view ending) override { return files_->List(folder, ending); }
  bool CreateFolder(const Path& folder) override { return files_->CreateFolder(folder); }
  bool Rename(const Path& from, const Path& to) override { return files_->Rename(from, to); }
  bool Remove(const Path& file) override { return files_->Remove(file); }
  FileStamp Stamp(const Path& file) override { return files_->Stamp(file); }

  std::function<void(const Path&)> beforeReport;

 private:
  std::unique_ptr<FileService> files_;
};

// No text is a date; says when it was asked.
class NoDates final : public DateService {
 public:
  explicit NoDates(std::function<void()> asked) : asked_(std::move(asked)) {}
  bool String2DateTime(std::wstring_view, RVDateTime&) const override {
    asked_();
    return false;
  }

 private:
  std::function<void()> asked_;
};

class DebuggerRunTest : public ReportCheckTest {
 protected:
  DebuggerRunTest() {
    auto files = std::make_unique<WatchedFiles>(std::move(host->files));
    watched = files.get();
    host->files = std::move(files);
  }

  void WriteReport(const std::string& file, const std::string& cards, const std::string& name = "N") {
    ReportText report{cards};
    report.name = name;
    host.WriteCfg(file, report.Xml());
  }

  // A run that is over.
  void Run() {
    RVReportDebugger debugger(*host);
    ASSERT_TRUE(debugger.start());
    debugger.wait();
    EXPECT_EQ(debugger.getState(), RVResourceDebugger::kFinished);
  }

  WatchedFiles* watched = nullptr;
};

TEST_F(DebuggerRunTest, AnEmptyOrMissingFolderHasNothingToReport) {
  Run();
  fs::remove_all(host.Cfg());
  Run();
  EXPECT_EQ(Records(), Codes());
}

TEST_F(DebuggerRunTest, TakesTheFoldersOwnReportsInOrder) {
  WriteReport("b.second.xrpt", Formule("", "b"));
  WriteReport("a.first.xrpt", Formule("", "a"));
  WriteReport("c.Ετήσια αναφορά 年報.xrpt", Formule("", "c"));
  WriteReport("d.xrpt", Formule("", "d"));
  WriteReport("e.xrpt.bak", Formule("", "no"));
  WriteReport("sub/f.xrpt", Formule("", "no"));
  Run();
  EXPECT_EQ(Records(), (Codes{"FORMULECTRL_FORMULE_EMPTY@a", "FORMULECTRL_FORMULE_EMPTY@b",
                              "FORMULECTRL_FORMULE_EMPTY@c", "FORMULECTRL_FORMULE_EMPTY@d"}));
}

TEST_F(DebuggerRunTest, SkipsWhatIsNoReport) {
  fs::create_directory(host.Cfg() / "a.folder.xrpt");
  fs::create_symlink(host.Cfg() / "nowhere", host.Cfg() / "b.broken.xrpt");
  ::mkfifo((host.Cfg() / "c.pipe.xrpt").c_str(), 0600);
  host.WriteCfg("d.malformed.xrpt", "<reportLayout><page>");
  host.WriteCfg("e.empty.xrpt", "");
  host.WriteCfg("f.bytes.xrpt", "<a>\xFF</a>");
  host.WriteCfg("g.other.xrpt", "<style/>");
  WriteReport("h.vanishing.xrpt", Formule(""));
  WriteReport("i.good.xrpt", Formule(""));
  fs::create_symlink(host.Cfg() / "i.good.xrpt", host.Cfg() / "j.link.xrpt");
  watched->beforeReport = [](const Path& file) {
    if (file.filename() == "h.vanishing.xrpt") fs::remove(file);
  };
  Run();
  EXPECT_EQ(Records(), Codes(2, "FORMULECTRL_FORMULE_EMPTY@c1"));
}

TEST_F(DebuggerRunTest, TellsAnotherThreadHowFarItIs) {
  for (const char* name : {"a", "b", "c", "d"}) WriteReport(std::string(name) + ".xrpt", Formule("1"), name);
  std::binary_semaphore reached(0), goOn(0);
  watched->beforeReport = [&](const Path& file) {
    if (file.filename() != "c.xrpt") return;
    reached.release();
    goOn.acquire();
  };
  RVReportDebugger debugger(*host);
  EXPECT_TRUE(debugger.stopped());
  ASSERT_TRUE(debugger.start());
  reached.acquire();
  EXPECT_EQ(debugger.getState(), RVResourceDebugger::kRunning);
  EXPECT_FALSE(debugger.stopped());
  EXPECT_FALSE(debugger.start()) << "one run at a time";
  EXPECT_DOUBLE_EQ(debugger.getPercentDone(), 50.0);
  EXPECT_EQ(debugger.getDescription(), L"Checking the report b");
  goOn.release();
  debugger.wait();
  EXPECT_DOUBLE_EQ(debugger.getPercentDone(), 100.0);
  EXPECT_TRUE(debugger.stopped());
  EXPECT_TRUE(debugger.start()) << "and another afterwards";
}

TEST_F(DebuggerRunTest, StopsBetweenReports) {
  for (const char* name : {"a", "b", "c"}) WriteReport(std::string(name) + ".xrpt", Formule("", name));
  RVReportDebugger debugger(*host);
  watched->beforeReport = [&debugger](const Path& file) {
    if (file.filename() == "b.xrpt") debugger.stop();
  };
  debugger.start();
  debugger.wait();
  EXPECT_EQ(Records(), (Codes{"FORMULECTRL_FORMULE_EMPTY@a"})) << "b's cards come after the stop";
  EXPECT_LT(debugger.getPercentDone(), 100.0);
  EXPECT_EQ(debugger.getState(), RVResourceDebugger::kFinished);
}

// What the rest of the report might still use is not called unused.
TEST_F(DebuggerRunTest, StopsBetweenCardsOnceOneIsDone) {
  ReportText report{"<date><id>d</id></date>" + Formule("[VIRTUAL_A.P]"), "", "VIRTUAL_A"};
  host.WriteCfg("a.xrpt", report.Xml());
  RVReportDebugger debugger(*host);
  host->dates = std::make_unique<NoDates>([&debugger] { debugger.stop(); });
  debugger.start();
  debugger.wait();
  EXPECT_EQ(Records(), (Codes{"DATECTRL_DATE_ERROR@d"}));
}

TEST_F(DebuggerRunTest, EachReportOfARunStandsAlone) {
  host.WriteCfg("a.xrpt", ReportText{Formule("[VIRTUAL_A.P]"), "", "VIRTUAL_A"}.Xml());
  host.WriteCfg("b.xrpt", ReportText{"", "", "VIRTUAL_A"}.Xml());
  Run();
  EXPECT_EQ(Records(), (Codes{"REPORT_VIRTUAL_DEVICE_ERROR@"}));
}

TEST_F(DebuggerRunTest, EndsWithTheDebugger) {
  for (int i = 0; i < 50; ++i) WriteReport(std::to_string(i) + ".xrpt", Formule(""));
  std::binary_semaphore reached(0);
  watched->beforeReport = [&reached](const Path& file) {
    if (file.filename() == "10.xrpt") reached.release();
  };
  RVReportDebugger debugger(*host);
  debugger.start();
  reached.acquire();
}

// A service of the host's that throws ends the run and nothing else.
TEST_F(DebuggerRunTest, OutlivesAFailingService) {
  WriteReport("a.xrpt", "<date/>");
  host->dates = std::make_unique<NoDates>([] { throw std::runtime_error("no calendar"); });
  Run();
  EXPECT_THAT(host.logger->Text(4), ::testing::HasSubstr("no calendar"));
}

}  // namespace
}  // namespace xrpt
