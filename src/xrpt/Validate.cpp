// xrpt validate: what is wrong with the reports of a folder.
#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <thread>

#include "formulas/checks/EditorChecks.h"
#include "formulas/checks/HostCodes.h"
#include "platform/Text.h"
#include "xrpt/Commands.h"
#include "xrpt/FindingsOutput.h"
#include "xrpt/Options.h"
#include "xrpt/Progress.h"
#include "xrpt/Render.h"

namespace xrpt {
namespace {

struct ValidateOptions : CommonOptions {
  std::vector<std::string> checks;
  std::string format = "text";
  int jobs = 1;
  bool list = false;
};

// The host's when none is named.
CheckChoice ChoiceOf(const ValidateOptions& options) {
  CheckChoice choice;
  for (const std::string& word : options.checks) choice.Add(FromUtf8(word));
  return options.checks.empty() ? CheckChoice::AllHost() : choice;
}

void PrintCode(const CheckCode& code, const char* group) {
  std::cout << ToUtf8(code.name) << "  " << group << "  " << ToUtf8(HostText(code.textId)) << '\n';
}

void PrintCodes() {
  for (const CheckCode& code : kHostCodes) PrintCode(code, "host");
  for (const EditorCheck& check : EditorChecks()) PrintCode(check.code, "editor");
}

void TellWhatIsLeftOut(const CheckChoice& choice) {
  for (const EditorCheck& check : EditorChecks()) {
    const int reason = check.unavailable && choice.Has(check.code) ? check.unavailable(CurrentHost()) : 0;
    if (reason != 0) PrintError(ToUtf8(check.code.name), ToUtf8(HostText(reason)) + "; not checked");
  }
}

bool CanBeListed(const std::string& folder) {
  std::error_code fault;
  const std::filesystem::directory_iterator files(folder, fault);
  if (fault) PrintError(folder, fault.message());
  return !fault;
}

// Prints what comes in and counts it.
class Validation {
 public:
  explicit Validation(const ValidateOptions& options) : output_(MakeFindingsOutput(options.format)) {
    check_.folder = options.config;
    check_.choice = ChoiceOf(options);
    check_.jobs = options.jobs;
    check_.stop = &InterruptRequest::Asked();
    check_.done = [this](const ReportFindings& report, std::size_t done, std::size_t of) { Take(report, done, of); };
  }

  int Run() {
    TellWhatIsLeftOut(check_.choice);
    output_->Begin();
    const FolderOutcome outcome = CheckFolder(check_);
    bar_.Hide();
    output_->End();
    std::cout.flush();
    if (!outcome.stopped) return findings_ > 0 ? kFindings : kNothingToReport;
    PrintError(check_.folder.string(),
               "stopped after " + std::to_string(outcome.done) + " of " + std::to_string(outcome.files) + " reports");
    return kCouldNotRun;
  }

 private:
  void Take(const ReportFindings& report, std::size_t done, std::size_t of) {
    if (!report.findings.empty() || !report.unreadable.empty()) bar_.Hide();
    if (!report.unreadable.empty()) PrintError(report.file.string(), report.unreadable);
    for (const Finding& finding : report.findings) output_->Print(report, finding);
    findings_ += report.findings.size();
    bar_.Show(done, of);
  }

  std::unique_ptr<FindingsOutput> output_;
  FolderCheck check_;
  ProgressBar bar_;
  std::size_t findings_ = 0;
};

int Validate(const ValidateOptions& options) {
  const HostSession session(MakeRenderHost(HostOptionsOf(options)));
  if (options.list) {
    PrintCodes();
    return kNothingToReport;
  }
  if (!CanBeListed(options.config)) return kCouldNotRun;
  const InterruptRequest interrupt;
  return Validation(options).Run();
}

std::string KnownWord(const std::string& word) {
  return CheckChoice().Add(FromUtf8(word)) ? std::string() : "no check is called " + word;
}

int UsualJobs() { return static_cast<int>(std::clamp(std::thread::hardware_concurrency(), 1u, 64u)); }

}  // namespace

void AddValidate(CLI::App& program, int& status) {
  CLI::App* command = program.add_subcommand("validate", "Check every report of a folder");
  const auto options = std::make_shared<ValidateOptions>();
  options->jobs = UsualJobs();
  CLI::Option* config = command->add_option("--config", options->config, "The folder: reports, styles, devices.xml");
  config->type_name("DIR");
  command->add_option("--images", options->images, "Picture store (default: \"images\" in the folder)")
      ->type_name("DIR");
  command->add_option("--checks", options->checks, "host (default), all, or codes of checks")
      ->type_name("NAME")
      ->expected(1, -1)
      ->delimiter(',')
      ->check(KnownWord);
  command->add_option("--format", options->format, "text, json or xml")
      ->check(CLI::IsMember({"text", "json", "xml"}))
      ->capture_default_str();
  command->add_option("--jobs", options->jobs, "Reports to check at once")
      ->type_name("N")
      ->check(CLI::Range(1, 64))
      ->capture_default_str();
  CLI::Option* list = command->add_flag("--list", options->list, "Only print the codes of all checks");
  command->footer(
      "Examples:\n  xrpt validate --config examples/config --images examples/images\n"
      "  xrpt validate --config . --checks all --format json\n"
      "  xrpt validate --config . --checks FORMULECTRL_FORMULE_EMPTY,CARD_HIDDEN\n"
      "Exit status: 0 nothing found, 1 something found, 2 could not run, or was stopped before the end.");
  command->callback([options, config, list, &status] {
    if (config->empty() && list->empty()) throw CLI::RequiredError("--config");
    status = Validate(*options);
  });
}

}  // namespace xrpt
