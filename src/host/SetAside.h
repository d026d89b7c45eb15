// A file that should be ours and cannot be read is somebody's all the same: it gets another name before ours takes its
// place.
#pragma once

#include "platform/Host.h"

namespace xrpt {

inline constexpr const char* kSetAsideEnding = ".set-aside";

// Renames the file to the first free name of the kind settings.ini.set-aside, settings.ini.set-aside-2 and says so in
// the log. False when it is still where it was.
bool SetAside(const Path& file, LoggerService& logger);

}  // namespace xrpt
