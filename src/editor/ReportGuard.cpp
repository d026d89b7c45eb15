#include "editor/ReportGuard.h"

#include <algorithm>
#include <atomic>

namespace xrpt {
namespace {

int NextNumber() {
  static std::atomic<int> last{0};
  return ++last;
}

LockService* Locks() { return CurrentHost().locks.get(); }

}  // namespace

ReportGuard::ReportGuard() : number_(NextNumber()) {}

ReportGuard::~ReportGuard() { Enter({}, {}); }

LockState ReportGuard::Take(const Path& file, bool takesOver) const {
  if (!Locks()) return {};
  return takesOver ? Locks()->TakeOver(file) : Locks()->Take(file);
}

void ReportGuard::Enter(const Path& file, const LockState& lock) {
  if (file != file_ && !file_.empty() && Locks()) Locks()->Release(file_);
  file_ = file;
  lock_ = lock;
}

bool ReportGuard::Beat() {
  if (!Locks()) return false;
  const std::vector<Path> lost = Locks()->Beat();
  if (file_.empty() || std::find(lost.begin(), lost.end(), file_) == lost.end()) return false;
  lock_ = Locks()->Take(file_);
  return IsReadOnly();
}

void ReportGuard::Keep(const RVReport& report, std::uint64_t state) {
  RecoveryService* recovery = CurrentHost().recovery.get();
  if (!recovery || (keeps_ && kept_ == state)) return;
  recovery->Keep(number_, {{}, report.File(), report.name, 0}, report.TemplateText());
  kept_ = state;
  keeps_ = true;
}

void ReportGuard::Drop() {
  if (keeps_) CurrentHost().recovery->Drop(number_);
  keeps_ = false;
}

}  // namespace xrpt
