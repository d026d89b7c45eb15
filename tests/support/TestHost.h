// The host every test runs on: folders of its own that vanish with it, identifiers that count, a fixed locale, 96 dpi,
// a clipboard in memory, and a logger that remembers. `HostTest` is the fixture; `TestHost` alone serves where a test
// needs two of them one after the other.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <sstream>

#include "host/DefaultHost.h"
#include "host/FixedScreen.h"
#include "host/MemoryClipboard.h"
#include "platform/Host.h"
#include "platform/Text.h"

namespace xrpt {

// 00000000-0000-4000-8000-000000000001 and so on.
class CountingGuids final : public GuidService {
 public:
  std::wstring NewGuidText() override {
    const std::wstring digits = std::to_wstring(++count);
    return L"00000000-0000-4000-8000-" + std::wstring(12 - digits.size(), L'0') + digits;
  }
  int count = 0;
};

// English names, "." and ",", dates as year-month-day.
class PlainLocale final : public LocaleService {
 public:
  std::wstring DecimalSeparator() const override { return decimal; }
  std::wstring ThousandsSeparator() const override { return thousands; }
  std::wstring MonthName(int month) const override {
    static const wchar_t* const names[] = {L"January", L"February", L"March",     L"April",   L"May",      L"June",
                                           L"July",    L"August",   L"September", L"October", L"November", L"December"};
    return month >= 1 && month <= 12 ? names[month - 1] : L"";
  }
  std::wstring DayName(int weekday) const override {
    static const wchar_t* const names[] = {L"Sunday",   L"Monday", L"Tuesday", L"Wednesday",
                                           L"Thursday", L"Friday", L"Saturday"};
    return weekday >= 0 && weekday <= 6 ? names[weekday] : L"";
  }
  std::wstring DateTimeText(const std::tm& local) const override {
    wchar_t text[64];
    return {text, std::wcsftime(text, 64, L"%Y-%m-%d %H:%M:%S", &local)};
  }
  std::wstring decimal = L".";
  std::wstring thousands = L",";
};

class RecordingLogger final : public LoggerService {
 public:
  struct Entry {
    int severity;
    std::wstring message;
  };
  void Log(int severity, std::wstring_view message) override { entries.push_back({severity, std::wstring(message)}); }
  // All messages of a severity, one a line.
  std::string Text(int severity) const {
    std::string all;
    for (const Entry& entry : entries) {
      if (entry.severity == severity) all += ToUtf8(entry.message) + "\n";
    }
    return all;
  }
  std::vector<Entry> entries;
};

// A new empty folder that is removed with everything in it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "xrpt-test-XXXXXX").string();
    path_ = ::mkdtemp(pattern.data());
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  const Path& Folder() const { return path_; }

 private:
  Path path_;
};

class TestHost {
 public:
  TestHost() : host_(MakeDefaultHost(Options(folder_.Folder()))), former_(InstallHost(host_.get())) {
    std::filesystem::create_directories(Images());
    Use(host_->guids, guids);
    Use(host_->locale, locale);
    Use(host_->logger, logger);
    Use(host_->clipboard, clipboard);
    Use(host_->screen, screen);
  }
  ~TestHost() { InstallHost(former_); }
  TestHost(const TestHost&) = delete;
  TestHost& operator=(const TestHost&) = delete;

  Host& operator*() { return *host_; }
  Host* operator->() { return host_.get(); }

  Path Folder() const { return folder_.Folder(); }
  Path Cfg() const { return folder_.Folder() / "cfg"; }
  Path Images() const { return folder_.Folder() / "images"; }
  Path State() const { return folder_.Folder() / "state"; }

  // Writes a file of the configuration folder and returns its path.
  Path WriteCfg(const std::string& name, std::string_view bytes) const { return WriteFile(Cfg() / name, bytes); }
  static Path WriteFile(const Path& file, std::string_view bytes) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
    return file;
  }
  static std::string ReadFile(const Path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
  }

  CountingGuids* guids = nullptr;
  PlainLocale* locale = nullptr;
  RecordingLogger* logger = nullptr;
  MemoryClipboard* clipboard = nullptr;
  FixedScreen* screen = nullptr;

 private:
  static HostOptions Options(const Path& folder) {
    HostOptions options;
    options.cfgFolder = folder / "cfg";
    options.imagesFolder = folder / "images";
    options.stateFolder = folder / "state";
    options.settingsFile = folder / "settings.ini";
    options.language = "en";
    options.dpi = 96;
    options.logToStderr = false;
    std::filesystem::create_directories(options.cfgFolder);
    return options;
  }
  template <class Service, class Fake>
  static void Use(std::unique_ptr<Service>& service, Fake*& fake) {
    auto made = std::make_unique<Fake>();
    fake = made.get();
    service = std::move(made);
  }

  TemporaryFolder folder_;
  std::unique_ptr<Host> host_;
  Host* former_;
};

class HostTest : public ::testing::Test {
 protected:
  TestHost host;
};

}  // namespace xrpt
