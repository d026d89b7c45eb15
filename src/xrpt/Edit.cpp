// xrpt edit: drives the page window by the lines of a file, without a screen, and saves.
#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <sstream>

#include "xrpt/Commands.h"
#include "xrpt/Options.h"
#include "xrpt/ScriptRunner.h"

namespace xrpt {
namespace {

struct EditOptions : CommonOptions {
  std::string output;
  std::string actions;
  bool comfort = false;
};

constexpr std::size_t kMaxScript = 64u << 20;

std::optional<std::string> ReadScript(const std::string& file, FileError& error) {
  if (file != "-") return CurrentHost().files->Read(file, kMaxScript, &error);
  std::ostringstream text;
  text << std::cin.rdbuf();
  return text.str();
}

std::string AtLine(const std::string& file, int line) { return file + ":" + std::to_string(line); }

int Edit(const EditOptions& options) {
  const HostSession session(options);
  FileError unreadable;
  const std::optional<std::string> text = ReadScript(options.actions, unreadable);
  if (!text) {
    PrintError(options.actions, unreadable.reason);
    return kCouldNotRun;
  }
  ScriptError error;
  const std::optional<std::vector<Action>> actions = ParseScript(*text, error);
  if (!actions) {
    PrintError(AtLine(options.actions, error.line), error.message);
    return kCouldNotRun;
  }
  ScriptRunner runner(options.comfort ? EditingOptions::Comfort() : EditingOptions());
  if (!OpenIn(runner.Frame(), options)) return kCouldNotRun;
  for (const Action& action : *actions) {
    const std::string fault = runner.Run(action);
    if (fault.empty()) continue;
    PrintError(AtLine(options.actions, action.line), fault);
    return kCouldNotRun;
  }
  return SaveReport(runner.Frame().Report(), options.output) ? kNothingToReport : kCouldNotRun;
}

}  // namespace

void AddEdit(CLI::App& program, int& status) {
  CLI::App* command = program.add_subcommand("edit", "Drive the page window by a file of actions, then save");
  const auto options = std::make_shared<EditOptions>();
  options->AddReport(*command);
  command->add_option("-o,--output", options->output, "Where to write (-: standard output)")
      ->required()
      ->type_name("OUT");
  command->add_option("--actions", options->actions, "The action file (-: standard input)")
      ->required()
      ->type_name("FILE");
  command->add_flag("--comfort", options->comfort, "Edit with the desktop's options instead of the library's defaults");
  options->AddFolders(*command);
  options->AddDpi(*command);
  command->footer(
      "One action a line, # starts a comment; points are pixels of the client area:\n"
      "  client W H | dpi X Y | zoom 1|1.5|fit|width | scroll X Y | page N | grid X Y\n"
      "  tool label|image|date|formule|conditioned|reportGraph|analogBar|primitive|pointer\n"
      "  press X Y [ctrl] [shift] | move X Y | release X Y | lose-capture\n"
      "  key NAME [ctrl] [shift] | select ID... | command NAME [ARGUMENT...] | tick N\n"
      "  set ID FIELD VALUE | answer yes|no | print\n"
      "  new | open NAME | save | save-as [NAME] | rename NAME\n"
      "  formula-add NAME TEXT | formula-modify OLD NAME TEXT | formula-delete NAME... | formula-copy NAME...\n"
      "  formula-paste | device-add NAME | device-modify OLD NEW | device-delete NAME | goback-add|modify|delete "
      "alike\n"
      "  search TEXT [case] | replace TEXT REPLACEMENT [case] | replace-all TEXT REPLACEMENT [case]\n"
      "Examples:\n  xrpt edit report.xrpt -o out.xrpt --actions move-logo.txt\n"
      "  echo 'command SelectAll' | xrpt edit report.xrpt -o out.xrpt --actions -");
  command->callback([options, &status] { status = Edit(*options); });
}

}  // namespace xrpt
