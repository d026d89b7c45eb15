#include "host/Leftovers.h"

#include "host/Age.h"
#include "host/AtomicWrite.h"
#include "host/TemporaryFile.h"

namespace xrpt {
namespace {

namespace fs = std::filesystem;

bool IsLeftover(const fs::directory_entry& entry) {
  std::error_code error;
  if (!fs::is_regular_file(entry.symlink_status(error)) || error) return false;
  const std::string name = entry.path().filename().string();
  if (IsTemporaryName(name)) return IsAbandoned(entry.path());
  return name.ends_with(kBesideEnding) && IsOfAge(entry.path(), kRecoveredAge);
}

}  // namespace

std::vector<Path> FindLeftovers(const Path& folder) {
  std::vector<Path> found;
  std::error_code error;
  fs::directory_iterator at(folder, error);
  for (; !error && at != fs::directory_iterator(); at.increment(error)) {
    if (IsLeftover(*at)) found.push_back(at->path());
  }
  return found;
}

}  // namespace xrpt
