#include "host/DiskFiles.h"

#include <algorithm>

#include "host/AtomicWrite.h"
#include "host/Leftovers.h"
#include "host/Posix.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

namespace fs = std::filesystem;

bool HasEnding(const std::string& name, const std::string& ending) {
  return name.size() >= ending.size() && name.compare(name.size() - ending.size(), ending.size(), ending) == 0;
}

std::string Hex(std::size_t value) {
  std::string text;
  for (int shift = 28; shift >= 0; shift -= 4) text += "0123456789abcdef"[value >> shift & 0xF];
  return text;
}

// Not among devices.
bool MayLieBeside(const Path& file) {
  std::error_code ignored;
  return !fs::is_other(file, ignored);
}

// Two reports of one name in different folders must not take each other's place.
Path InState(const Path& stateFolder, const Path& file) {
  std::error_code ignored;
  const std::string whole = fs::absolute(file, ignored).string();
  const std::string name = file.filename().string().substr(0, 200);
  return stateFolder / kKeptFolder / (name + "-" + Hex(std::hash<std::string>()(whole)) + kBesideEnding);
}

}  // namespace

std::optional<std::string> DiskFiles::Read(const Path& file, std::size_t limit, FileError* error) {
  std::string bytes;
  const std::error_code fault = ReadWhole(file, limit, bytes);
  if (!fault) return bytes;
  if (error) error->reason = fault.message();
  return std::nullopt;
}

SaveResult DiskFiles::Write(const Path& file, std::string_view bytes, const FileVersion* expected) {
  const FileStamp now = Stamp(file);
  if (expected && HasChanged(*this, file, *expected)) return {SaveOutcome::Changed, file, {}, {}};
  const std::error_code fault = WriteAtomically(file, bytes, {expected ? &now : nullptr});
  if (fault == FileFault::Changed) return {SaveOutcome::Changed, file, {}, {}};
  if (fault) return KeepForRecovery(file, bytes, fault.message());
  DropRecovery(file);
  return {SaveOutcome::Saved, file, {}, {}};
}

SaveResult DiskFiles::KeepForRecovery(const Path& file, std::string_view bytes, const std::string& reason) {
  std::string message = "DiskFiles::Write(): could not save " + file.string() + ": " + reason;
  const Path recovery = WriteRecovery(file, bytes);
  if (!recovery.empty()) {
    message += "; the unsaved text is kept in " + recovery.string();
    const std::lock_guard lock(mutex_);
    recoveries_[file] = recovery;
  }
  host_.logger->Log(4, FromUtf8(message));
  return {SaveOutcome::Failed, file, reason, recovery};
}

Path DiskFiles::WriteRecovery(const Path& file, std::string_view bytes) {
  const WriteRules privately{nullptr, 0600};
  if (MayLieBeside(file) && !WriteAtomically(CopyBeside(file), bytes, privately)) return CopyBeside(file);
  const Path elsewhere = InState(stateFolder_, file);
  CreateFolder(elsewhere.parent_path());
  return WriteAtomically(elsewhere, bytes, privately) ? Path() : elsewhere;
}

// Once the bytes are where they belong, what was kept of an earlier failure is stale.
void DiskFiles::DropRecovery(const Path& file) {
  const std::lock_guard lock(mutex_);
  const auto kept = recoveries_.find(file);
  if (kept == recoveries_.end()) return;
  Remove(kept->second);
  recoveries_.erase(kept);
}

std::vector<Path> DiskFiles::List(const Path& folder, std::wstring_view ending) {
  std::vector<Path> found;
  const std::string wanted = ToUtf8(ending);
  std::error_code error;
  fs::directory_iterator at(folder, error);
  for (; !error && at != fs::directory_iterator(); at.increment(error)) {
    std::error_code ignored;
    if (HasEnding(at->path().filename().string(), wanted) && at->is_regular_file(ignored)) found.push_back(at->path());
  }
  std::sort(found.begin(), found.end(), [](const Path& a, const Path& b) { return a.native() < b.native(); });
  return found;
}

bool DiskFiles::CreateFolder(const Path& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  return fs::is_directory(folder, error);
}

bool DiskFiles::Rename(const Path& from, const Path& to) {
  std::error_code error;
  if (fs::exists(to, error)) return false;
  fs::rename(from, to, error);
  return !error;
}

bool DiskFiles::Remove(const Path& file) {
  std::error_code error;
  return !fs::is_directory(file, error) && fs::remove(file, error);
}

FileStamp DiskFiles::Stamp(const Path& file) {
  struct stat found {};
  return ::stat(file.c_str(), &found) == 0 ? StampOf(found) : FileStamp();
}

std::vector<Path> DiskFiles::ClearLeftovers(const Path& folder) {
  std::vector<Path> cleared;
  for (const std::vector<Path>& found : {FindLeftovers(folder), FindOldRecoveries(folder)}) {
    std::copy_if(found.begin(), found.end(), std::back_inserter(cleared), [this](const Path& f) { return Remove(f); });
  }
  return cleared;
}

}  // namespace xrpt
