// The one door of the report and the order of its steps.
#include <algorithm>

#include "editor/RVEditControlWnd.h"

namespace xrpt {

// --- The door ---

PageEdit ReportEdit::Page(std::size_t index) { return frame_->Page(index).Edit(frame_->open_.step.name); }

XmlDocument& ReportEdit::Table(ReportTable table) {
  auto& replaced = frame_->open_.step.change.tables[static_cast<std::size_t>(table)];
  XmlDocument& document = frame_->Table(table);
  if (!replaced) replaced = {std::make_shared<const XmlDocument>(document.Clone()), nullptr};
  return document;
}

void ReportEdit::Rename(const std::wstring& name) {
  auto& replaced = frame_->open_.step.change.name;
  if (!replaced) replaced = {frame_->report_.name, {}};
  replaced->after = frame_->report_.name = name;
}

void ReportEdit::SetPages(PageOrder pages) {
  auto& replaced = frame_->open_.step.change.pages;
  if (!replaced) replaced = {frame_->CurrentOrder(), {}};
  replaced->after = pages;
  frame_->ApplyOrder(pages);
}

bool ReportEdit::End() { return frame_ && std::exchange(frame_, nullptr)->FinishEdit(); }

ReportEdit RVEditControlWnd::Edit(UndoName name) {
  if (open_.depth++ == 0) {
    EndEdits();
    open_.step = {name, {}, {}, false};
  }
  return ReportEdit(*this);
}

// What is as it was is no part of the step.
bool RVEditControlWnd::FinishEdit() {
  if (--open_.depth > 0) return false;
  ReportStep step = std::exchange(open_.step, {});
  for (std::size_t i = 0; i < kReportTables; ++i) {
    auto& table = step.change.tables[i];
    if (!table) continue;
    table->after = std::make_shared<const XmlDocument>(Table(static_cast<ReportTable>(i)).Clone());
    if (table->after->Text() == table->before->Text()) table.reset();
  }
  if (step.change.name && step.change.name->before == step.change.name->after) step.change.name.reset();
  if (step.IsEmpty()) return false;
  step.changesReport = step.changesReport || !step.change.IsEmpty();
  Take(std::move(step));
  return true;
}

void RVEditControlWnd::EndEdits() {
  for (const auto& slot : pages_) slot->window->EndEdit();
}

XmlDocument& RVEditControlWnd::Table(ReportTable table) {
  switch (table) {
    case ReportTable::Formules:
      return report_.formules;
    case ReportTable::VirtualDevices:
      return report_.virtualDevices;
    default:
      return report_.goBackVariables;
  }
}

// --- Steps of the pages ---

void RVEditControlWnd::OnStepTaken(RVEditTemplateWnd& page, const UndoName& name, bool changesPage) {
  if (open_.depth == 0) return Take({name, {&page}, {}, changesPage});
  if (!open_.step.Holds(page)) open_.step.pages.push_back(&page);
  open_.step.changesReport = open_.step.changesReport || changesPage;
}

void RVEditControlWnd::Take(ReportStep step) {
  if (step.changesReport) Touch();
  for (const auto& slot : pages_) {
    if (!step.Holds(*slot->window)) slot->window->ForgetRedo();
  }
  history_.Add(std::move(step), options_.mostSnapshots);
  port_.StateChanged();
}

void RVEditControlWnd::OnStepJoined(RVEditTemplateWnd&) {
  Touch();
  port_.StateChanged();
}

void RVEditControlWnd::OnStepWithdrawn(RVEditTemplateWnd& page) {
  history_.NewestPageStepGone(page);
  MarkByHistory(true);
}

void RVEditControlWnd::OnStepUndone(RVEditTemplateWnd& page) {
  if (replaying_) return;
  MarkByHistory(history_.PageStepUndone(page));
}

void RVEditControlWnd::OnStepRedone(RVEditTemplateWnd& page) {
  if (replaying_) return;
  MarkByHistory(history_.PageStepRedone(page));
}

// --- Back and forth ---

bool RVEditControlWnd::Undo() {
  EndEdits();
  if (!CanUndo()) return false;
  Replay(history_.StepBack(), true);
  return true;
}

bool RVEditControlWnd::Redo() {
  EndEdits();
  if (!CanRedo()) return false;
  Replay(history_.StepForward(), false);
  return true;
}

void RVEditControlWnd::Replay(const ReportStep& step, bool back) {
  replaying_ = true;
  if (!back) Apply(step.change, false);
  for (RVEditTemplateWnd* page : step.pages) back ? page->ControlUndo() : page->ControlRedo();
  if (back) Apply(step.change, true);
  replaying_ = false;
  ShowPageOf(step);
  MarkByHistory(step.changesReport);
  port_.StateChanged();
}

void RVEditControlWnd::Apply(const ReportChange& change, bool back) {
  const auto wanted = [back](const auto& replaced) -> const auto& { return back ? replaced.before : replaced.after; };
  if (change.name) report_.name = wanted(*change.name);
  for (std::size_t i = 0; i < kReportTables; ++i) {
    if (change.tables[i]) Table(static_cast<ReportTable>(i)) = wanted(*change.tables[i])->Clone();
  }
  if (change.pages) ApplyOrder(wanted(*change.pages));
}

// The user sees what was taken back.
void RVEditControlWnd::ShowPageOf(const ReportStep& step) {
  if (step.pages.empty() || step.Holds(CurrentPage())) return;
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    if (step.Holds(Page(i))) {
      ShowPage(i);
      return;
    }
  }
}

// --- The modified mark ---

void RVEditControlWnd::MarkSaved() {
  report_.modified = false;
  savedSerial_ = history_.Serial();
}

// After going back or forth, or a step that came to nothing.
void RVEditControlWnd::MarkByHistory(bool changesReport) {
  ++changes_;
  if (options_.reportHistory) {
    report_.modified = history_.Serial() != savedSerial_;
  } else if (changesReport) {
    report_.modified = true;
  }
}

}  // namespace xrpt
