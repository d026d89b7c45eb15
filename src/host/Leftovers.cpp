#include "host/Leftovers.h"

#include <chrono>

#include "host/Age.h"
#include "host/AtomicWrite.h"
#include "host/FileLocks.h"
#include "host/TemporaryFile.h"

namespace xrpt {
namespace {

namespace fs = std::filesystem;

bool IsPlain(const fs::directory_entry& entry) {
  std::error_code error;
  return fs::is_regular_file(entry.symlink_status(error)) && !error;
}

std::int64_t Now() {
  return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::system_clock::now().time_since_epoch())
      .count();
}

bool IsLeftover(const Path& file) {
  const std::string name = file.filename().string();
  if (IsTemporaryName(name)) return IsAbandoned(file);
  if (IsLockName(name)) return IsOurLock(file) && IsLockAbandoned(file, Now());
  return name.ends_with(kBesideEnding) && IsOfAge(file, kRecoveredAge);
}

template <class Function>
void ForEachEntry(const Path& folder, const Function& function) {
  std::error_code error;
  for (fs::directory_iterator at(folder, error); !error && at != fs::directory_iterator(); at.increment(error)) {
    function(*at);
  }
}

}  // namespace

std::vector<Path> FindLeftovers(const Path& folder) {
  std::vector<Path> found;
  ForEachEntry(folder, [&](const fs::directory_entry& entry) {
    if (IsPlain(entry) && IsLeftover(entry.path())) found.push_back(entry.path());
  });
  return found;
}

std::vector<Path> FindOldRecoveries(const Path& stateFolder) {
  std::vector<Path> found;
  const auto addOld = [&](const fs::directory_entry& entry) {
    if (IsPlain(entry) && IsOfAge(entry.path(), kRecoveredAge)) found.push_back(entry.path());
  };
  ForEachEntry(stateFolder / kKeptFolder, addOld);
  ForEachEntry(stateFolder / kSessionsFolder,
               [&](const fs::directory_entry& session) { ForEachEntry(session.path(), addOld); });
  return found;
}

}  // namespace xrpt
