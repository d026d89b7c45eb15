#include "xrpt/ScriptRunner.h"

#include "canvas/UndoTexts.h"
#include "editor/CommandCatalogue.h"
#include "editor/SelectedFields.h"
#include "platform/Json.h"
#include "platform/Text.h"
#include "xrpt/ActionNames.h"
#include "xrpt/Output.h"

namespace xrpt {
namespace {

int IntegerAt(const std::vector<std::string>& arguments, std::size_t index) {
  return ScriptInteger(arguments[index]).value_or(0);
}

double NumberAt(const std::vector<std::string>& arguments, std::size_t index) {
  return ScriptNumber(arguments[index]).value_or(0.0);
}

std::vector<std::wstring> Wide(const std::vector<std::string>& words, std::size_t from) {
  std::vector<std::wstring> wide;
  for (std::size_t i = from; i < words.size(); ++i) wide.push_back(FromUtf8(words[i]));
  return wide;
}

std::string Joined(const std::vector<std::string>& words, std::size_t from) {
  std::string text;
  for (std::size_t i = from; i < words.size(); ++i) text += (i > from ? " " : "") + words[i];
  return text;
}

}  // namespace

const std::vector<ScriptRunner::Row>& ScriptRunner::Steps() {
  using R = ScriptRunner;
  static const std::vector<Row> steps = {{"client", &R::Client},
                                         {"dpi", &R::Dpi},
                                         {"zoom", &R::Zoom},
                                         {"scroll", &R::Scroll},
                                         {"page", &R::ShowPage},
                                         {"grid", &R::Grid},
                                         {"tool", &R::Tool},
                                         {"press", &R::Press},
                                         {"move", &R::Move},
                                         {"release", &R::Release},
                                         {"lose-capture", &R::LoseCapture},
                                         {"key", &R::PressKey},
                                         {"select", &R::Select},
                                         {"command", &R::RunCommand},
                                         {"tick", &R::Tick},
                                         {"set", &R::Set},
                                         {"answer", &R::SetAnswer},
                                         {"new", &R::New},
                                         {"open", &R::Open},
                                         {"save", &R::Save},
                                         {"save-as", &R::SaveAs},
                                         {"rename", &R::Rename},
                                         {"formula-add", &R::FormulaAdd},
                                         {"formula-modify", &R::FormulaModify},
                                         {"formula-delete", &R::FormulaDelete},
                                         {"formula-copy", &R::FormulaCopy},
                                         {"formula-paste", &R::FormulaPaste},
                                         {"device-add", &R::DeviceAdd},
                                         {"device-modify", &R::DeviceModify},
                                         {"device-delete", &R::DeviceDelete},
                                         {"goback-add", &R::GoBackAdd},
                                         {"goback-modify", &R::GoBackModify},
                                         {"goback-delete", &R::GoBackDelete},
                                         {"search", &R::Search},
                                         {"replace", &R::Replace},
                                         {"replace-all", &R::ReplaceAll},
                                         {"print", &R::Print}};
  return steps;
}

std::string ScriptRunner::Run(const Action& action) {
  for (const Row& row : Steps()) {
    if (row.name != action.name) continue;
    std::string fault = (this->*row.step)(action.arguments);
    frame_.Queue().Drain();
    return fault;
  }
  return "unknown action \"" + action.name + "\"";
}

Point ScriptRunner::PointOf(Arguments arguments) {
  screen_.pointer = {IntegerAt(arguments, 0), IntegerAt(arguments, 1)};
  return screen_.pointer;
}

MouseFlags ScriptRunner::FlagsOf(Arguments arguments, std::size_t from) {
  MouseFlags flags;
  for (std::size_t i = from; i < arguments.size(); ++i) {
    if (arguments[i] == "ctrl") flags.control = true;
    if (arguments[i] == "shift") flags.shift = true;
  }
  screen_.control = flags.control;
  return flags;
}

std::string ScriptRunner::Client(Arguments arguments) {
  screen_.width = IntegerAt(arguments, 0);
  screen_.height = IntegerAt(arguments, 1);
  for (std::size_t i = 0; i < frame_.PageCount(); ++i) frame_.Page(i).OnSize();
  return {};
}

std::string ScriptRunner::Dpi(Arguments arguments) {
  for (std::size_t i = 0; i < frame_.PageCount(); ++i) {
    frame_.Page(i).SetDpi(IntegerAt(arguments, 0), IntegerAt(arguments, 1));
    frame_.Page(i).OnSize();
  }
  return {};
}

std::string ScriptRunner::Zoom(Arguments arguments) {
  if (arguments[0] == "fit") {
    frame_.FitPage();
  } else if (arguments[0] == "width") {
    frame_.FitWidth();
  } else {
    Page().SetZoom(NumberAt(arguments, 0));
  }
  return {};
}

std::string ScriptRunner::Scroll(Arguments arguments) {
  Page().OnHScroll(ScrollCommand::Thumb, IntegerAt(arguments, 0));
  Page().OnVScroll(ScrollCommand::Thumb, IntegerAt(arguments, 1));
  return {};
}

std::string ScriptRunner::ShowPage(Arguments arguments) {
  const auto index = static_cast<std::size_t>(IntegerAt(arguments, 0) - 1);
  if (index >= frame_.PageCount()) return "there is no page " + arguments[0];
  frame_.ShowPage(index);
  return {};
}

std::string ScriptRunner::Grid(Arguments arguments) {
  PageEdit edit = Page().Edit({text::kGridSwitched, 0});
  edit.Properties().xgrid = NumberAt(arguments, 0);
  edit.Properties().ygrid = NumberAt(arguments, 1);
  return {};
}

std::string ScriptRunner::Tool(Arguments arguments) {
  frame_.SetTool(ToolOf(arguments[0]).value_or(tool::kPointer));
  return {};
}

std::string ScriptRunner::Press(Arguments arguments) {
  const Point point = PointOf(arguments);
  Page().OnLButtonDown(point, FlagsOf(arguments, 2));
  return {};
}

std::string ScriptRunner::Move(Arguments arguments) {
  Page().OnMouseMove(PointOf(arguments));
  return {};
}

std::string ScriptRunner::Release(Arguments arguments) {
  Page().OnLButtonUp(PointOf(arguments));
  screen_.control = false;
  return {};
}

std::string ScriptRunner::LoseCapture(Arguments) {
  Page().OnCaptureChanged();
  return {};
}

std::string ScriptRunner::PressKey(Arguments arguments) {
  Page().OnKeyDown(KeyOf(arguments[0]).value_or(0), FlagsOf(arguments, 1));
  screen_.control = false;
  return {};
}

std::string ScriptRunner::Select(Arguments arguments) {
  for (const std::wstring& id : Wide(arguments, 0)) {
    if (!Page().GetControlById(id)) return "there is no card " + ToUtf8(id);
  }
  Page().SelectControls(Wide(arguments, 0));
  return {};
}

// As a script says so, whatever the ribbon would allow: an operation that has nothing to work on does nothing.
std::string ScriptRunner::RunCommand(Arguments arguments) {
  const Command* command = FindCommand(arguments[0]);
  if (!command || !command->run) return "\"" + arguments[0] + "\" needs a window";
  command->run(frame_, Wide(arguments, 1));
  return ToUtf8(TextOf(frame_.LastSave()));
}

std::string ScriptRunner::Tick(Arguments arguments) {
  for (int i = 0; i < IntegerAt(arguments, 0); ++i) Page().OnTimer();
  return {};
}

std::string ScriptRunner::Set(Arguments arguments) {
  const std::wstring id = FromUtf8(arguments[0]);
  const RVCardControl* card = Page().GetControlById(id);
  if (!card) return "there is no card " + arguments[0];
  const CardRow* row = FindField(card->GetRuntimeClass().table, arguments[1]);
  if (!row) return std::string("a ") + card->GetRuntimeClass().tag + " has no field " + arguments[1];
  PageEdit edit = Page().Edit({text::kChangeField, 1, row->panel.textId});
  AssignToCard(*edit.Card(id), *row, Joined(arguments, 2));
  return {};
}

std::string ScriptRunner::SetAnswer(Arguments arguments) {
  editor_.answer = arguments[0] == "yes" ? Answer::Yes : Answer::No;
  return {};
}

std::string ScriptRunner::Print(Arguments) {
  xrpt::Print(StateAsJson(frame_) + "\n");
  return {};
}

}  // namespace xrpt
