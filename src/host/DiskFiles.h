// Files on disk. A write is all or nothing, and bytes that could not be written are never thrown away.
#pragma once

#include <map>
#include <mutex>

#include "platform/Host.h"

namespace xrpt {

class DiskFiles final : public FileService {
 public:
  // `stateFolder` takes recovery files that cannot lie beside their target.
  DiskFiles(Host& host, Path stateFolder) : host_(host), stateFolder_(std::move(stateFolder)) {}

  std::optional<std::string> Read(const Path& file, std::size_t limit, FileError* error = nullptr) override;
  SaveResult Write(const Path& file, std::string_view bytes, const FileVersion* expected = nullptr) override;
  std::vector<Path> List(const Path& folder, std::wstring_view ending) override;
  bool CreateFolder(const Path& folder) override;
  bool Rename(const Path& from, const Path& to) override;
  bool Remove(const Path& file) override;
  FileStamp Stamp(const Path& file) override;
  std::vector<Path> ClearLeftovers(const Path& folder) override;

 private:
  SaveResult KeepForRecovery(const Path& file, std::string_view bytes, const std::string& reason);
  // Where the bytes lie now, empty when nowhere.
  Path WriteRecovery(const Path& file, std::string_view bytes);
  void DropRecovery(const Path& file);

  Host& host_;
  Path stateFolder_;
  std::mutex mutex_;
  std::map<Path, Path> recoveries_;  // of this run: target, where its bytes lie
};

}  // namespace xrpt
