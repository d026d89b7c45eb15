// The door to the page: what edits give out, and how their end becomes a step.
#include "canvas/PageEdit.h"

#include "canvas/RVEditTemplateWnd.h"
#include "model/RVCardImage.h"

namespace xrpt {

namespace {

// A background picture that covers the page goes on doing so.
void CoverAsBefore(RVGlobalProperties& page, const RVGlobalProperties& before) {
  if (before.Background().width == before.width) page.Background().width = page.width;
  if (before.Background().height == before.height) page.Background().height = page.height;
}

}  // namespace

PageEdit::PageEdit(PageEdit&& other) noexcept
    : window_(std::exchange(other.window_, nullptr)), name_(other.name_), joins_(std::move(other.joins_)) {}

const RVReportPage& PageEdit::Page() const { return window_->page_; }

RVCardControl& PageEdit::Card(std::size_t index) { return window_->editedPage_.cards.Edit(index); }

RVCardControl* PageEdit::Card(std::wstring_view id) { return window_->editedPage_.cards.Edit(id); }

RVGlobalProperties& PageEdit::Properties() { return window_->editedPage_.properties; }

CardList& PageEdit::Cards() { return window_->editedPage_.cards; }

bool PageEdit::End() { return window_ && std::exchange(window_, nullptr)->FinishEdit(name_, joins_, true); }

bool PageEdit::EndQuietly() { return window_ && std::exchange(window_, nullptr)->FinishEdit(name_, joins_, false); }

// Where selecting is no step, undo comes back to what was selected when the change began.
PageEdit RVEditTemplateWnd::Edit(UndoName name, JoinKey joins) {
  if (!options_.countsSelections && !history_.IsEmpty() && !selection_.HasSameCards(history_.Newest().Selection())) {
    history_.Newest().TakeSelection(selection_);
  }
  return {*this, name, std::move(joins)};
}

bool RVEditTemplateWnd::FinishEdit(UndoName name, const JoinKey& joins, bool announces) {
  const RVGlobalProperties& now = page_.properties;
  const RVGlobalProperties& before = history_.IsEmpty() ? now : history_.Newest().Page();
  if (before.width != now.width || before.height != now.height) {
    CoverAsBefore(editedPage_.properties, before);
    RefitAfterPageChange();
  }
  const bool changed = Record(false, name, joins);
  if (changed) AnnounceAnimations();
  DropGoneFromSelection();
  RedrawBackground();
  if (announces) queue_.Post(&parent_, {Message::CardChanged, SelectedCardId(), 0});
  return changed;
}

}  // namespace xrpt
