#include "editor/CDlgEditor.h"

#include <exception>

#include "canvas/RVEditTemplateWnd.h"
#include "editor/CommandCatalogue.h"
#include "editor/EditorTexts.h"
#include "platform/Host.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

// There may be no memory left to say it with.
void LogThrown(const char* name, const char* reason) noexcept {
  try {
    LogMessage(4, L"CDlgEditor::" + FromUtf8(name) + L"(): " + FromUtf8(reason));
  } catch (...) {
  }
}

void SupportAll(RVEditTemplateWnd& page) {
  page.SetLabelSupport(true);
  page.SetDateSupport(true);
  page.SetFormuleSupport(true);
  page.SetImageSupport(true);
  page.SetConditionedSupport(true);
  page.SetReportGraphSupport(true);
  page.SetAnalogBarSupport(true);
  page.SetPrimitiveSupport(true);
}

}  // namespace

// --- The rim ---

template <class Result, class Act>
Result CDlgEditor::AtRim(const char* name, Result failed, const Act& act) noexcept {
  try {
    return act();
  } catch (const std::exception& thrown) {
    LogThrown(name, thrown.what());
  } catch (...) {
    LogThrown(name, "something unknown was thrown");
  }
  return failed;
}

template <class Act>
void CDlgEditor::AtRim(const char* name, const Act& act) noexcept {
  AtRim(name, false, [&act] {
    act();
    return true;
  });
}

// --- Beginning and end ---

CDlgEditor::~CDlgEditor() {
  AtRim("~CDlgEditor", [this] {
    if (frame_) port_.SaveBarState(kBarStateSection);
  });
}

void CDlgEditor::CreateDatabaseFields() { databaseFields_ = xrpt::CreateDatabaseFields(); }

void CDlgEditor::OnInitialUpdate() {
  if (frame_) return;
  AtRim("OnInitialUpdate", [this] {
    frame_.emplace(port_);
    CreateDatabaseFields();
    frame_->Properties().SetDatabaseFields(databaseFields_);
    for (std::size_t page = 0; page < frame_->PageCount(); ++page) SupportAll(frame_->Page(page));
    port_.LoadBarState(kBarStateSection);
  });
}

RVEditControlWnd& CDlgEditor::Frame() {
  OnInitialUpdate();
  return frame_.value();
}

// --- Operations ---

LoadResult CDlgEditor::Setup(const std::wstring& name) {
  return AtRim("Setup", LoadResult(), [&] { return Frame().Setup(name); });
}

void CDlgEditor::Save() {
  AtRim("Save", [this] {
    if (Frame().IsModified() && port_.Ask(text::kSaveChanges) == Answer::Yes) Frame().Save();
    Frame().SetModified(false);
  });
}

bool CDlgEditor::OnCommand(int id) {
  return AtRim("OnCommand", false, [&] {
    if (id == kSaveAsCommand) return port_.PassCommand(id);
    if (id != kSaveCommand) return false;
    if (Frame().IsModified()) Frame().Save();
    Frame().SetModified(false);
    return true;
  });
}

// --- Messages of the host ---

void CDlgEditor::OnTemplateRename(const std::wstring& name) {
  AtRim("OnTemplateRename", [&] { Frame().Rename(name); });
}

void CDlgEditor::OnTemplateSaveAs(const std::wstring& name) {
  AtRim("OnTemplateSaveAs", [&] { Frame().SaveAs(name); });
}

void CDlgEditor::OnStylesModified() {
  AtRim("OnStylesModified", [this] { Frame().StylesModified(); });
}

void CDlgEditor::OnTimerStateChange(long long state, int detail) {
  AtRim("OnTimerStateChange", [&] { Frame().Queue().Post(&Frame(), {Message::TimerStateChanged, {}, state, detail}); });
}

void CDlgEditor::OnManagerImageModified() {
  AtRim("OnManagerImageModified", [this] { Frame().ImagesModified(); });
}

void CDlgEditor::OnCtrlHasChanged() {
  AtRim("OnCtrlHasChanged", [this] { Frame().OnCtrlHasChanged(); });
}

void CDlgEditor::OnCtrlWarningHide() {
  AtRim("OnCtrlWarningHide", [this] { Frame().ShowMarks(false); });
}

void CDlgEditor::OnCtrlSearchReplace() {
  AtRim("OnCtrlSearchReplace", [this] { Frame().ApplyPendingReplace(); });
}

bool CDlgEditor::OnControlByIdSelect(const std::wstring& id) {
  return AtRim("OnControlByIdSelect", false, [&] { return Frame().SelectControlById(id); });
}

void CDlgEditor::Deliver() {
  AtRim("Deliver", [this] { Frame().Queue().Drain(); });
}

// --- Commands ---

bool CDlgEditor::RunCommand(const char* name) {
  return AtRim(name, false, [&] {
    const Command* command = FindCommand(name);
    return command && xrpt::RunCommand(Frame(), *command);
  });
}

bool CDlgEditor::IsEnabled(const char* name) {
  return AtRim(name, false, [&] {
    const Command* command = FindCommand(name);
    return command && command->isEnabled(Frame());
  });
}

bool CDlgEditor::OnFormulesSetup() {
  return AtRim("OnFormulesSetup", false, [this] {
    Frame().OnMessage({Message::Command, {}, RVEditControlWnd::kFormulasCommand});
    return true;
  });
}

bool CDlgEditor::OnChangeComboBoxPage(std::size_t page) {
  return AtRim("OnChangeComboBoxPage", false, [&] { return Frame().ShowPage(page); });
}

bool CDlgEditor::OnChangeComboBoxZoom(int entry) {
  return AtRim("OnChangeComboBoxZoom", false, [&] { return Frame().SetZoomEntry(entry); });
}

void CDlgEditor::OnEditMenuGetState(tagEditMenuState& state) {
  AtRim("OnEditMenuGetState", [&] { Frame().CurrentPage().GetEditMenuState(state); });
}

}  // namespace xrpt
