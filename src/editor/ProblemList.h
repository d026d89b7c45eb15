// The rows of the list of problems: what the checks found in the report, and what the program had to say (a file that
// could not be read or written). Which kinds of rows are shown is the user's choice.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "formulas/checks/Problem.h"

namespace xrpt {

class ProblemList {
 public:
  static constexpr std::size_t kMostNotices = 100;  // the oldest go

  // Takes the place of what was found before.
  void SetFound(std::vector<Problem> problems);
  void AddNotice(Severity severity, std::wstring text);

  void Show(Severity severity, bool on);
  bool Shows(Severity severity) const { return shown_[Place(severity)]; }

  // Shown or not.
  std::size_t Count(Severity severity) const { return counts_[Place(severity)]; }
  std::size_t CountAll() const { return notices_.size() + found_.size(); }

  // Rows that are shown: notices first, then the problems in the order of the report.
  std::size_t Size() const { return rows_.size(); }
  Severity SeverityOf(std::size_t row) const;
  std::wstring MessageOf(std::size_t row) const;
  // Null for a notice.
  const Problem* ProblemOf(std::size_t row) const;
  // The row of a problem like that one; nothing when it is gone or not shown.
  std::optional<std::size_t> RowOf(const Problem& problem) const;

  // The worst that is shown of a card, and what it is; nothing for a card that is in order.
  std::optional<Severity> WorstOf(CardKey card) const;
  std::vector<std::wstring> MessagesOf(CardKey card) const;
  bool HasMarks() const { return !worst_.empty(); }

 private:
  struct Notice {
    Severity severity;
    std::wstring text;
  };

  static std::size_t Place(Severity severity) { return static_cast<std::size_t>(severity); }
  const Problem& FoundAt(std::size_t row) const { return found_[rows_[row] - notices_.size()]; }
  void Arrange();

  std::vector<Notice> notices_;
  std::vector<Problem> found_;
  std::array<bool, 3> shown_{true, true, true};
  std::array<std::size_t, 3> counts_{};
  std::vector<std::size_t> rows_;  // places in the notices and, behind them, in what was found
  std::unordered_map<CardKey, Severity> worst_;
};

}  // namespace xrpt
