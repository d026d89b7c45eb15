// The host's texts that the checks show, by number.
#pragma once

namespace xrpt::text {

inline constexpr int kCannotBeAnalysed = 32446;
inline constexpr int kNotLogical = 32485;
inline constexpr int kCheckingReport = 33809;  // "%s": the report's name
inline constexpr int kRefersToModule = 37540;

}  // namespace xrpt::text
