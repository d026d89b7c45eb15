// Files and folders that others may change while we show them. Whoever has a timer asks every second or so; asking
// costs a look at each file's stamp, and works on every kind of file system.
#pragma once

#include <map>
#include <vector>

#include "platform/Files.h"

namespace xrpt {

class FileWatch {
 public:
  explicit FileWatch(FileService& files) : files_(files) {}

  // From the version that is known: as it was read or written last.
  void Add(const Path& file, const FileVersion& known) { watched_[file] = {known, {}, {}}; }
  // The files of a folder with one of the endings, as they are now.
  void AddFolder(const Path& folder, const std::vector<std::wstring>& endings);
  void Remove(const Path& fileOrFolder) { watched_.erase(fileOrFolder); }

  // Those that changed since they were added or last given: a file whose content is another or that came or went, a
  // folder one of whose files was added, removed or written. A file written anew with the same content is none.
  std::vector<Path> Changed();

 private:
  using Stamps = std::map<Path, FileStamp>;
  struct Entry {
    FileVersion known;
    std::vector<std::wstring> endings;  // of a folder's files; none for a file
    Stamps stamps;                      // of a folder's files
  };
  Stamps StampsOf(const Path& folder, const std::vector<std::wstring>& endings);
  bool HasFileChanged(const Path& file, Entry& entry);
  bool HasFolderChanged(const Path& folder, Entry& entry);

  FileService& files_;
  std::map<Path, Entry> watched_;
};

}  // namespace xrpt
