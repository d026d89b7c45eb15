// xrpt search, xrpt replace: a text in the cards and formulas of many reports.
#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>

#include "platform/Text.h"
#include "xrpt/Commands.h"
#include "xrpt/Options.h"
#include "xrpt/ReportFiles.h"

namespace xrpt {
namespace {

struct ReplaceOptions : FilesOptions {
  std::string replacement;
  bool dryRun = false;
};

int StatusOf(bool couldAll, std::size_t matches) {
  if (!couldAll) return kCouldNotRun;
  return matches > 0 ? kFindings : kNothingToReport;
}

int Search(const FilesOptions& options) {
  const HostSession session{CommonOptions()};
  const TextFinder finder(FromUtf8(options.text), options.matchCase);
  MatchPrinter printer(options.AsJson());
  bool couldAll = true;
  for (const Path& file : ReportsOf(options.paths)) {
    const bool could = WithTemplate(file, [&](const std::string&, const XmlNode& root) {
      printer.Print(file, SearchTemplate(root, finder));
      return std::string();
    });
    couldAll = could && couldAll;
  }
  return StatusOf(couldAll, printer.Count());
}

// The new bytes of a file whose texts change; a report that changes has a new revision.
std::string Replaced(const std::string& bytes, const XmlNode& root, std::vector<BytePatch> patches) {
  for (BytePatch& patch : RevisionPatch(root, bytes, CurrentHost().guids->NewGuidText())) {
    const auto behind = [&patch](const BytePatch& other) { return other.offset > patch.offset; };
    patches.insert(std::find_if(patches.begin(), patches.end(), behind), std::move(patch));
  }
  return Patched(bytes, patches);
}

// Why a file cannot be changed; empty when it was, or when there is nothing to change.
std::string ReplaceIn(const Path& file, const std::string& bytes, const XmlNode& root, const FileStamp& before,
                      const TextFinder& finder, const ReplaceOptions& options, MatchPrinter* printer) {
  const auto patches = PatchesFor(root, bytes, finder, FromUtf8(options.replacement));
  if (!patches) return "its texts cannot be changed in place: resave it first";
  if (patches->empty()) return {};
  if (options.dryRun && !printer) std::cout << DiffOf(file.string(), bytes, *patches);
  if (options.dryRun) return {};
  const FileVersion read(before, bytes);
  const SaveResult result = CurrentHost().files->Write(file, Replaced(bytes, root, *patches), &read);
  return result ? std::string() : ToUtf8(TextOf(result));
}

int Replace(const ReplaceOptions& options) {
  const HostSession session{CommonOptions()};
  const TextFinder finder(FromUtf8(options.text), options.matchCase);
  const bool asDiff = options.dryRun && options.format != "json";
  std::unique_ptr<MatchPrinter> printer = asDiff ? nullptr : std::make_unique<MatchPrinter>(options.AsJson());
  bool couldAll = true;
  std::size_t matches = 0;
  for (const Path& file : ReportsOf(options.paths)) {
    const FileStamp before = CurrentHost().files->Stamp(file);
    const bool could = WithTemplate(file, [&](const std::string& bytes, const XmlNode& root) {
      const std::vector<TemplateMatch> found = SearchTemplate(root, finder);
      std::string fault = ReplaceIn(file, bytes, root, before, finder, options, printer.get());
      if (fault.empty() && printer) printer->Print(file, found);
      matches += fault.empty() ? found.size() : 0;
      return fault;
    });
    couldAll = could && couldAll;
  }
  return StatusOf(couldAll, matches);
}

}  // namespace

void AddSearch(CLI::App& program, int& status) {
  CLI::App* command = program.add_subcommand("search", "Find a text in the cards and formulas of reports");
  const auto options = std::make_shared<FilesOptions>();
  options->AddText(*command);
  options->AddPaths(*command);
  command->footer(
      "Searched are labels, date patterns, expressions, conditions, thresholds, variables, captions and values of\n"
      "buttons, inner cards, and the texts of formulas.\n"
      "Examples:\n  xrpt search MAIN.P examples/config\n  xrpt search --case --format json Energy report.xrpt\n"
      "Exit status: 0 no match, 1 matches, 2 a file could not be read.");
  command->callback([options, &status] { status = Search(*options); });
}

void AddReplace(CLI::App& program, int& status) {
  CLI::App* command = program.add_subcommand("replace", "Replace a text in the cards and formulas of reports");
  const auto options = std::make_shared<ReplaceOptions>();
  options->AddText(*command);
  command->add_option("REPLACEMENT", options->replacement, "What to put in its place")->required();
  options->AddPaths(*command);
  command->add_flag("--dry-run", options->dryRun, "Write nothing; show what would change as a diff");
  command->footer(
      "Every other byte of a file stays as it is, its revision apart. Formulas keep their names.\n"
      "Examples:\n  xrpt replace --dry-run MAIN.P SUB.P examples/config\n"
      "  xrpt replace --case Energy Power report.xrpt\n"
      "Exit status: 0 no match, 1 matches, 2 a file could not be read or written.");
  command->callback([options, &status] { status = Replace(*options); });
}

}  // namespace xrpt
