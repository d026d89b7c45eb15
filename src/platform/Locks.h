// Who has a report open, told to everybody who shares its folder, on this machine and on others.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Files.h"

namespace xrpt {

struct LockHolder {
  std::wstring user;
  std::wstring machine;
  std::int64_t since = 0;  // seconds since 1970, UTC
};

enum class LockOutcome {
  Mine,
  Others,      // `holder` has it open
  NotToBeHad,  // the folder cannot be written, for one; `reason` says why
};

struct LockState {
  LockOutcome outcome = LockOutcome::Mine;
  LockHolder holder;
  std::string reason;  // the system's own word, for people
};

class LockService {
 public:
  // How often `Beat` should be called.
  static constexpr int kBeatSeconds = 15;

  virtual ~LockService() = default;
  // Takes the lock of a file, unless somebody who is still there has it. One that a crash left is nobody's.
  virtual LockState Take(const Path& file) = 0;
  // Takes it from whoever has it; they learn of it at their next beat.
  virtual LockState TakeOver(const Path& file) = 0;
  virtual void Release(const Path& file) = 0;
  // Says of every lock of ours that we are still there. Gives the files whose locks are ours no more.
  virtual std::vector<Path> Beat() = 0;
};

}  // namespace xrpt
