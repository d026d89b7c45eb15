// The editor as a host embeds it: constructed with the application's port, told what to open, and sent the host's
// messages.
#pragma once

#include <string>

#include "editor/RVEditControlWnd.h"

namespace xrpt {

class CDlgEditor {
 public:
  static constexpr int kSaveCommand = 57603;
  static constexpr int kSaveAsCommand = 57604;

  explicit CDlgEditor(EditorPort& port) : port_(port), frame_(port) {}

  // Opens the report of that name. A report that cannot be read opens as a new one; the result says why.
  LoadResult Setup(const std::wstring& name) { return frame_.Setup(name); }

  // Asks about unsaved changes, when there are any, and saves on Yes. In both cases the report counts as saved
  // afterwards.
  void Save();

  // Saves on 57603; passes 57604 and every other command on. True when the command was carried out here.
  bool OnCommand(int id);
  void OnCfgSave() { Save(); }
  // The file is written at the next save.
  void OnTemplateRename(const std::wstring& name) { frame_.Rename(name); }
  void OnTemplateSaveAs(const std::wstring& name) { frame_.SaveAs(name); }
  void OnStylesModified() { frame_.StylesModified(); }
  void OnManagerImageModified() { frame_.ImagesModified(); }
  bool OnControlByIdSelect(const std::wstring& id) { return frame_.SelectControlById(id); }
  // Opens the table of formulas, which the application shows.
  void OnFormulesSetup() { frame_.OnMessage({Message::Command, {}, RVEditControlWnd::kFormulasCommand}); }
  // Applies a replace that waits.
  void OnCtrlSearchReplace() { frame_.ApplyPendingReplace(); }
  // Hides the marks of the validator; they come back when the user asks for them.
  void OnCtrlWarningHide() { frame_.ShowMarks(false); }
  // Deliberately nothing: Enter and Escape never close the editor.
  void OnOK() {}
  void OnCancel() {}

  RVEditControlWnd& Frame() { return frame_; }

 private:
  EditorPort& port_;
  RVEditControlWnd frame_;
};

}  // namespace xrpt
