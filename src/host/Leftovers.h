// What interrupted work leaves behind in a folder, and when it may go.
#pragma once

#include <vector>

#include "platform/Files.h"

namespace xrpt {

// Folders of the state folder: copies of failed saves that could not lie beside their file, and unsaved work.
inline constexpr const char* kKeptFolder = "recovered";
inline constexpr const char* kSessionsFolder = "recovery";

// Temporary files whose writer is gone, locks whose holder is, and copies of failed saves that are of age. Folders
// inside are not looked into, and links not followed.
std::vector<Path> FindLeftovers(const Path& folder);
// What a state folder keeps that is of age.
std::vector<Path> FindOldRecoveries(const Path& stateFolder);

}  // namespace xrpt
