// Numbers of the texts that say what became of files.
#pragma once

namespace xrpt::text {

inline constexpr int kNotSaved = 62200;
inline constexpr int kChangedOnDisk = 62201;
inline constexpr int kNameIsNoFile = 62202;
inline constexpr int kFileIsAnothers = 62203;

}  // namespace xrpt::text
