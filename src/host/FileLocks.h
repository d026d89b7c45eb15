// Locks as files beside the reports: `.NAME.lock`, who and since when, held open and locked by the holder and touched
// at every beat. A holder on this machine is gone as soon as the system has let go of its open file, in whatever
// container it ran; one on another machine when it has been silent for a while.
#pragma once

#include <chrono>
#include <map>

#include "host/Posix.h"
#include "platform/Locks.h"

namespace xrpt {

class FileLocks final : public LockService {
 public:
  static constexpr std::chrono::seconds kSilence{120};

  ~FileLocks() override;
  LockState Take(const Path& file) override;
  LockState TakeOver(const Path& file) override;
  void Release(const Path& file) override;
  std::vector<Path> Beat() override;

 private:
  struct Held {
    Path lock;
    std::string token;
    OpenFile open;
  };
  std::error_code Make(const Path& file, const Path& lock, std::int64_t& now);

  std::map<Path, Held> held_;  // by the file as it was given
};

// The lock file of a file, links followed.
Path LockFileOf(const Path& file);
bool IsLockName(std::string_view name);
// Whether a file of such a name is a lock of ours: other programs have files of that kind, too.
bool IsOurLock(const Path& lock);
// Whether the holder of a lock file is gone. `now` is the file system's time, in nanoseconds.
bool IsLockAbandoned(const Path& lock, std::int64_t now);

}  // namespace xrpt
