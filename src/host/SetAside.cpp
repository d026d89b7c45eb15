#include "host/SetAside.h"

#include "host/Posix.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

constexpr int kMost = 100;

bool IsFree(const Path& file) {
  struct stat found {};
  return ::lstat(file.c_str(), &found) != 0 && errno == ENOENT;
}

Path FreeName(const Path& file) {
  Path name = file;
  name += kSetAsideEnding;
  for (int n = 2; n <= kMost && !IsFree(name); ++n) {
    name = file;
    name += kSetAsideEnding + ("-" + std::to_string(n));
  }
  return name;
}

}  // namespace

bool SetAside(const Path& file, LoggerService& logger) {
  const Path name = FreeName(file);
  if (!IsFree(name) || ::rename(file.c_str(), name.c_str()) != 0) {
    logger.Log(3, FromUtf8("SetAside(): " + file.string() + " cannot be read, and stays as it is"));
    return false;
  }
  logger.Log(3, FromUtf8("SetAside(): " + file.string() + " cannot be read; it is now " + name.string()));
  return true;
}

}  // namespace xrpt
