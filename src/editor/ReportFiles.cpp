#include "editor/ReportFiles.h"

#include <algorithm>
#include <map>
#include <utility>

#include "editor/EditorTexts.h"
#include "editor/FileQuestions.h"
#include "formulas/BytePatches.h"
#include "platform/FileTexts.h"
#include "platform/NamedFiles.h"
#include "platform/SystemNames.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

using Values = std::vector<std::pair<const char*, std::wstring>>;

std::wstring FileNameOf(const Path& file) { return FromUtf8(file.filename().string()); }

std::wstring IdOf(const Path& file, const std::wstring& name) {
  const std::wstring whole = FileNameOf(file);
  const std::size_t rest = name.size() + kReportEnding.size();
  return whole.size() > rest ? whole.substr(0, whole.size() - rest - 1) : std::wstring();
}

Path FileOf(const Path& folder, const std::wstring& id, const std::wstring& name) {
  return id.empty() ? folder / Path(ToUtf8(name + std::wstring(kReportEnding)))
                    : NamedFilePath(folder, id, name, kReportEnding);
}

// Where a value cannot be changed in place the document is written anew.
std::string WrittenAnew(XmlDocument& document, const Values& values) {
  for (const auto& [tag, text] : values) {
    if (document.Node(tag)) document.Root().SetValue(tag, text);
  }
  return document.Text();
}

// The bytes of a report with other values; all else stays as it is. Values that it has none of are not added, and what
// is no document is left alone.
std::string WithValues(const std::string& bytes, const Values& values) {
  XmlDocument document;
  if (!document.Parse(bytes)) return bytes;
  std::vector<BytePatch> patches;
  for (const auto& [tag, text] : values) {
    const XmlNode node = document.Node(tag);
    if (node && !AddWholePatch(patches, node, bytes, text)) return WrittenAnew(document, values);
  }
  std::sort(patches.begin(), patches.end(), [](const BytePatch& a, const BytePatch& b) { return a.offset < b.offset; });
  return Patched(bytes, patches);
}

// Nobody else opens the file meanwhile. A host without locks goes without.
template <class Act>
std::wstring WhileHeld(const Path& file, const Act& act) {
  LockService* locks = CurrentHost().locks.get();
  if (!locks) return act();
  const LockState lock = locks->Take(file);
  if (lock.outcome == LockOutcome::Others) return HolderText(lock.holder) + L".";
  std::wstring problem = act();
  locks->Release(file);
  return problem;
}

std::wstring WriteCopy(const ListedReport& report, const Path& to, const Values& values) {
  FileService& files = *CurrentHost().files;
  FileError error;
  const std::optional<std::string> bytes = files.Read(report.file, XmlDocument::kMaxBytes, &error);
  if (!bytes) return FillIn(HostText(text::kUnreadable), {FileNameOf(report.file), FromUtf8(error.reason)});
  const FileVersion none;
  return TextOf(files.Write(to, WithValues(*bytes, values), &none));
}

std::wstring NotRemoved(const Path& file) { return FillIn(HostText(text::kReportNotRemoved), {FileNameOf(file)}); }

// What opens next time goes by the new name.
void FollowLastReport(const ListedReport& report, const std::wstring& name) {
  SettingsService& settings = *CurrentHost().settings;
  if (!report.sharesName && settings.RegistryText(kLastReportValue) == report.name)
    settings.SetRegistryText(kLastReportValue, name);
}

void TellHost() { CurrentHost().identifiers->invalidateGuid(GuidKind::Reports, true); }

}  // namespace

std::vector<ListedReport> ListReports() {
  const Path folder = CurrentHost().setup->CfgPath();
  FileService& files = *CurrentHost().files;
  std::vector<ListedReport> reports;
  std::map<std::wstring, int> count;
  for (const Path& file : files.List(folder, kReportEnding)) {
    std::wstring name = NameOfFile(file, kReportEnding);
    ++count[name];
    reports.push_back({file, name, IdOf(file, name), files.Stamp(file), false, false});
  }
  for (ListedReport& report : reports) {
    report.sharesName = count[report.name] > 1;
    report.isFound = report.sharesName && FindNamedFile(files, folder, report.name, kReportEnding) == report.file;
  }
  return reports;
}

int ProblemWithReportName(const std::wstring& name) {
  if (!IsSafeFileName(name)) return text::kBadName;
  const Path folder = CurrentHost().setup->CfgPath();
  return FindNamedFile(folder, name, kReportEnding) || CurrentHost().files->Stamp(FileOf(folder, {}, name)).exists
             ? text::kNameIsTaken
             : 0;
}

std::wstring RenameReport(const ListedReport& report, const std::wstring& name) {
  if (const int problem = ProblemWithReportName(name)) return HostText(problem);
  return WhileHeld(report.file, [&]() -> std::wstring {
    const Path to = FileOf(report.file.parent_path(), report.id, name);
    if (std::wstring problem = WriteCopy(report, to, {{"name", name}}); !problem.empty()) return problem;
    FileService& files = *CurrentHost().files;
    if (!files.Remove(report.file)) {
      files.Remove(to);
      return NotRemoved(report.file);
    }
    FollowLastReport(report, name);
    TellHost();
    return {};
  });
}

std::wstring DuplicateReport(const ListedReport& report, const std::wstring& name) {
  if (const int problem = ProblemWithReportName(name)) return HostText(problem);
  const std::wstring id = CurrentHost().guids->NewGuidText();
  std::wstring problem = WriteCopy(report, FileOf(report.file.parent_path(), id, name), {{"id", id}, {"name", name}});
  if (problem.empty()) TellHost();
  return problem;
}

std::wstring RemoveReport(const ListedReport& report) {
  return WhileHeld(report.file, [&]() -> std::wstring {
    if (!CurrentHost().files->Remove(report.file)) return NotRemoved(report.file);
    TellHost();
    return {};
  });
}

}  // namespace xrpt
