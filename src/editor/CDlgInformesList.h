// The list of the configuration folder's reports: what the dialog does, without the dialog. What is done to files here
// is done at once and is no step of a report's history; the report that is open is left alone.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "editor/DialogPort.h"
#include "editor/ReportFiles.h"

namespace xrpt {

// What the list asks of whoever shows it.
class ReportListPort : public DialogPort {
 public:
  // Another name, or the name of a copy. Nothing when cancelled.
  virtual std::optional<std::wstring> AskForName(int titleTextId, const std::wstring& proposed) = 0;
};

enum class ReportColumn { Name, Changed, Size, File };

class CDlgInformesList {
 public:
  // `current` is the name of the report that is open and `open` its file (empty: it has none); it is selected to begin
  // with. The port must outlive the list.
  CDlgInformesList(ReportListPort& port, std::wstring current, Path open);

  // Those that the filter leaves, in the order chosen.
  const std::vector<ListedReport>& Rows() const { return rows_; }
  bool IsOpen(const ListedReport& report) const { return report.file == open_; }
  // Reads the folder again; what was selected stays selected.
  void UpdateList();
  // Reports whose name or file holds every word of the text, in any case. When the filter hides what was selected, the
  // first row is.
  void SetFilter(std::wstring_view text);
  // False again when a report that was made or renamed would have been hidden.
  bool IsFiltered() const { return !filter_.empty(); }
  // By the column; by the same one again, the other way round.
  void OrderList(ReportColumn column);
  ReportColumn Order() const { return order_; }
  bool IsDescending() const { return isDescending_; }

  // Row numbers, ascending.
  std::vector<std::size_t> Selection() const;
  void Select(const std::vector<std::size_t>& rows);

  struct Buttons {
    bool open = false;
    bool rename = false;
    bool duplicate = false;
    bool remove = false;
  };
  Buttons UpdateButtons() const;

  // Each says whether it changed the folder.
  bool OnRename();
  bool OnDuplicate();
  bool OnDelete();

  // What opens the first selected report: its name, or its path without the ending where another report has the name.
  std::wstring Chosen() const;

 private:
  const ListedReport* Only() const;
  void Show();
  Question AskToDelete(const std::vector<std::size_t>& rows) const;
  bool Conclude(const std::wstring& problem, const std::wstring& name);

  ReportListPort& port_;
  std::wstring current_;
  Path open_;
  std::vector<ListedReport> all_;
  std::vector<ListedReport> rows_;
  std::vector<Path> selected_;
  std::wstring filter_;  // folded
  ReportColumn order_ = ReportColumn::Name;
  bool isDescending_ = false;
};

}  // namespace xrpt
