// The pages of the report and their windows: adding, deleting, copying and reordering them, each a step.
#include <algorithm>

#include "canvas/UndoTexts.h"
#include "editor/CDlgGlobalProperties.h"
#include "editor/EditorTexts.h"
#include "editor/NotesStore.h"
#include "editor/RVEditControlWnd.h"
#include "platform/Host.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

bool Contains(const PageSlots& pages, const std::shared_ptr<PageSlot>& slot) {
  return std::find(pages.begin(), pages.end(), slot) != pages.end();
}

std::ptrdiff_t Distance(std::size_t index) { return static_cast<std::ptrdiff_t>(index); }

}  // namespace

// --- Windows ---

std::shared_ptr<PageSlot> RVEditControlWnd::NewSlot(std::shared_ptr<RVReportPage> page) {
  auto slot = std::make_shared<PageSlot>();
  slot->page = std::move(page);
  slot->port = port_.NewPageWindow();
  slot->window = std::make_unique<RVEditTemplateWnd>(*slot->page, *slot->port, queue_, *this);
  slot->window->SetOptions(options_);
  slot->window->SetHistoryListener(this);
  return slot;
}

void RVEditControlWnd::Attach(PageSlot& slot) {
  slot.window->SetDpi(CurrentHost().screen->DpiX(), CurrentHost().screen->DpiY());
  slot.window->SetFontFactor(slot.page->fontFactor);
  slot.window->SetInsertKind(tool_);
  if (!notesFolder_.empty()) slot.window->SetNotes(&notes_, [this] { KeepNotes(); });
  slot.window->SetPreview(preview_);
  slot.window->ShowGrid(gridShown_);
  slot.window->InitializeScrollBars(false);
  port_.PageWindowReady(*slot.port, *slot.window);
}

// Messages still on their way may name what is going.
void RVEditControlWnd::Detach(PageSlot& slot) {
  queue_.Forget(this);
  slot.window->DropGesture();
  slot.window->PauseTimer();
  port_.PageWindowGone(*slot.port);
}

void RVEditControlWnd::BuildPages() {
  for (const auto& page : report_.pages) {
    pages_.push_back(NewSlot(page));
    Attach(*pages_.back());
  }
  current_ = 0;
  searchPage_ = -1;
  port_.PagesChanged();
  port_.StateChanged();
}

void RVEditControlWnd::DropPages() {
  for (const auto& slot : pages_) Detach(*slot);
  pages_.clear();
  history_.Clear();
}

// Windows that stay are left as they are.
void RVEditControlWnd::ApplyOrder(const PageOrder& order) {
  const PageSlots before = std::exchange(pages_, order.pages);
  for (const auto& slot : before) {
    if (!Contains(pages_, slot)) Detach(*slot);
  }
  report_.pages.clear();
  for (const auto& slot : pages_) {
    report_.pages.push_back(slot->page);
    if (!Contains(before, slot)) Attach(*slot);
  }
  current_ = order.current;
  searchPage_ = -1;
  port_.PagesChanged();
  port_.StateChanged();
}

// --- What users do with pages ---

bool RVEditControlWnd::ShowPage(std::size_t index) {
  if (index >= pages_.size() || index == current_) return false;
  EndEdits();
  CurrentPage().PauseTimer();
  current_ = index;
  searchPage_ = -1;
  CurrentPage().PlayTimer();
  port_.PagesChanged();
  port_.StateChanged();
  return true;
}

void RVEditControlWnd::AddPage() {
  auto page = std::make_shared<RVReportPage>();
  page->fontFactor = report_.fontFactor;
  PageOrder order = CurrentOrder();
  order.pages.push_back(NewSlot(std::move(page)));
  order.current = order.pages.size() - 1;
  Edit({text::kPageAdded, 0}).SetPages(std::move(order));
}

bool RVEditControlWnd::DeletePage() {
  if (pages_.size() < 2 || port_.Ask(text::kDeletePageQuestion) != Answer::Yes) return false;
  PageOrder order = CurrentOrder();
  order.pages.erase(order.pages.begin() + Distance(current_));
  order.current = std::min(current_, order.pages.size() - 1);
  Edit({text::kPageDeleted, 0}).SetPages(std::move(order));
  return true;
}

bool RVEditControlWnd::DuplicatePage() {
  PageOrder order = CurrentOrder();
  order.current = current_ + 1;
  order.pages.insert(order.pages.begin() + Distance(order.current), NewSlot(pages_[current_]->page->Duplicate()));
  Edit({text::kPageDuplicated, 0}).SetPages(std::move(order));
  return true;
}

bool RVEditControlWnd::MovePage(std::size_t from, std::size_t to) {
  if (from >= pages_.size() || to > pages_.size() || to == from || to == from + 1) return false;
  PageOrder order = CurrentOrder();
  const std::shared_ptr<PageSlot> moved = order.pages[from];
  order.pages.insert(order.pages.begin() + Distance(to), moved);
  order.pages.erase(order.pages.begin() + Distance(to <= from ? from + 1 : from));
  const auto shown = std::find(order.pages.begin(), order.pages.end(), pages_[current_]);
  order.current = static_cast<std::size_t>(shown - order.pages.begin());
  Edit({text::kPageMoved, 0}).SetPages(std::move(order));
  return true;
}

bool RVEditControlWnd::SetOrientation(int orientation) {
  const bool swapped = CurrentPage().SetOrientation(orientation);
  if (swapped) port_.StateChanged();
  return swapped;
}

bool RVEditControlWnd::OnConfig() {
  EndEdits();
  CDlgGlobalProperties dialog(CurrentPage().Page().properties);
  return port_.EditPageProperties(dialog) && TakeProperties(dialog);
}

bool RVEditControlWnd::TakeProperties(const CDlgGlobalProperties& dialog) {
  if (!dialog.HasChanged() && !dialog.samePaperForAll) return false;
  ReportEdit edit = Edit({text::kChangePage, 0});
  for (std::size_t page = 0; page < PageCount(); ++page) {
    if (page == current_) {
      edit.Page(page).Properties() = dialog.properties;
    } else if (dialog.samePaperForAll) {
      dialog.GivePaper(edit.Page(page).Properties());
    }
  }
  const bool changed = edit.End() || dialog.HasChanged();
  // A grid that is no step of the history is saved all the same.
  if (changed && !report_.modified) SetModified(true);
  port_.StateChanged();
  return changed;
}

bool RVEditControlWnd::IsGridOn() const {
  const RVGlobalProperties& page = CurrentPage().Page().properties;
  return page.xgrid > 0.0 || page.ygrid > 0.0;
}

bool RVEditControlWnd::ToggleGrid() {
  const double sign = IsGridOn() ? -1.0 : 1.0;
  PageEdit edit = CurrentPage().Edit({text::kGridSwitched, 0});
  RVGlobalProperties& page = edit.Properties();
  page.xgrid = sign * std::abs(page.xgrid);
  page.ygrid = sign * std::abs(page.ygrid);
  edit.End();
  // Saved, though pages keep no step of it unless asked to.
  if (!options_.countsGrid) SetModified(true);
  return true;
}

// --- Notes ---

void RVEditControlWnd::RememberIn(const Path& folder) {
  notesFolder_ = folder;
  ReadNotes();
  for (const auto& slot : pages_) slot->window->SetNotes(&notes_, [this] { KeepNotes(); });
}

void RVEditControlWnd::ReadNotes() {
  notes_ = report_.File().empty() ? CardNotes() : xrpt::ReadNotes(NotesFile(notesFolder_, report_.id));
}

// A report that was never saved has nobody who could come back to its notes.
void RVEditControlWnd::KeepNotes() {
  if (!notesFolder_.empty() && !report_.File().empty()) WriteNotes(NotesFile(notesFolder_, report_.id), notes_);
  port_.StateChanged();
}

// --- How pages are looked at ---

bool RVEditControlWnd::TogglePreview() {
  preview_ = !preview_;
  for (const auto& slot : pages_) slot->window->SetPreview(preview_);
  port_.StateChanged();
  return true;
}

bool RVEditControlWnd::ToggleGridShown() {
  gridShown_ = !IsGridShown();
  for (const auto& slot : pages_) slot->window->ShowGrid(gridShown_);
  port_.StateChanged();
  return true;
}

void RVEditControlWnd::SetTool(int tool) {
  tool_ = tool;
  for (const auto& slot : pages_) slot->window->SetInsertKind(tool);
  port_.StateChanged();
}

}  // namespace xrpt
