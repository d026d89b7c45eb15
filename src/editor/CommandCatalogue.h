// Every command of the editor, once: ribbon, context menu, shortcuts, palette, status hints and the command line's
// action files all read these rows.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace xrpt {

class RVEditControlWnd;

enum class RibbonTab { Home, Insert, Arrange, Page, View, Report };

struct CommandTab {
  RibbonTab tab;
  int textId;
};

using CommandArguments = std::span<const std::wstring>;

struct Command {
  const char* name;  // "AlignLeft"
  RibbonTab tab;
  int groupTextId;   // neighbours with the same one stand together
  int textId;        // label; the tooltip's sentence is HintTextId
  const char* icon;  // file name without ending
  const char* keys;  // "Ctrl+Z", alternatives separated by a space: "Ctrl+Y Ctrl+Shift+Z"
  bool isLarge;      // on the ribbon: a big button with its label below
  bool (*isEnabled)(const RVEditControlWnd& frame);
  bool (*isChecked)(const RVEditControlWnd& frame);  // null: the command is no switch
  // True when something was done. Null: only an application with a window can do it (EditorPort::RunCommand).
  bool (*run)(RVEditControlWnd& frame, CommandArguments arguments);
  // What it would do right now ("Move 3 cards"), shown behind the label; null: the label says it all.
  std::wstring (*detail)(const RVEditControlWnd& frame) = nullptr;

  int HintTextId() const { return textId + 200; }
};

std::span<const CommandTab> CommandTabs();
std::span<const Command> CommandCatalogue();
// Null for a name nobody knows.
const Command* FindCommand(std::string_view name);

// What a command that is not enabled waits for, as a text id; 0 when it does not say.
int WhyDisabledTextId(const Command& command);

// Runs a command that is enabled; false when it is not, or when nothing was done.
bool RunCommand(RVEditControlWnd& frame, const Command& command, CommandArguments arguments = {});

}  // namespace xrpt
