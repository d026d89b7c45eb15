// Replacing a file so that a reader, or a power cut, sees the old bytes or the new ones and nothing between.
#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>
#include <system_error>

#include "platform/Files.h"

namespace xrpt {

// Writes a temporary file in the target's folder, flushes it to disk, renames it and flushes the folder. A link is
// followed; owner, mode and extended attributes are kept. A file whose owner cannot be kept, or that has several names,
// is written in place instead, with the whole new content safe beside it (`CopyBeside`) until that is done. Pipes and
// devices are refused. No temporary file outlives a failure.
struct WriteRules {
  const FileStamp* expected = nullptr;  // a target that is another by then is left alone (`FileFault::Changed`)
  mode_t mode = 0666;                   // of a new file, less what the user's mask takes away
};
std::error_code WriteAtomically(const Path& file, std::string_view bytes, const WriteRules& rules = {});

// Reads a whole plain file of at most `limit` bytes, without ever waiting for a pipe or device.
std::error_code ReadWhole(const Path& file, std::size_t limit, std::string& bytes);

// Where the content of a file lies that could not be written to the file itself: its name with `kBesideEnding`.
inline constexpr const char* kBesideEnding = ".recovered";
Path CopyBeside(const Path& file);

}  // namespace xrpt
