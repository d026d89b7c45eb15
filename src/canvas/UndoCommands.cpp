// Taking snapshots and going back and forth between them.
#include "canvas/MouseState.h"
#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"

namespace xrpt {

bool RVEditTemplateWnd::AddUndoInfo(bool force, UndoName name) {
  RVUndo step = history_.IsEmpty() ? RVUndo() : RVUndo::After(history_.Newest());
  const bool selection = step.SetChange(selection_);
  const bool cards = step.SetChange(page_.cards);
  const bool page = step.SetChange(page_.properties);
  if (!selection && !cards && !page && !force) return false;
  step.name = StepName(step, name);
  history_.Add(std::move(step));
  return true;
}

// A gesture that came to nothing may still have selected something.
UndoName RVEditTemplateWnd::StepName(const RVUndo& step, UndoName asked) const {
  if (step.IsControlListChanged() || step.IsGlobalsChanged() || !step.IsSelectionChanged()) return asked;
  return {text::kSelect, 0};
}

void RVEditTemplateWnd::ControlUndo() {
  if (!history_.CanUndo()) return;
  PauseTimer();
  const RVUndo& undone = history_.StepBack();
  Restore(history_.Newest(), undone);
}

void RVEditTemplateWnd::ControlRedo() {
  if (!history_.CanRedo()) return;
  PauseTimer();
  const RVUndo& redone = history_.StepForward();
  Restore(redone, redone);
}

// Takes from a step what the flags of the step gone over say has changed.
void RVEditTemplateWnd::Restore(const RVUndo& step, const RVUndo& flags) {
  DropGesture();
  if (flags.IsControlListChanged()) page_.cards.Restore(step.Cards());
  if (flags.IsSelectionChanged()) selection_ = step.Selection();
  if (flags.IsGlobalsChanged()) {
    // The grid is the user's way of working, not a change of the page.
    const GridSteps grid = GridOf(page_.properties);
    page_.properties = step.Page();
    page_.properties.xgrid = grid.x;
    page_.properties.ygrid = grid.y;
    if (zoom_ <= 0.0) SetMode(0);
    InitializeScrollBars(false);
    if (zoom_ <= 0.0) SetMode(0);
  }
  RedrawBackground();
  PostChange(!flags.IsControlListChanged() && !flags.IsGlobalsChanged());
  StartTimer();
}

UndoName RVEditTemplateWnd::NextUndoName() const { return history_.CanUndo() ? history_.Newest().name : UndoName(); }

UndoName RVEditTemplateWnd::NextRedoName() const {
  const RVUndo* next = history_.NextRedo();
  return next ? next->name : UndoName();
}

}  // namespace xrpt
