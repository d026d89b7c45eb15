// Taking snapshots and going back and forth between them.
#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"

namespace xrpt {

bool RVEditTemplateWnd::AddUndoInfo(bool force, UndoName name) { return Record(force, name, {}); }

bool RVEditTemplateWnd::Record(bool force, UndoName name, const JoinKey& joins) {
  if (!joins.empty() && joins == joins_ && history_.CanUndo()) return Join();
  joins_.clear();
  RVUndo step = history_.IsEmpty() ? RVUndo() : RVUndo::After(history_.Newest());
  const bool selection = step.SetChange(selection_);
  const bool cards = step.SetChange(page_.cards);
  const bool page = step.SetChange(page_.properties, options_.countsGrid);
  if (!force && !cards && !page) {
    if (!selection) return false;
    if (!options_.countsSelections) {
      history_.Newest().TakeSelection(selection_);
      return false;
    }
  }
  step.name = StepName(step, name);
  joins_ = joins;
  const UndoName taken = step.name;
  const bool changesPage = step.ChangesPage();
  const bool dropped = history_.Add(std::move(step), options_.mostSnapshots);
  if (!listener_) return true;
  listener_->OnStepTaken(*this, taken, changesPage);
  if (dropped) listener_->OnOldestDropped(*this);
  return true;
}

// The same field goes on being edited: the newest step takes what it is now. Back where it began there is nothing to
// undo.
bool RVEditTemplateWnd::Join() {
  RVUndo& newest = history_.Newest();
  const bool cards = newest.SetChange(page_.cards);
  const bool page = newest.SetChange(page_.properties, options_.countsGrid);
  if (!cards && !page) return false;
  RVUndo sinceBefore = RVUndo::After(history_.Previous());
  const bool differs =
      sinceBefore.SetChange(page_.cards) || sinceBefore.SetChange(page_.properties, options_.countsGrid);
  if (!differs) {
    DeleteLastUndo();
  } else if (listener_) {
    listener_->OnStepJoined(*this);
  }
  return true;
}

void RVEditTemplateWnd::DeleteLastUndo() {
  joins_.clear();
  if (history_.IsEmpty()) return;
  history_.DeleteLast();
  if (listener_) listener_->OnStepWithdrawn(*this);
}

void RVEditTemplateWnd::DeleteUndoList() {
  joins_.clear();
  history_.Clear();
  if (listener_) listener_->OnHistoryCleared(*this);
}

// A gesture that came to nothing may still have selected something.
UndoName RVEditTemplateWnd::StepName(const RVUndo& step, UndoName asked) const {
  if (step.ChangesPage() || !step.IsSelectionChanged()) return asked;
  return {text::kSelect, 0};
}

void RVEditTemplateWnd::ControlUndo() {
  if (!history_.CanUndo()) return;
  PauseTimer();
  const RVUndo& undone = history_.StepBack();
  Restore(history_.Newest(), undone);
  if (listener_) listener_->OnStepUndone(*this);
}

void RVEditTemplateWnd::ControlRedo() {
  if (!history_.CanRedo()) return;
  PauseTimer();
  const RVUndo& redone = history_.StepForward();
  Restore(redone, redone);
  if (listener_) listener_->OnStepRedone(*this);
}

// Takes from a step what the flags of the step gone over say has changed.
void RVEditTemplateWnd::Restore(const RVUndo& step, const RVUndo& flags) {
  DropGesture();
  joins_.clear();
  if (flags.IsControlListChanged()) {
    editedPage_.cards.Restore(step.Cards());
    AnnounceAnimations();
  }
  if (flags.IsSelectionChanged() || !options_.countsSelections) selection_ = step.Selection();
  if (flags.IsGlobalsChanged()) TakePageFrom(step);
  DropGoneFromSelection();
  ForgetSearch();
  RedrawBackground();
  PostChange(!flags.ChangesPage());
  StartTimer();
}

void RVEditTemplateWnd::TakePageFrom(const RVUndo& step) {
  // Where it is no step, the grid is the user's way of working and not a change of the page.
  const GridSteps grid = GridOf(options_.countsGrid ? step.Page() : page_.properties);
  editedPage_.properties = step.Page();
  editedPage_.properties.xgrid = grid.x;
  editedPage_.properties.ygrid = grid.y;
  RefitAfterPageChange();
  // Scroll bars that came or went change what there is to fit into.
  if (Zoom() < 0.0) RefitAfterPageChange();
}

UndoName RVEditTemplateWnd::NextUndoName() const { return history_.CanUndo() ? history_.Newest().name : UndoName(); }

UndoName RVEditTemplateWnd::NextRedoName() const {
  const RVUndo* next = history_.NextRedo();
  return next ? next->name : UndoName();
}

}  // namespace xrpt
