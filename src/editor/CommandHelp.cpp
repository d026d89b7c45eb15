#include "editor/CommandHelp.h"

#include <initializer_list>
#include <string_view>

#include "editor/CommandTexts.h"
#include "editor/RVEditControlWnd.h"

namespace xrpt {
namespace {

struct OtherWords {
  int textId;
  std::initializer_list<std::string_view> commands;
};

const OtherWords kOtherWords[] = {
    {62660, {"ExportPdf", "ExportImages", "Print"}},
    {62661, {"Duplicate", "DuplicatePage", "Copy"}},
    {62662, {"BringToFront", "BringForward"}},
    {62663, {"SendToBack", "SendBackward", "SelectBelow"}},
    {62664, {"NewLabel", "EditText"}},
    {62665, {"NewPrimitive"}},
    {62666, {"NewReportGraph"}},
    {62667, {"NewImage"}},
    {62668, {"NewFormule"}},
    {62669, {"NewAnalogBar"}},
    {62670, {"ZoomIn", "ZoomToSelection"}},
    {62671, {"ZoomOut"}},
    {62672, {"Grid", "ShowGrid", "SmartGuides"}},
    {62673, {"Validate", "NextProblem", "PreviousProblem"}},
    {62674, {"Preview", "Print"}},
    {62675, {"Portrait", "Landscape"}},
    {62676, {"DistributeHorizontally", "DistributeVertically"}},
    {62677, {"DarkTheme"}},
    {62678, {"ShortcutSheet", "CommandPalette"}},
    {62679, {"Delete", "DeletePage"}},
};

constexpr const char* kParting = "";

constexpr const char* kOfCards[] = {
    "EditText",     "Cut",          "Copy",         "Paste",      "Duplicate",       "Delete",    kParting,
    "BringToFront", "BringForward", "SendBackward", "SendToBack", "SelectBelow",     kParting,    "Group",
    "Ungroup",      "Lock",         "HideCards",    kParting,     "ZoomToSelection", "BringBack", "Undo"};
constexpr const char* kOfPage[] = {"Paste", "SelectAll", kParting, "UnlockAll", "ShowAll", kParting,  "Undo",
                                   "Redo",  kParting,    "Grid",   "ShowGrid",  "Preview", "Adjusted"};

}  // namespace

std::wstring OtherWordsFor(const Command& command) {
  std::wstring words;
  for (const OtherWords& row : kOtherWords) {
    for (const std::string_view name : row.commands) {
      if (name == command.name) words += HostText(row.textId) + L' ';
    }
  }
  return words;
}

std::wstring WhyUnavailable(const Command& command, const RVEditControlWnd& frame) {
  const int textId = command.isEnabled(frame) ? 0 : WhyDisabledTextId(command);
  return textId == 0 ? std::wstring() : HostText(textId);
}

std::vector<const Command*> PageMenuCommands(const RVEditControlWnd& frame) {
  const bool ofPage = frame.CurrentPage().Selection().IsEmpty();
  const std::span<const char* const> names = ofPage ? std::span<const char* const>(kOfPage) : kOfCards;
  std::vector<const Command*> commands;
  for (const std::string_view name : names) {
    const Command* command = name.empty() ? nullptr : FindCommand(name);
    const bool parts = name.empty() && !commands.empty() && commands.back();
    if (parts || (command && command->isEnabled(frame))) commands.push_back(command);
  }
  while (!commands.empty() && !commands.back()) commands.pop_back();
  return commands;
}

}  // namespace xrpt
