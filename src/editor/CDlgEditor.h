// The editor as a host embeds it: constructed with the application's port, told what to open, and sent the host's
// messages and commands. Nothing that is thrown inside passes to the host: it is logged, and the call says that nothing
// was done.
//
//   CDlgEditor editor(port);                  // no windows yet
//   editor.OnInitialUpdate();
//   editor.Setup(L"Consumo_mensual");
//   if (editor.OnUpdateUndo()) editor.OnUndo();
#pragma once

#include <optional>
#include <string>

#include "editor/RVEditControlWnd.h"

namespace xrpt {

struct tagEditMenuState;

class CDlgEditor {
 public:
  static constexpr int kDialogTemplate = 1200;  // of the form view
  static constexpr int kFrameWindow = 133;      // the frame's child id
  static constexpr int kSaveCommand = 57603;
  static constexpr int kSaveAsCommand = 57604;

  // Makes no windows.
  explicit CDlgEditor(EditorPort& port) : port_(port) {}
  // The layout of the bars is remembered.
  ~CDlgEditor();
  CDlgEditor(const CDlgEditor&) = delete;
  CDlgEditor& operator=(const CDlgEditor&) = delete;

  // Makes the frame with a new report, puts its bars where they were and hands it the database fields; every kind of
  // card can be drawn on every page. Asked for a second time it does nothing; what needs the frame asks for it.
  void OnInitialUpdate();
  // The database fields offered to cards, made anew.
  void CreateDatabaseFields();
  const XmlDocument& DatabaseFields() const { return databaseFields_; }

  // Opens the report of that name. A report that cannot be read opens as a new one; the result says why.
  LoadResult Setup(const std::wstring& name);

  // Asks about unsaved changes, when there are any, and saves on Yes. In both cases the report counts as saved
  // afterwards.
  void Save();

  // Saves on 57603, whatever is unsaved; passes 57604 to the window round the editor. False for any other command.
  bool OnCommand(int id);

  // --- Messages of the host ---
  void OnCfgSave() { Save(); }
  // The file is written at the next save.
  void OnTemplateRename(const std::wstring& name);
  void OnTemplateSaveAs(const std::wstring& name);
  void OnStylesModified();
  // What moves on the page stops (first argument 0) or goes on. Posted: it waits for `Deliver`.
  void OnTimerStateChange(long long state, int detail = 0);
  void OnManagerImageModified();
  // A card was changed from outside: the panel is read again, and the report counts as modified.
  void OnCtrlHasChanged();
  // Hides the marks of the validator; they come back when the user asks for them.
  void OnCtrlWarningHide();
  // Applies a replace that waits.
  void OnCtrlSearchReplace();
  bool OnControlByIdSelect(const std::wstring& id);
  // Deliberately nothing: Enter and Escape never close the editor.
  void OnOK() {}
  void OnCancel() {}
  // Hands out the messages that were posted; the host's loop calls it whenever it has nothing else to do.
  void Deliver();

  // --- Commands by name ---
  // A command of the catalogue ("AlignLeft"). False when it is unknown, not enabled, or did nothing.
  bool RunCommand(const char* name);
  bool IsEnabled(const char* name);

  // On...: carries the command out and says whether it did something. OnUpdate...: whether it can be used now.
#define XRPT_EDITOR_COMMAND(Name)               \
  bool On##Name() { return RunCommand(#Name); } \
  bool OnUpdate##Name() { return IsEnabled(#Name); }
  XRPT_EDITOR_COMMAND(NewLabel)
  XRPT_EDITOR_COMMAND(NewDate)
  XRPT_EDITOR_COMMAND(NewFormule)
  XRPT_EDITOR_COMMAND(NewImage)
  XRPT_EDITOR_COMMAND(NewConditioned)
  XRPT_EDITOR_COMMAND(NewReportGraph)
  XRPT_EDITOR_COMMAND(NewAnalogBar)
  XRPT_EDITOR_COMMAND(NewPrimitive)
  XRPT_EDITOR_COMMAND(Undo)
  XRPT_EDITOR_COMMAND(Cut)
  XRPT_EDITOR_COMMAND(Copy)
  XRPT_EDITOR_COMMAND(Paste)
  XRPT_EDITOR_COMMAND(Delete)
  XRPT_EDITOR_COMMAND(SelectAll)
  XRPT_EDITOR_COMMAND(AlignLeft)
  XRPT_EDITOR_COMMAND(AlignRight)
  XRPT_EDITOR_COMMAND(AlignTop)
  XRPT_EDITOR_COMMAND(AlignBottom)
  XRPT_EDITOR_COMMAND(AlignCenterHorizontally)
  XRPT_EDITOR_COMMAND(AlignCenterVertically)
  XRPT_EDITOR_COMMAND(CenterHorizontally)
  XRPT_EDITOR_COMMAND(CenterVertically)
  XRPT_EDITOR_COMMAND(DistributeHorizontally)
  XRPT_EDITOR_COMMAND(DistributeVertically)
  XRPT_EDITOR_COMMAND(ResizeBoth)
  XRPT_EDITOR_COMMAND(ResizeHorizontally)
  XRPT_EDITOR_COMMAND(ResizeVertically)
  XRPT_EDITOR_COMMAND(BringToFront)
  XRPT_EDITOR_COMMAND(SendToBack)
  XRPT_EDITOR_COMMAND(AddPage)
  XRPT_EDITOR_COMMAND(DeletePage)
  XRPT_EDITOR_COMMAND(NextPage)
  XRPT_EDITOR_COMMAND(PreviousPage)
  XRPT_EDITOR_COMMAND(ZoomIn)
  XRPT_EDITOR_COMMAND(ZoomOut)
  XRPT_EDITOR_COMMAND(FitWidth)
  XRPT_EDITOR_COMMAND(Landscape)
  XRPT_EDITOR_COMMAND(Portrait)
  XRPT_EDITOR_COMMAND(Adjusted)
  XRPT_EDITOR_COMMAND(Save)
  XRPT_EDITOR_COMMAND(Search)
  XRPT_EDITOR_COMMAND(Replace)
  // The properties of the page shown.
  XRPT_EDITOR_COMMAND(Config)
#undef XRPT_EDITOR_COMMAND
  // The tool that selects instead of drawing.
  bool OnSelectControls() { return RunCommand("Pointer"); }
  bool OnUpdateSelectControls() { return IsEnabled("Pointer"); }
  // Opens the table of formulas, which the application shows.
  bool OnFormulesSetup();
  bool OnUpdateFormulesSetup() { return IsEnabled("FormulesSetup"); }
  // An entry of the page box, from 0, and one of the zoom box.
  bool OnChangeComboBoxPage(std::size_t page);
  bool OnChangeComboBoxZoom(int entry);
  void OnEditMenuGetState(tagEditMenuState& state);

  RVEditControlWnd& Frame();

 private:
  template <class Result, class Act>
  Result AtRim(const char* name, Result failed, const Act& act) noexcept;
  template <class Act>
  void AtRim(const char* name, const Act& act) noexcept;

  EditorPort& port_;
  XmlDocument databaseFields_;
  std::optional<RVEditControlWnd> frame_;
};

}  // namespace xrpt
