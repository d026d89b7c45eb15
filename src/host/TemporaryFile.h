// The file that new content is written to before it takes its name. Its own name is random and exclusive, so that
// processes of different containers and machines never take each other's; while its writer lives it is locked, so that
// whoever finds one without a lock may clear it away.
#pragma once

#include "host/Posix.h"

namespace xrpt {

class TemporaryFile {
 public:
  TemporaryFile() = default;
  // Removes the file, unless it was renamed.
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  // In the folder of the file it is to become.
  std::error_code Create(const Path& target, mode_t mode);
  int Descriptor() const { return file_.Descriptor(); }
  // Takes the target's place; or only its name, when nothing may be replaced (`Changed` then).
  std::error_code RenameTo(const Path& target, bool mayReplace);
  // The open file, whose lock lasts as long as it.
  OpenFile Take() { return std::move(file_); }

 private:
  enum class Attempt { Made, TakenAway, Failed };
  Attempt Try(const Path& name, mode_t mode);
  bool IsStillThere() const;

  Path name_;
  OpenFile file_;
};

enum class FileLock { Mine, Others, NotToBeHad };
// Locks an open file against every process that can ask for it; not to be had where the file system knows no locks.
FileLock TryLock(int descriptor);
// Fails with EEXIST when the name is taken.
int RenameToFreeName(const char* from, const char* to);

// Whether a file name is that of a temporary file of ours.
bool IsTemporaryName(std::string_view name);
// Whether nobody is writing the temporary file any more.
bool IsAbandoned(const Path& temporary);

}  // namespace xrpt
