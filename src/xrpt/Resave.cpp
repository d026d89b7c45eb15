// xrpt resave: loads a report as the editor does and writes it with the editor's saver.
#include <CLI/CLI.hpp>
#include <memory>

#include "xrpt/Commands.h"
#include "xrpt/Options.h"

namespace xrpt {
namespace {

struct ResaveOptions : CommonOptions {
  std::string output;
  std::string name;
};

int Resave(const ResaveOptions& options) {
  const HostSession session(options);
  RVReport& report = ReportUntilExit();
  if (!OpenToSave(options, options.name, report)) return kCouldNotRun;
  return SaveReport(report, options.output) ? kNothingToReport : kCouldNotRun;
}

}  // namespace

void AddResave(CLI::App& program, int& status) {
  CLI::App* command = program.add_subcommand("resave", "Load a report as the editor does and write it with its saver");
  const auto options = std::make_shared<ResaveOptions>();
  options->AddReport(*command);
  command->add_option("-o,--output", options->output, "Where to write (-: standard output)")
      ->required()
      ->type_name("OUT");
  command->add_option("--name", options->name, "Open the report under this name (default: the name stored in it)")
      ->type_name("NAME");
  options->AddFolders(*command);
  options->AddDpi(*command);
  command->footer(
      "Examples:\n  xrpt resave examples/config/report.xrpt -o out.xrpt\n"
      "  xrpt resave Power_quality --config examples/config -o copy.xrpt --name Copy\n"
      "  xrpt resave report.xrpt -o - | xmllint --format -");
  command->callback([options, &status] { status = Resave(*options); });
}

}  // namespace xrpt
