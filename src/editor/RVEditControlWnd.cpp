#include "editor/RVEditControlWnd.h"

#include "canvas/UndoTexts.h"
#include "editor/EditorTexts.h"
#include "model/RVCardImage.h"
#include "platform/Host.h"
#include "platform/NamedFiles.h"
#include "platform/Text.h"

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
  report_.modified = modified;
  savedSerial_ = modified ? kNever : history_.Serial();
  port_.StateChanged();
}

// --- The report ---

template <class Load>
LoadResult RVEditControlWnd::LoadWith(const Load& load) {
  DropPages();
  report_.ResetDocuments();
  LoadResult result = load(report_);
  StartAnew();
  port_.ReportOpened(result);
  return result;
}

LoadResult RVEditControlWnd::Setup(const std::wstring& nameOrPath) {
  return LoadWith([&](RVReport& report) { return report.Load(nameOrPath); });
}

LoadResult RVEditControlWnd::OpenFile(const Path& file, const std::wstring* askedName) {
  return LoadWith([&](RVReport& report) { return report.LoadFile(file, askedName); });
}

void RVEditControlWnd::StartAnew() {
  history_.Clear();
  BuildPages();
  MarkSaved();
}

bool RVEditControlWnd::OpenFromList() {
  if (!LetGoOfChanges()) return false;
  const std::optional<std::wstring> chosen = port_.ChooseReport(report_.name);
  if (!chosen || *chosen == report_.name) return false;
  OpenByName(*chosen);
  CurrentHost().settings->SetRegistryText(kLastReportValue, report_.name);
  return true;
}

// A report of the list may be stored under its bare name, without an identifier before it.
LoadResult RVEditControlWnd::OpenByName(const std::wstring& name) {
  const Path folder = CurrentHost().setup->CfgPath();
  if (FindNamedFile(folder, name, kReportEnding)) return Setup(name);
  return Setup(FromUtf8((folder / ToUtf8(name + std::wstring(kReportEnding))).string()));
}

bool RVEditControlWnd::NewReport() {
  if (!LetGoOfChanges()) return false;
  DropPages();
  report_ = RVReport();
  StartAnew();
  return true;
}

bool RVEditControlWnd::LetGoOfChanges() {
  return !report_.modified || port_.Ask(text::kSaveChanges) == Answer::No || Save();
}

bool RVEditControlWnd::Save() {
  EndEdits();
  lastSave_ = report_.Save();
  if (lastSave_) {
    MarkSaved();
    ReportListChanged();
  }
  port_.StateChanged();
  return static_cast<bool>(lastSave_);
}

bool RVEditControlWnd::SaveAs(const std::wstring& name) {
  report_.name = name;
  report_.id = CurrentHost().guids->NewGuidText();
  report_.modified = true;
  return Save();
}

bool RVEditControlWnd::SaveUnderGeneratedName() {
  const std::wstring former = std::exchange(report_.name, std::wstring());
  const bool saved = Save();
  if (!saved) report_.name = former;
  return saved;
}

void RVEditControlWnd::Rename(const std::wstring& name) { Edit({text::kReportRenamed, 0}).Rename(name); }

void RVEditControlWnd::ReportListChanged() { CurrentHost().identifiers->invalidateGuid(GuidKind::Reports, true); }

// --- What changed elsewhere ---

void RVEditControlWnd::StylesModified() {
  ReportEdit edit = Edit({text::kStylesChanged, 0});
  for (const auto& slot : pages_) slot->window->StylesModified();
  edit.End();
  port_.StateChanged();
}

void RVEditControlWnd::ImagesModified() {
  RVCardImage::ReLoadAllOriginalImages();
  for (const auto& slot : pages_) slot->window->ImagesManagerModified();
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
      report_.modified = true;
      break;
    case Message::SelectionOrGeometryChanged:
    case Message::CardChanged:
    case Message::CardAnimationStarted:
    case Message::CardAnimationStopped:
      break;
    case Message::Refused:
      return port_.Tell(static_cast<int>(message.value));
    case Message::KeyDown:
      return OnKey(message);
    default:
      return;
  }
  port_.StateChanged();
}

// Keys that the page leaves to the frame.
void RVEditControlWnd::OnKey(const MessageData& message) {
  if (message.key == key::Escape && options_.bandsBesidePage) CurrentPage().SelectControls({});
  if (options_.reportHistory && message.key == 'Z') Undo();
  if (options_.reportHistory && message.key == 'Y') Redo();
  port_.StateChanged();
}

}  // namespace xrpt
