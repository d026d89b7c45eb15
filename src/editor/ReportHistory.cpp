#include "editor/ReportHistory.h"

#include <algorithm>

namespace xrpt {
namespace {

// The step of one page alone, taken out of a step that may hold others.
ReportStep TakePage(ReportStep& step, RVEditTemplateWnd& page) {
  ReportStep own{step.name, {&page}, {}, step.changesReport, step.serial};
  std::erase(step.pages, &page);
  return own;
}

template <class Steps>
auto LastWith(Steps& steps, const RVEditTemplateWnd& page) {
  return std::find_if(steps.rbegin(), steps.rend(), [&](const ReportStep& step) { return step.Holds(page); });
}

template <class Steps>
void DropPage(Steps& steps, typename Steps::iterator at, const RVEditTemplateWnd& page) {
  std::erase(at->pages, &page);
  if (at->IsEmpty()) steps.erase(at);
}

// Moves the last step of a page from one side to the end of the other.
template <class From, class To>
bool MoveLast(From& from, To& to, RVEditTemplateWnd& page) {
  const auto found = LastWith(from, page);
  if (found == from.rend()) return false;
  to.push_back(TakePage(*found, page));
  if (found->IsEmpty()) from.erase(std::next(found).base());
  return to.back().changesReport;
}

}  // namespace

bool ReportChange::IsEmpty() const {
  return !name && !pages && std::none_of(tables.begin(), tables.end(), [](const auto& table) { return table; });
}

bool ReportStep::Holds(const RVEditTemplateWnd& page) const {
  return std::find(pages.begin(), pages.end(), &page) != pages.end();
}

std::vector<UndoName> ReportHistory::DoneNames() const {
  std::vector<UndoName> names;
  for (const ReportStep& step : done_) names.push_back(step.name);
  return names;
}

std::vector<UndoName> ReportHistory::UndoneNames() const {
  std::vector<UndoName> names;
  for (auto step = undone_.rbegin(); step != undone_.rend(); ++step) names.push_back(step->name);
  return names;
}

void ReportHistory::Add(ReportStep step, std::size_t most) {
  undone_.clear();
  step.serial = ++lastSerial_;
  const bool changes = !step.change.IsEmpty();
  done_.push_back(std::move(step));
  if (!changes) return;
  const auto kept = std::count_if(done_.begin(), done_.end(), [](const auto& s) { return !s.change.IsEmpty(); });
  if (static_cast<std::size_t>(kept) <= most) return;
  // What came before a change that is forgotten cannot be reached any more.
  while (done_.front().change.IsEmpty()) done_.pop_front();
  done_.pop_front();
}

const ReportStep& ReportHistory::StepBack() {
  undone_.push_back(std::move(done_.back()));
  done_.pop_back();
  return undone_.back();
}

const ReportStep& ReportHistory::StepForward() {
  done_.push_back(std::move(undone_.back()));
  undone_.pop_back();
  return done_.back();
}

void ReportHistory::Clear() {
  done_.clear();
  undone_.clear();
}

bool ReportHistory::PageStepUndone(RVEditTemplateWnd& page) { return MoveLast(done_, undone_, page); }

bool ReportHistory::PageStepRedone(RVEditTemplateWnd& page) { return MoveLast(undone_, done_, page); }

void ReportHistory::NewestPageStepGone(const RVEditTemplateWnd& page) {
  const auto found = LastWith(done_, page);
  if (found != done_.rend()) DropPage(done_, std::next(found).base(), page);
}

void ReportHistory::OldestPageStepGone(const RVEditTemplateWnd& page) {
  const auto found = std::find_if(done_.begin(), done_.end(), [&](const auto& step) { return step.Holds(page); });
  if (found != done_.end()) DropPage(done_, found, page);
}

void ReportHistory::PageCleared(const RVEditTemplateWnd& page) {
  const auto clear = [&](auto& steps) {
    for (ReportStep& step : steps) std::erase(step.pages, &page);
    std::erase_if(steps, [](const ReportStep& step) { return step.IsEmpty(); });
  };
  clear(done_);
  clear(undone_);
}

}  // namespace xrpt
