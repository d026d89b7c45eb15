// What several subcommands share: where things lie, and opening a report the way the editor does.
#pragma once

#include <memory>
#include <string>

#include "host/DefaultHost.h"
#include "model/RVReport.h"
#include "xrpt/Output.h"

namespace CLI {
class App;
}

namespace xrpt {

class RVEditControlWnd;

// The exit status of every subcommand.
enum ExitStatus { kNothingToReport = 0, kFindings = 1, kCouldNotRun = 2 };

struct CommonOptions {
  std::string report;  // a file, or a report's name in the configuration folder
  std::string config;  // default: the report's own folder, where its styles lie
  std::string images;  // default: "images" in the configuration folder
  int dpi = 96;

  void AddReport(CLI::App& command);
  void AddFolders(CLI::App& command);
  void AddDpi(CLI::App& command);
};

// Installs a host on the folders of the options for as long as it lives.
class HostSession {
 public:
  explicit HostSession(const CommonOptions& options);
  // A host made elsewhere, with its folders set.
  explicit HostSession(std::unique_ptr<Host> host);
  ~HostSession();
  HostSession(const HostSession&) = delete;
  HostSession& operator=(const HostSession&) = delete;

 private:
  std::unique_ptr<Host> host_;
  Host* former_;
};

// Where a host finds things by these options.
HostOptions HostOptionsOf(const CommonOptions& options);

// The configuration folder that the options mean.
Path ConfigFolderOf(const CommonOptions& options);
Path ImagesFolderOf(const CommonOptions& options);

// A new report that is there until the program ends: a command that does one thing to it leaves without taking it apart
// card by card. There is one; the host must be installed.
RVReport& ReportUntilExit();

// Opens the report of the options. False, and a line on standard error, when there is no such file, it cannot be read
// or is no report.
bool OpenReport(const CommonOptions& options, RVReport& report);
// The same for a report that will be written, under `name` when one is given: what loading left out is counted on
// standard error.
bool OpenToSave(const CommonOptions& options, const std::string& name, RVReport& report);
// The same in an editor's frame, under the stored name.
bool OpenIn(RVEditControlWnd& frame, const CommonOptions& options);

// Writes a file through the host; false and a line on standard error when that fails.
bool WriteOutput(const std::string& file, const std::string& bytes);
// The same for a report; the file "-" is standard output.
bool SaveReport(const RVReport& report, const std::string& file);

}  // namespace xrpt
