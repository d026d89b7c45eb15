// xrpt clean: clears away what interrupted and failed saves left in a folder.
#include <CLI/CLI.hpp>
#include <memory>

#include "platform/Text.h"
#include "xrpt/Commands.h"
#include "xrpt/Options.h"

namespace xrpt {
namespace {

int Clean(const std::string& folder) {
  CommonOptions options;
  options.config = folder;
  const HostSession session(options);
  std::error_code error;
  if (!std::filesystem::is_directory(folder, error)) {
    PrintError(folder, error ? error.message() : "not a folder");
    return kCouldNotRun;
  }
  for (const Path& file : CurrentHost().files->ClearLeftovers(folder)) Print(ForTerminal(file.string()) + "\n");
  return kNothingToReport;
}

}  // namespace

void AddClean(CLI::App& program, int& status) {
  CLI::App* command = program.add_subcommand("clean", "Clear away what interrupted and failed saves left in a folder");
  const auto folder = std::make_shared<std::string>();
  command->add_option("DIR", *folder, "A configuration folder, or the state folder")->required();
  command->footer(
      "Temporary files go when nobody is writing them any more, copies of failed saves and unsaved work after 30 "
      "days.\n"
      "Prints what it removed.\n"
      "Examples:\n  xrpt clean examples/config\n  xrpt clean ~/.local/state/report-template-editor");
  command->callback([folder, &status] { status = Clean(*folder); });
}

}  // namespace xrpt
