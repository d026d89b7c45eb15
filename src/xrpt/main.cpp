// xrpt: report templates in scripts.
#include <unistd.h>
#include <CLI/CLI.hpp>
#include <exception>
#include <filesystem>
#include <sstream>
#include <string_view>

#include "xrpt/Commands.h"
#include "xrpt/Options.h"
#include "xrpt/Output.h"

namespace {

#ifdef XRPT_PAGES_PROGRAM
// Commands that paint, measure texts or decode pictures are the other program's, which stands beside this one. Where it
// is missing, this one does what can be done without.
void HandOn(int argc, char** argv) {
  const std::string_view command = argc > 1 ? argv[1] : "";
  if (command != "render" && command != "validate") return;
  std::error_code unknown;
  const std::filesystem::path own = std::filesystem::read_symlink("/proc/self/exe", unknown);
  if (!unknown) ::execv((own.parent_path() / XRPT_PAGES_PROGRAM).c_str(), argv);
}
#else
void HandOn(int, char**) {}
#endif

int Run(int argc, char** argv) {
  CLI::App program("Report templates on the command line: resave, look into, search, edit and render them, clean up.",
                   "xrpt");
  program.require_subcommand(1);
  program.set_version_flag("--version", XRPT_VERSION);
  program.footer(
      "Exit status: 0 nothing to report, 1 findings, 2 could not run.\n"
      "\"xrpt COMMAND --help\" shows a command's options and examples.");
  int status = xrpt::kNothingToReport;
  xrpt::AddResave(program, status);
  xrpt::AddEdit(program, status);
  xrpt::AddInfo(program, status);
  xrpt::AddValidate(program, status);
  xrpt::AddRender(program, status);
  xrpt::AddEvaluate(program, status);
  xrpt::AddStyle(program, status);
  xrpt::AddSearch(program, status);
  xrpt::AddReplace(program, status);
  xrpt::AddClean(program, status);
  try {
    program.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    std::ostringstream out;
    std::ostringstream aside;
    const bool isHelp = program.exit(error, out, aside) == 0;
    xrpt::Print(out.str());
    xrpt::PrintAside(aside.str());
    return isHelp ? xrpt::kNothingToReport : xrpt::kCouldNotRun;
  }
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  HandOn(argc, argv);
  const xrpt::TerminalGuard guard;
  try {
    return Run(argc, argv);
  } catch (const std::exception& fault) {
    xrpt::PrintAside(std::string("xrpt: ") + fault.what() + "\n");
    return xrpt::kCouldNotRun;
  }
}
