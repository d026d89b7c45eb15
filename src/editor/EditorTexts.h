// Text ids of what the editor says and asks, as hosts number them.
#pragma once

namespace xrpt::text {

inline constexpr int kUntitled = 32468;
inline constexpr int kSaveChanges = 32472;  // a question
inline constexpr int kReplaceDone = 34899;
inline constexpr int kFormulasInCircle = 32445;
inline constexpr int kDeletePageQuestion = 60448;
inline constexpr int kPictureNotRead = 62450;
inline constexpr int kNoPictureFile = 62451;

}  // namespace xrpt::text
