// How old a file may grow before whoever finds it clears it away.
#pragma once

#include <chrono>

#include "platform/Files.h"

namespace xrpt {

using Days = std::chrono::duration<std::int64_t, std::ratio<86400>>;

inline constexpr Days kTemporaryAge{1};   // a save that takes a day is none
inline constexpr Days kRecoveredAge{30};  // somebody back from holiday still finds the work

// Whether the file was written last so long ago, or as far in the future, as a clock that was set back leaves it.
bool IsOfAge(const Path& file, std::chrono::seconds age);

}  // namespace xrpt
