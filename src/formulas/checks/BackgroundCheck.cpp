#include "formulas/checks/BackgroundCheck.h"

#include <system_error>
#include <utility>

#include "formulas/checks/OpenReportCheck.h"
#include "platform/Host.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

std::vector<Problem> WithCards(const std::vector<Finding>& findings, const ReportSnapshot& report) {
  std::vector<Problem> problems;
  problems.reserve(findings.size());
  for (const Finding& finding : findings) {
    Problem& problem = problems.emplace_back(Problem{finding});
    if (finding.place.card < 0) continue;
    const PageSnapshot& page = report.pages[static_cast<std::size_t>(finding.place.page - 1)];
    problem.card = page.cards[static_cast<std::size_t>(finding.place.card)]->Key();
  }
  return problems;
}

}  // namespace

BackgroundCheck::BackgroundCheck(const Host& host, CheckChoice choice, std::function<void()> found)
    : tell_(std::move(found)), check_(std::make_unique<OpenReportCheck>(host, std::move(choice))) {
  try {
    thread_ = std::thread([this] { Run(); });
  } catch (const std::system_error& fault) {
    LogMessage(3, L"BackgroundCheck: " + FromUtf8(fault.what()));
  }
}

BackgroundCheck::~BackgroundCheck() {
  {
    const std::lock_guard guard(lock_);
    stop_ = true;
  }
  wake_.notify_one();
  if (thread_.joinable()) thread_.join();
}

// --- On the thread that edits ---

void BackgroundCheck::Check(const RVReport& report) { HandIn(report, false); }

void BackgroundCheck::CheckAfresh(const RVReport& report) { HandIn(report, true); }

void BackgroundCheck::HandIn(const RVReport& report, bool isAfresh) {
  DropOld();
  const ReportSnapshot* before = kept_.empty() ? nullptr : kept_.back().report.get();
  auto snapshot = std::make_unique<const ReportSnapshot>(report, before);
  if (before && !isAfresh && snapshot->IsSame(*before)) return;
  kept_.push_back({++handedIn_, std::move(snapshot)});
  {
    const std::lock_guard guard(lock_);
    next_ = {handedIn_, kept_.back().report.get(), isAfresh || next_.isAfresh};
  }
  wake_.notify_one();
}

// Cards are let go here and not where they are checked: who edits asks whether anybody else holds a card.
void BackgroundCheck::DropOld() {
  std::uint64_t lookedAt = 0;
  {
    const std::lock_guard guard(lock_);
    lookedAt = lookedAt_;
  }
  while (!kept_.empty() && kept_.front().number < lookedAt) kept_.pop_front();
}

std::optional<std::vector<Problem>> BackgroundCheck::Take() {
  DropOld();
  const std::lock_guard guard(lock_);
  return std::exchange(found_, std::nullopt);
}

bool BackgroundCheck::IsDone() const {
  const std::lock_guard guard(lock_);
  return done_ == handedIn_;
}

std::size_t BackgroundCheck::CardsChecked() const {
  const std::lock_guard guard(lock_);
  return cardsChecked_;
}

// --- On the check's own thread ---

void BackgroundCheck::Run() {
  for (Task task; WaitForTask(task);) {
    try {
      Do(task);
    } catch (const std::exception& fault) {
      LogMessage(3, L"BackgroundCheck: " + FromUtf8(fault.what()));
      Tell(toldLast_, task.number);
    }
  }
}

bool BackgroundCheck::WaitForTask(Task& task) {
  std::unique_lock guard(lock_);
  wake_.wait(guard, [this] { return stop_ || next_.number != 0; });
  task = std::exchange(next_, {});
  return !stop_;
}

void BackgroundCheck::Do(const Task& task) {
  if (task.isAfresh) check_->Forget();
  check_->Look(*task.report);
  {
    const std::lock_guard guard(lock_);
    lookedAt_ = task.number;
  }
  const bool isWhole = check_->Work([this] { return HasNewer(); });
  if (isWhole) Tell(WithCards(check_->Findings(), *task.report), task.number);
}

bool BackgroundCheck::HasNewer() const {
  const std::lock_guard guard(lock_);
  return stop_ || next_.number != 0;
}

void BackgroundCheck::Tell(std::vector<Problem> problems, std::uint64_t number) {
  const bool isNews = problems != toldLast_;
  if (isNews) toldLast_ = problems;
  {
    const std::lock_guard guard(lock_);
    done_ = number;
    cardsChecked_ = check_->CardsChecked();
    if (isNews) found_ = std::move(problems);
  }
  if (isNews && tell_) tell_();
}

}  // namespace xrpt
