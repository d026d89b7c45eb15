#include "editor/RVEditControlWnd.h"

#include "canvas/UndoTexts.h"
#include "editor/EditorTexts.h"
#include "editor/SelectedFields.h"
#include "model/RVCardImage.h"
#include "platform/Host.h"

namespace xrpt {

RVEditControlWnd::RVEditControlWnd(EditorPort& port, const EditingOptions& options) : port_(port), options_(options) {
  BuildPages();
}

RVEditControlWnd::~RVEditControlWnd() { DropPages(); }

std::wstring RVEditControlWnd::Caption() const {
  return report_.name.empty() ? HostText(text::kUntitled) : report_.name;
}

// Whoever says so knows of a change that no step tells of: going back in the history does not take it back.
void RVEditControlWnd::SetModified(bool modified) {
  if (modified) Touch();
  report_.modified = modified;
  savedSerial_ = modified ? kNever : history_.Serial();
  port_.StateChanged();
}

// --- The report ---

void RVEditControlWnd::StartAnew() {
  history_.Clear();
  BuildPages();
  MarkSaved();
}

void RVEditControlWnd::Rename(const std::wstring& name) { Edit({text::kReportRenamed, 0}).Rename(name); }

// --- What changed elsewhere ---

void RVEditControlWnd::ImagesModified() {
  RVCardImage::ReLoadAllOriginalImages();
  for (const auto& slot : pages_) slot->window->ImagesManagerModified();
  ++resourcesSerial_;
  properties_.OnManagerImageModified();
  port_.StateChanged();
}

void RVEditControlWnd::OnCtrlHasChanged() {
  EndEdits();
  CurrentPage().RedrawBackground();
  SetModified(true);
}

// Several selected cards leave the panel that is shown.
CProperties& RVEditControlWnd::Properties() {
  const RVReportPage& page = CurrentPage().Page();
  const std::vector<std::size_t> selected = SelectedIndexes(CurrentPage());
  if (selected.empty()) properties_.SetControl(nullptr, &page.properties);
  if (selected.size() == 1) properties_.SetControl(&page.cards[selected.front()], &page.properties);
  return properties_;
}

void RVEditControlWnd::ShowMarks(bool on) {
  if (std::exchange(marksShown_, on) != on) port_.StateChanged();
}

bool RVEditControlWnd::ToggleMarks() {
  ShowMarks(!marksShown_);
  return true;
}

bool RVEditControlWnd::SelectControlById(const std::wstring& id) {
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    if (!report_.pages[i]->cards.Find(id)) continue;
    ShowPage(i);
    return CurrentPage().SelectControlById(id);
  }
  return false;
}

void RVEditControlWnd::OnMessage(const MessageData& message) {
  switch (message.message) {
    case Message::CardInserted:
      if (options_.returnsToPointer) SetTool(tool::kPointer);
      [[fallthrough]];
    case Message::CardAboutToBeDeleted:
      Touch();
      break;
    case Message::SelectionOrGeometryChanged:
    case Message::CardChanged:
      break;
    case Message::CardAnimationStarted:
      properties_.OnControlAnimationStart();
      break;
    case Message::CardAnimationStopped:
      properties_.OnControlAnimationStop();
      break;
    case Message::TimerStateChanged:
      return OnTimerStateChange(message.value != 0);
    case Message::CardFound:
      CurrentPage().SelectSearchedCard();
      return;
    case Message::SearchRequested:
      return OnSearchReplace(*message.request);
    case Message::ReplaceFinished:
      properties_.TextRemplaced();
      return port_.ReplaceFinished();
    case Message::Command:
      return OnPageCommand(static_cast<int>(message.value));
    case Message::Refused:
      return port_.Tell(static_cast<int>(message.value));
    case Message::KeyDown:
      return OnKey(message);
    default:
      return;
  }
  port_.StateChanged();
}

// Commands that the page leaves to the frame.
void RVEditControlWnd::OnPageCommand(int command) {
  if (command == kFindCommand) port_.RunCommand("Search");
  if (command == kReplaceCommand) port_.RunCommand("Replace");
  if (command == kFormulasCommand) port_.RunCommand("FormulesSetup");
}

// The host stops what moves on the page while it is busy, and lets it go on.
void RVEditControlWnd::OnTimerStateChange(bool runs) {
  runs ? CurrentPage().PlayTimer() : CurrentPage().PauseTimer();
  port_.TimerStateChanged(runs);
}

// Keys that the page leaves to the frame.
void RVEditControlWnd::OnKey(const MessageData& message) {
  if (message.key == key::Escape && options_.bandsBesidePage) CurrentPage().SelectControls({});
  if (options_.reportHistory && message.key == 'Z') Undo();
  if (options_.reportHistory && message.key == 'Y') Redo();
  port_.StateChanged();
}

}  // namespace xrpt
