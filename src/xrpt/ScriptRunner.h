// Carries out the actions of a file on an editor without a screen.
#pragma once

#include <string>

#include "editor/RVEditControlWnd.h"
#include "formulas/CDlgSearchReplace.h"
#include "formulas/FormulaTable.h"
#include "xrpt/ActionScript.h"
#include "xrpt/ScriptPorts.h"

namespace xrpt {

class ScriptRunner {
 public:
  explicit ScriptRunner(const EditingOptions& options = {}) : editor_(screen_), frame_(editor_, options) {}

  RVEditControlWnd& Frame() { return frame_; }
  // Empty when done; otherwise why the action cannot be carried out (no such card, no such field).
  std::string Run(const Action& action);

 private:
  using Arguments = const std::vector<std::string>&;
  using Step = std::string (ScriptRunner::*)(Arguments);
  struct Row {
    std::string_view name;
    Step step;
  };
  static const std::vector<Row>& Steps();

  std::string Client(Arguments arguments);
  std::string Dpi(Arguments arguments);
  std::string Zoom(Arguments arguments);
  std::string Scroll(Arguments arguments);
  std::string ShowPage(Arguments arguments);
  std::string Grid(Arguments arguments);
  std::string Tool(Arguments arguments);
  std::string Press(Arguments arguments);
  std::string Move(Arguments arguments);
  std::string Release(Arguments arguments);
  std::string LoseCapture(Arguments arguments);
  std::string PressKey(Arguments arguments);
  std::string Select(Arguments arguments);
  std::string RunCommand(Arguments arguments);
  std::string Tick(Arguments arguments);
  std::string Set(Arguments arguments);
  std::string SetAnswer(Arguments arguments);
  std::string Print(Arguments arguments);

  // Files, see ScriptFiles.cpp
  std::string New(Arguments arguments);
  std::string Open(Arguments arguments);
  std::string Save(Arguments arguments);
  std::string SaveAs(Arguments arguments);
  std::string Rename(Arguments arguments);
  std::string Conclude(bool done);

  // What dialogs decide, see ScriptDialogs.cpp
  std::string FormulaAdd(Arguments arguments);
  std::string FormulaModify(Arguments arguments);
  std::string FormulaDelete(Arguments arguments);
  std::string FormulaCopy(Arguments arguments);
  std::string FormulaPaste(Arguments arguments);
  std::string DeviceAdd(Arguments arguments);
  std::string DeviceModify(Arguments arguments);
  std::string DeviceDelete(Arguments arguments);
  std::string GoBackAdd(Arguments arguments);
  std::string GoBackModify(Arguments arguments);
  std::string GoBackDelete(Arguments arguments);
  std::string Search(Arguments arguments);
  std::string Replace(Arguments arguments);
  std::string ReplaceAll(Arguments arguments);
  template <class Operation>
  std::string InFormulas(const Formula& typed, const Operation& operation);
  template <class Operation>
  std::string InSources(const std::string& typed, const Operation& operation);
  void TypeReplace(Arguments arguments);

  RVEditTemplateWnd& Page() { return frame_.CurrentPage(); }
  Point PointOf(Arguments arguments);
  MouseFlags FlagsOf(Arguments arguments, std::size_t from);

  ScriptScreen screen_;
  ScriptEditor editor_;
  RVEditControlWnd frame_;
  CDlgSearchReplace search_{frame_};
};

// The state of the current page as one JSON object on one line.
std::string StateAsJson(RVEditControlWnd& frame);

}  // namespace xrpt
