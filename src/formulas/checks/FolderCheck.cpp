#include "formulas/checks/FolderCheck.h"

#include <map>

#include "formulas/checks/EditorChecks.h"
#include "formulas/checks/OrderedWork.h"
#include "model/RVReport.h"
#include "platform/NamedFiles.h"

namespace xrpt {
namespace {

constexpr std::size_t kWaitingPerThread = 32;

// Reports that are called alike, by the name stored in them or by that of their file.
class SharedNames {
 public:
  void Add(const ReportFindings& report) {
    if (!report.unreadable.empty()) return;
    const std::size_t index = reports_.size();
    reports_.push_back({report.file, report.name, report.id, {}, {}});
    const std::wstring ofFile = NameOfFile(report.file, kReportEnding);
    Take(ofFile, index);
    if (!report.name.empty() && report.name != ofFile) Take(report.name, index);
  }

  template <class Each>
  void ForEach(const CheckCode& code, const Each& each) {
    for (const auto& [index, other] : alike_) {
      ReportFindings& report = reports_[index];
      report.findings = {{.code = &code, .detail = FromUtf8(reports_[other].file.filename().string())}};
      each(report);
    }
  }

 private:
  void Take(const std::wstring& name, std::size_t index) {
    const auto [at, isNew] = first_.emplace(name, index);
    if (isNew || at->second == index) return;
    alike_.emplace(at->second, index);
    alike_.emplace(index, at->second);
  }

  std::vector<ReportFindings> reports_;
  std::map<std::wstring, std::size_t> first_;  // report of each name
  std::map<std::size_t, std::size_t> alike_;   // reports, and one called like each
};

class FolderRun {
 public:
  explicit FolderRun(const FolderCheck& check)
      : check_(check),
        files_(CurrentHost().files->List(check.folder, kReportEnding)),
        results_(files_.size(), kWaitingPerThread * static_cast<std::size_t>(std::max(check.jobs, 1))) {}

  FolderOutcome Run() {
    RunOnThreads(check_.jobs, [this] { Work(); });
    outcome_.files = files_.size();
    outcome_.stopped = outcome_.done < outcome_.files;
    names_.ForEach(nameShared_, [this](const ReportFindings& report) { Tell(report); });
    return outcome_;
  }

 private:
  bool StopAsked() const { return check_.stop && *check_.stop; }

  void Work() {
    FileCheck file(check_.choice, [this] { return StopAsked(); });
    for (std::size_t number = 0; !StopAsked() && results_.Next(number);) {
      results_.Put(number, file.Check(files_[number]), [this](const ReportFindings& report) { Take(report); });
    }
    results_.Close();
  }

  void Take(const ReportFindings& report) {
    outcome_.done += report.isComplete ? 1 : 0;
    ++through_;
    if (wantsNames_) names_.Add(report);
    Tell(report);
  }

  void Tell(const ReportFindings& report) const {
    if (check_.done) check_.done(report, through_, files_.size());
  }

  const FolderCheck& check_;
  const CheckCode& nameShared_ = *FindEditorCode(kNameSharedCode);
  const bool wantsNames_ = check_.choice.Has(nameShared_);
  std::vector<Path> files_;
  OrderedResults<ReportFindings> results_;
  SharedNames names_;
  std::size_t through_ = 0;
  FolderOutcome outcome_;
};

}  // namespace

FolderOutcome CheckFolder(const FolderCheck& check) { return FolderRun(check).Run(); }

}  // namespace xrpt
