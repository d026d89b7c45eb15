#include "xrpt/Options.h"

#include <CLI/CLI.hpp>
#include <cerrno>
#include <cstring>

#include "editor/RVEditControlWnd.h"
#include "host/DefaultHost.h"
#include "platform/NamedFiles.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

// The file itself, or the one of that name in the configuration folder.
Path FileOf(const CommonOptions& options) {
  const Path file = options.report;
  if (CurrentHost().files->Stamp(file).exists) return file;
  return FindNamedFile(ConfigFolderOf(options), FromUtf8(options.report), kReportEnding).value_or(file);
}

// One line, and no more than a line: scripts rely on the exit status.
void AnnounceLosses(const LoadResult& result) {
  if (result.lostStyles == 0) return;
  PrintError(result.file.string(),
             "warning: " + std::to_string(result.lostStyles) +
                 " references to text styles that are not in the configuration folder are left out");
}

bool IsLoaded(const LoadResult& result) {
  if (result.loaded) return true;
  const std::string place = result.error.offset ? " at byte " + std::to_string(result.error.offset) : "";
  PrintError(result.file.string(), result.error.message + place);
  return false;
}

bool IsSaved(const std::string& file, const SaveResult& result) {
  if (!result) PrintError(file, result.reason);
  return static_cast<bool>(result);
}

bool PrintReport(const RVReport& report) {
  XmlError fault;
  const std::string text = report.TemplateText(&fault);
  if (fault.message.empty() && !PrintDocument(text)) fault.message = std::strerror(errno);
  if (!fault.message.empty()) PrintError("standard output", fault.message);
  return fault.message.empty();
}

}  // namespace

void CommonOptions::AddReport(CLI::App& command) {
  command.add_option("REPORT", report, "A report file, or a report's name in the configuration folder")->required();
}

void CommonOptions::AddFolders(CLI::App& command) {
  command
      .add_option("--config", config,
                  "Configuration folder: reports, styles, devices.xml (default: the report's folder)")
      ->type_name("DIR");
  command.add_option("--images", images, "Picture store (default: \"images\" in the configuration folder)")
      ->type_name("DIR");
}

void CommonOptions::AddDpi(CLI::App& command) {
  command.add_option("--dpi", dpi, "The screen's dots per inch")
      ->type_name("N")
      ->check(CLI::Range(1, 4800))
      ->capture_default_str();
}

Path ConfigFolderOf(const CommonOptions& options) {
  if (!options.config.empty()) return options.config;
  const Path folder = Path(options.report).parent_path();
  return folder.empty() ? Path(".") : folder;
}

Path ImagesFolderOf(const CommonOptions& options) {
  return options.images.empty() ? ConfigFolderOf(options) / "images" : Path(options.images);
}

HostOptions HostOptionsOf(const CommonOptions& options) {
  HostOptions where;
  where.cfgFolder = ConfigFolderOf(options);
  where.imagesFolder = ImagesFolderOf(options);
  where.dpi = options.dpi;
  return where;
}

HostSession::HostSession(const CommonOptions& options) : HostSession(MakeDefaultHost(HostOptionsOf(options))) {}

HostSession::HostSession(std::unique_ptr<Host> host) : host_(std::move(host)), former_(InstallHost(host_.get())) {}

HostSession::~HostSession() { InstallHost(former_); }

RVReport& ReportUntilExit() {
  static RVReport* const report = new RVReport;
  return *report;
}

bool OpenReport(const CommonOptions& options, RVReport& report) { return IsLoaded(report.LoadFile(FileOf(options))); }

bool OpenToSave(const CommonOptions& options, const std::string& name, RVReport& report) {
  const std::wstring asked = FromUtf8(name);
  const LoadResult result = report.LoadFile(FileOf(options), name.empty() ? nullptr : &asked);
  AnnounceLosses(result);
  return IsLoaded(result);
}

bool OpenIn(RVEditControlWnd& frame, const CommonOptions& options) {
  const LoadResult result = frame.OpenFile(FileOf(options), nullptr);
  AnnounceLosses(result);
  return IsLoaded(result);
}

bool WriteOutput(const std::string& file, const std::string& bytes) {
  return IsSaved(file, CurrentHost().files->Write(file, bytes));
}

bool SaveReport(const RVReport& report, const std::string& file) {
  return file == "-" ? PrintReport(report) : IsSaved(file, report.WriteTo(file));
}

}  // namespace xrpt
