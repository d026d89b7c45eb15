#include "host/TemporaryFile.h"

#include <sys/file.h>

#include <cstdio>

#include "host/Age.h"

namespace xrpt {
namespace {

constexpr std::string_view kPrefix = ".xrpt-";
constexpr std::string_view kEnding = ".tmp";
constexpr int kAttempts = 8;

}  // namespace

FileLock TryLock(int descriptor) {
  if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0) return FileLock::Mine;
  return errno == EWOULDBLOCK ? FileLock::Others : FileLock::NotToBeHad;
}

// Most file systems can do it in one step; others can give a file a second name. Only where neither works may somebody
// come in between.
int RenameToFreeName(const char* from, const char* to) {
  if (::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0) return 0;
  if (errno != EINVAL && errno != ENOSYS) return -1;
  if (::link(from, to) == 0) return ::unlink(from);
  if (errno == EEXIST) return -1;
  struct stat found {};
  if (::lstat(to, &found) != 0) return ::rename(from, to);
  errno = EEXIST;
  return -1;
}

TemporaryFile::~TemporaryFile() {
  if (!name_.empty()) ::unlink(name_.c_str());
}

std::error_code TemporaryFile::Create(const Path& target, mode_t mode) {
  for (int i = 0; i < kAttempts; ++i) {
    const std::string token = RandomToken();
    if (token.empty()) return LastError();
    const Path name = target.parent_path() / (std::string(kPrefix) + token + std::string(kEnding));
    const Attempt attempt = Try(name, mode);
    if (attempt == Attempt::Failed) return LastError();
    if (attempt == Attempt::TakenAway) continue;
    name_ = name;
    return {};
  }
  return std::make_error_code(std::errc::device_or_resource_busy);
}

// Between making a file and locking it, somebody who clears leftovers may have come first.
TemporaryFile::Attempt TemporaryFile::Try(const Path& name, mode_t mode) {
  file_ = OpenFile(name, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, mode);
  if (!file_) return errno == EEXIST ? Attempt::TakenAway : Attempt::Failed;
  if (TryLock(file_.Descriptor()) != FileLock::Others && IsStillThere()) return Attempt::Made;
  ::unlink(name.c_str());
  return Attempt::TakenAway;
}

bool TemporaryFile::IsStillThere() const {
  struct stat found {};
  return ::fstat(file_.Descriptor(), &found) == 0 && found.st_nlink > 0;
}

std::error_code TemporaryFile::RenameTo(const Path& target, bool mayReplace) {
  const int done =
      mayReplace ? ::rename(name_.c_str(), target.c_str()) : RenameToFreeName(name_.c_str(), target.c_str());
  if (done != 0) return errno == EEXIST && !mayReplace ? make_error_code(FileFault::Changed) : LastError();
  name_.clear();
  return {};
}

bool IsTemporaryName(std::string_view name) { return name.starts_with(kPrefix) && name.ends_with(kEnding); }

// Where locks are not to be had, age decides.
bool IsAbandoned(const Path& temporary) {
  const OpenFile file(temporary, O_RDWR | O_NOFOLLOW | O_NONBLOCK);
  if (!file) return IsOfAge(temporary, kTemporaryAge);
  switch (TryLock(file.Descriptor())) {
    case FileLock::Mine:
      return true;
    case FileLock::Others:
      return false;
    case FileLock::NotToBeHad:
      break;
  }
  return IsOfAge(temporary, kTemporaryAge);
}

}  // namespace xrpt
