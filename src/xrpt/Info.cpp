// xrpt info: what a report holds.
#include <CLI/CLI.hpp>
#include <memory>

#include "model/ReportInfo.h"
#include "platform/Text.h"
#include "xrpt/Commands.h"
#include "xrpt/Options.h"

namespace xrpt {
namespace {

struct InfoOptions : CommonOptions {
  std::string format = "text";
};

int Info(const InfoOptions& options) {
  const HostSession session(options);
  RVReport& report = ReportUntilExit();
  if (!OpenReport(options, report)) return kCouldNotRun;
  const ReportInfo info = InfoOf(report);
  Print(options.format == "json" ? info.AsJson() : info.AsText());
  return kNothingToReport;
}

}  // namespace

void AddInfo(CLI::App& program, int& status) {
  CLI::App* command = program.add_subcommand("info", "Print a report's pages, cards, styles, formulas and bindings");
  const auto options = std::make_shared<InfoOptions>();
  options->AddReport(*command);
  command->add_option("--format", options->format, "text or json")
      ->check(CLI::IsMember({"text", "json"}))
      ->capture_default_str();
  options->AddFolders(*command);
  command->footer(
      "Examples:\n  xrpt info examples/config/report.xrpt\n  xrpt info Power_quality --config examples/config --format "
      "json");
  command->callback([options, &status] { status = Info(*options); });
}

}  // namespace xrpt
