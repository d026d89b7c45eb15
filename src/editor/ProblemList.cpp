#include "editor/ProblemList.h"

#include <algorithm>

namespace xrpt {

void ProblemList::SetFound(std::vector<Problem> problems) {
  found_ = std::move(problems);
  Arrange();
}

void ProblemList::AddNotice(Severity severity, std::wstring text) {
  if (notices_.size() == kMostNotices) notices_.erase(notices_.begin());
  notices_.push_back({severity, std::move(text)});
  Arrange();
}

void ProblemList::Show(Severity severity, bool on) {
  shown_[Place(severity)] = on;
  Arrange();
}

void ProblemList::Arrange() {
  rows_.clear();
  counts_ = {};
  worst_.clear();
  const auto add = [this](Severity severity, std::size_t place) {
    ++counts_[Place(severity)];
    if (Shows(severity)) rows_.push_back(place);
    return Shows(severity);
  };
  for (std::size_t i = 0; i < notices_.size(); ++i) add(notices_[i].severity, i);
  for (std::size_t i = 0; i < found_.size(); ++i) {
    const Severity severity = found_[i].finding.code->severity;
    if (!add(severity, notices_.size() + i) || found_[i].card == 0) continue;
    Severity& worst = worst_.try_emplace(found_[i].card, severity).first->second;
    worst = std::max(worst, severity);
  }
}

Severity ProblemList::SeverityOf(std::size_t row) const {
  const Problem* problem = ProblemOf(row);
  return problem ? problem->finding.code->severity : notices_[rows_[row]].severity;
}

std::wstring ProblemList::MessageOf(std::size_t row) const {
  const Problem* problem = ProblemOf(row);
  return problem ? xrpt::MessageOf(problem->finding) : notices_[rows_[row]].text;
}

const Problem* ProblemList::ProblemOf(std::size_t row) const {
  return rows_[row] < notices_.size() ? nullptr : &FoundAt(row);
}

std::optional<std::size_t> ProblemList::RowOf(const Problem& problem) const {
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    const Problem* other = ProblemOf(row);
    if (other && other->card == problem.card && other->finding.code == problem.finding.code &&
        other->finding.detail == problem.finding.detail && other->finding.place.inner == problem.finding.place.inner) {
      return row;
    }
  }
  return std::nullopt;
}

std::optional<Severity> ProblemList::WorstOf(CardKey card) const {
  const auto worst = worst_.find(card);
  if (worst == worst_.end()) return std::nullopt;
  return worst->second;
}

std::vector<std::wstring> ProblemList::MessagesOf(CardKey card) const {
  std::vector<std::wstring> messages;
  for (const Problem& problem : found_) {
    if (problem.card == card && Shows(problem.finding.code->severity)) {
      messages.push_back(xrpt::MessageOf(problem.finding));
    }
  }
  return messages;
}

}  // namespace xrpt
