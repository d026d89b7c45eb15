// Text ids of the list of problems, of its marks and of its counts.
#pragma once

#include "formulas/checks/CheckCode.h"

namespace xrpt::text {

inline constexpr int kProblem = 62100;
inline constexpr int kProblemCard = 62101;
inline constexpr int kProblemPage = 62102;
inline constexpr int kNote = 62103;   // and the next two: the severities
inline constexpr int kNotes = 62106;  // and the next two: how many of each
inline constexpr int kHiddenProblems = 62109;
inline constexpr int kShowCard = 62110;
inline constexpr int kCopyMessage = 62111;
inline constexpr int kPutRight = 62112;
inline constexpr int kShowThese = 62113;
inline constexpr int kShowProblems = 62114;
inline constexpr int kProblemList = 62115;

}  // namespace xrpt::text

namespace xrpt {

// What one problem of that kind is called, and "Errors: %d".
constexpr int SeverityTextId(Severity severity) { return text::kNote + static_cast<int>(severity); }
constexpr int CountTextId(Severity severity) { return text::kNotes + static_cast<int>(severity); }

}  // namespace xrpt
