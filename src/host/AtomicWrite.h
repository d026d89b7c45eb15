// Replacing a file so that a reader, or a power cut, sees the old bytes or the new ones and nothing between.
#pragma once

#include <string>
#include <string_view>
#include <system_error>

#include "platform/Host.h"

namespace xrpt {

// Writes a temporary file in the target's folder, flushes it to disk, renames it and flushes the folder. A link is
// followed, the target's permissions are kept; a device is written to as it is. No temporary file outlives a failure.
std::error_code WriteAtomically(const Path& file, std::string_view bytes);

// Reads a whole plain file of at most `limit` bytes.
std::error_code ReadWhole(const Path& file, std::size_t limit, std::string& bytes);

}  // namespace xrpt
