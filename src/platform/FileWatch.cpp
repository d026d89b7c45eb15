#include "platform/FileWatch.h"

namespace xrpt {

void FileWatch::AddFolder(const Path& folder, const std::vector<std::wstring>& endings) {
  Entry& entry = watched_[folder];
  entry.endings = endings;
  entry.stamps = StampsOf(folder, endings);
}

std::vector<Path> FileWatch::Changed() {
  std::vector<Path> changed;
  for (auto& [path, entry] : watched_) {
    if (entry.endings.empty() ? HasFileChanged(path, entry) : HasFolderChanged(path, entry)) changed.push_back(path);
  }
  return changed;
}

FileWatch::Stamps FileWatch::StampsOf(const Path& folder, const std::vector<std::wstring>& endings) {
  Stamps stamps;
  for (const std::wstring& ending : endings) {
    for (const Path& file : files_.List(folder, ending)) stamps[file] = files_.Stamp(file);
  }
  return stamps;
}

// Only a stamp that differs makes the content worth reading.
bool FileWatch::HasFileChanged(const Path& file, Entry& entry) {
  const FileStamp now = files_.Stamp(file);
  if (now == entry.known.stamp) return false;
  const std::optional<std::string> bytes = files_.Read(file, static_cast<std::size_t>(now.size));
  const FileVersion former = entry.known;
  entry.known = bytes ? FileVersion(now, *bytes) : FileVersion(now, {});
  return now.exists != former.stamp.exists || entry.known.hash != former.hash;
}

bool FileWatch::HasFolderChanged(const Path& folder, Entry& entry) {
  Stamps now = StampsOf(folder, entry.endings);
  if (now == entry.stamps) return false;
  entry.stamps = std::move(now);
  return true;
}

}  // namespace xrpt
