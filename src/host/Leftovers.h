// What interrupted work leaves behind in a folder, and when it may go.
#pragma once

#include <vector>

#include "platform/Files.h"

namespace xrpt {

// Temporary files whose writer is gone, and copies of failed saves that are of age. Folders inside are not looked into,
// and links not followed.
std::vector<Path> FindLeftovers(const Path& folder);

}  // namespace xrpt
