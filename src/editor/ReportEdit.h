// The one door for changes of the report: a named edit over pages and tables, whose end is one step of the report's
// history, whatever it touched. Edits of pages that are opened while it runs belong to it; one that is opened inside
// another belongs to that.
//
//   ReportEdit edit = frame.Edit({text::kSearchReplaced, 3});
//   edit.Page(0).Card(index).field = L"M1.P";
//   edit.Table(ReportTable::Formules).Parse(text);
//   edit.End();
#pragma once

#include "editor/ReportHistory.h"

namespace xrpt {

class RVEditControlWnd;

class ReportEdit {
 public:
  ReportEdit(ReportEdit&& other) noexcept : frame_(std::exchange(other.frame_, nullptr)) {}
  ReportEdit& operator=(ReportEdit&&) = delete;
  ~ReportEdit() { End(); }

  // An edit of one page; it ends by itself.
  PageEdit Page(std::size_t index);
  // A table to be changed, with its root.
  XmlDocument& Table(ReportTable table);
  void Rename(const std::wstring& name);
  // Other pages, or the same in another order, and which of them is shown.
  void SetPages(PageOrder pages);

  // True when it changed anything.
  bool End();

 private:
  friend class RVEditControlWnd;
  explicit ReportEdit(RVEditControlWnd& frame) : frame_(&frame) {}

  RVEditControlWnd* frame_;
};

}  // namespace xrpt
