#include "editor/CDlgInformesList.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

#include "editor/EditorTexts.h"
#include "platform/Characters.h"
#include "platform/FileTexts.h"
#include "platform/Host.h"
#include "platform/SystemNames.h"
#include "platform/Text.h"
#include "platform/UniqueNames.h"

namespace xrpt {
namespace {

std::wstring FileNameOf(const ListedReport& report) { return FromUtf8(report.file.filename().string()); }

// Names are compared as the user's eye does it; files of one name by themselves.
bool ComesBefore(const ListedReport& left, const ListedReport& right, ReportColumn column) {
  switch (column) {
    case ReportColumn::Name:
      return std::make_tuple(FoldCase(left.name), left.file) < std::make_tuple(FoldCase(right.name), right.file);
    case ReportColumn::Changed:
      return left.stamp.modified < right.stamp.modified;
    case ReportColumn::Size:
      return left.stamp.size < right.stamp.size;
    case ReportColumn::File:
      return left.file < right.file;
  }
  return false;
}

bool HoldsWords(const std::wstring& folded, std::wstring_view words) {
  while (!words.empty()) {
    const std::size_t end = std::min(words.find(L' '), words.size());
    if (folded.find(words.substr(0, end)) == folded.npos) return false;
    words.remove_prefix(std::min(end + 1, words.size()));
  }
  return true;
}

bool Passes(const ListedReport& report, const std::wstring& filter) {
  return HoldsWords(FoldCase(report.name + L"\n" + FileNameOf(report)), filter);
}

}  // namespace

CDlgInformesList::CDlgInformesList(ReportListPort& port, std::wstring current, Path open)
    : port_(port), current_(std::move(current)), open_(std::move(open)) {
  UpdateList();
  const auto isCurrent = [this](const ListedReport& r) { return open_.empty() ? r.name == current_ : IsOpen(r); };
  const auto found = std::find_if(rows_.begin(), rows_.end(), isCurrent);
  if (found != rows_.end()) selected_ = {found->file};
  if (found == rows_.end()) Select({0});
}

void CDlgInformesList::UpdateList() {
  all_ = ListReports();
  Show();
}

void CDlgInformesList::Show() {
  rows_.clear();
  std::copy_if(all_.begin(), all_.end(), std::back_inserter(rows_),
               [this](const ListedReport& report) { return Passes(report, filter_); });
  std::stable_sort(rows_.begin(), rows_.end(), [this](const ListedReport& left, const ListedReport& right) {
    return isDescending_ ? ComesBefore(right, left, order_) : ComesBefore(left, right, order_);
  });
}

void CDlgInformesList::SetFilter(std::wstring_view text) {
  filter_ = FoldCase(Trimmed(text));
  Show();
  if (Selection().empty()) Select({0});
}

void CDlgInformesList::OrderList(ReportColumn column) {
  isDescending_ = column == order_ && !isDescending_;
  order_ = column;
  Show();
}

std::vector<std::size_t> CDlgInformesList::Selection() const {
  std::vector<std::size_t> rows;
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    if (std::find(selected_.begin(), selected_.end(), rows_[row].file) != selected_.end()) rows.push_back(row);
  }
  return rows;
}

void CDlgInformesList::Select(const std::vector<std::size_t>& rows) {
  selected_.clear();
  for (const std::size_t row : rows) {
    if (row < rows_.size()) selected_.push_back(rows_[row].file);
  }
}

CDlgInformesList::Buttons CDlgInformesList::UpdateButtons() const {
  const std::vector<std::size_t> rows = Selection();
  const bool areOthers = std::none_of(rows.begin(), rows.end(), [this](std::size_t row) { return IsOpen(rows_[row]); });
  return {!rows.empty(), rows.size() == 1 && areOthers, rows.size() == 1, !rows.empty() && areOthers};
}

const ListedReport* CDlgInformesList::Only() const {
  const std::vector<std::size_t> rows = Selection();
  return rows.size() == 1 ? &rows_[rows.front()] : nullptr;
}

// The report that was made or renamed is selected, whatever the filter says of it.
bool CDlgInformesList::Conclude(const std::wstring& problem, const std::wstring& name) {
  if (!problem.empty()) port_.TellFailure(problem);
  all_ = ListReports();
  const auto made = std::find_if(all_.begin(), all_.end(), [&](const ListedReport& r) { return r.name == name; });
  if (problem.empty() && made != all_.end()) {
    selected_ = {made->file};
    if (!Passes(*made, filter_)) filter_.clear();
  }
  Show();
  return problem.empty();
}

bool CDlgInformesList::OnRename() {
  const ListedReport* report = Only();
  if (!report || !UpdateButtons().rename) return false;
  const std::optional<std::wstring> name = port_.AskForName(text::kRenameReport, report->name);
  if (!name || *name == report->name) return false;
  return Conclude(RenameReport(*report, *name), *name);
}

bool CDlgInformesList::OnDuplicate() {
  const ListedReport* report = Only();
  if (!report) return false;
  UniqueNames names;
  for (const ListedReport& other : all_) names.Add(other.name);
  const std::optional<std::wstring> name = port_.AskForName(text::kDuplicateReport, names.Take(report->name));
  return name && Conclude(DuplicateReport(*report, *name), *name);
}

Question CDlgInformesList::AskToDelete(const std::vector<std::size_t>& rows) const {
  std::wstring files;
  for (const std::size_t row : rows) files += (files.empty() ? L"" : L"\n") + FileNameOf(rows_[row]);
  const bool isOne = rows.size() == 1;
  return {.textId = text::kDeleteReport,
          .text = isOne ? FillIn(HostText(text::kDeleteReport), {rows_[rows.front()].name})
                        : FillIn(HostText(text::kDeleteReports), {std::to_wstring(rows.size())}),
          .detail = FillIn(HostText(text::kDeleteReportDetail), {files}),
          .answers = {text::kDeleteAnswer, text::kCancelAnswer},
          .yes = 0,
          .no = 1,
          .isAlarming = true,
          .usual = 1};
}

bool CDlgInformesList::OnDelete() {
  const std::vector<std::size_t> rows = Selection();
  if (!UpdateButtons().remove) return false;
  if (port_.Decide(AskToDelete(rows)) != 0) return false;
  std::wstring problems;
  for (const std::size_t row : rows) {
    const std::wstring problem = RemoveReport(rows_[row]);
    if (!problem.empty()) problems += (problems.empty() ? L"" : L"\n") + problem;
  }
  const std::size_t first = rows.front();
  const bool done = Conclude(problems, {});
  if (Selection().empty() && !rows_.empty()) Select({std::min(first, rows_.size() - 1)});
  return done;
}

std::wstring CDlgInformesList::Chosen() const {
  const std::vector<std::size_t> rows = Selection();
  if (rows.empty()) return {};
  const ListedReport& report = rows_[rows.front()];
  if (!report.sharesName || IsOpen(report)) return report.name;
  const std::wstring path = FromUtf8(report.file.string());
  return path.substr(0, path.size() - kReportEnding.size());
}

}  // namespace xrpt
