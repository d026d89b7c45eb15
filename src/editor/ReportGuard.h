// Looks after the open report for the frame: holds the lock beside its file, and keeps what is not saved where a crash
// cannot take it. A host without locks or recovery goes without.
#pragma once

#include "model/RVReport.h"

namespace xrpt {

class ReportGuard {
 public:
  ReportGuard();
  // Lets go of the lock. What was kept stays unless it was dropped: nobody decided about it.
  ~ReportGuard();
  ReportGuard(const ReportGuard&) = delete;
  ReportGuard& operator=(const ReportGuard&) = delete;

  // Takes the lock of a file that may become the report's, from whoever has it when `takesOver`.
  LockState Take(const Path& file, bool takesOver) const;
  // From now on this file is the report's (empty: it has none), held by us or somebody else.
  void Enter(const Path& file, const LockState& lock);
  // Whether somebody else has the report's file, and who.
  const Path& File() const { return file_; }
  const LockState& Lock() const { return lock_; }
  bool IsReadOnly() const { return lock_.outcome == LockOutcome::Others; }
  const LockHolder& Holder() const { return lock_.holder; }
  // Says that we are still there. True when somebody has taken the report over since.
  bool Beat();

  // Keeps the report as it is, when `state` is another than the one kept last.
  void Keep(const RVReport& report, std::uint64_t state);
  // Saved, or decided against.
  void Drop();

 private:
  int number_;  // the report's, among all that this process keeps
  Path file_;
  LockState lock_;
  std::uint64_t kept_ = 0;
  bool keeps_ = false;
};

}  // namespace xrpt
