// The host of the fuzz targets: files in memory, no log, nothing of the machine.
#pragma once

#include <cstdlib>
#include <map>

#include "host/DefaultHost.h"

namespace xrpt {

class MemoryFiles final : public FileService {
 public:
  static constexpr std::size_t kMost = 100;

  void Put(const Path& file, std::string bytes) { files_[file] = {std::move(bytes), ++writes_}; }
  void Clear() { files_.clear(); }

  std::optional<std::string> Read(const Path& file, std::size_t limit, FileError*) override {
    const auto found = files_.find(file);
    if (found == files_.end() || found->second.bytes.size() > limit) return std::nullopt;
    return found->second.bytes;
  }
  SaveResult Write(const Path& file, std::string_view bytes, const FileVersion*) override {
    if (files_.size() > kMost) return {SaveOutcome::Failed, file, "full", {}};
    Put(file, std::string(bytes));
    return {SaveOutcome::Saved, file, {}, {}};
  }
  std::vector<Path> List(const Path& folder, std::wstring_view ending) override {
    std::vector<Path> found;
    const std::string wanted(ending.begin(), ending.end());
    for (const auto& [file, held] : files_) {
      if (file.parent_path() == folder && file.string().ends_with(wanted)) found.push_back(file);
    }
    return found;
  }
  bool CreateFolder(const Path&) override { return true; }
  bool Rename(const Path& from, const Path& to) override {
    const auto found = files_.find(from);
    if (found == files_.end() || files_.count(to) != 0) return false;
    Put(to, std::string(found->second.bytes));
    return Remove(from);
  }
  bool Remove(const Path& file) override { return files_.erase(file) > 0; }
  FileStamp Stamp(const Path& file) override {
    const auto found = files_.find(file);
    if (found == files_.end()) return {};
    return {found->second.written, found->second.bytes.size(), true, found->second.written, 1, 1};
  }

 private:
  struct Held {
    std::string bytes;
    std::int64_t written = 0;
  };
  std::map<Path, Held> files_;
  std::int64_t writes_ = 0;
};

class NoLog final : public LoggerService {
 public:
  void Log(int, std::wstring_view) override {}
};

struct FuzzHost {
  static constexpr const char* kFolder = "nowhere";

  FuzzHost() {
    HostOptions options;
    options.cfgFolder = options.imagesFolder = options.stateFolder = kFolder;
    options.settingsFile = Path(kFolder) / "settings.ini";
    options.dpi = 96;
    options.logToStderr = false;
    host = MakeDefaultHost(options);
    auto memory = std::make_unique<MemoryFiles>();
    files = memory.get();
    host->files = std::move(memory);
    host->logger = std::make_unique<NoLog>();
    host->locks.reset();
    host->recovery.reset();
    InstallHost(host.get());
  }
  static Path File(const char* name) { return Path(kFolder) / name; }

  std::unique_ptr<Host> host;
  MemoryFiles* files = nullptr;
};

inline void Expect(bool holds) {
  if (!holds) std::abort();
}

}  // namespace xrpt
