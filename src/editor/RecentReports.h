// The reports that were open last, the newest first, remembered in the user's settings.
#pragma once

#include <vector>

#include "platform/Files.h"

namespace xrpt {

inline constexpr std::size_t kMostRecent = 12;

// Those that are still there.
std::vector<Path> RecentReports();
// Puts a file first; it is there once.
void RememberReport(const Path& file);

}  // namespace xrpt
