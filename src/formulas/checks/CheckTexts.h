// The texts that checks show beside those of their codes, by number.
#pragma once

namespace xrpt::text {

// The system's own.
inline constexpr int kNotLogical = 32485;
inline constexpr int kCheckingReport = 33809;  // "%s": the report's name

}  // namespace xrpt::text
