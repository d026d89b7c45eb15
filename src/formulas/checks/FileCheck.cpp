#include "formulas/checks/FileCheck.h"

#include "formulas/checks/EditorInspection.h"

namespace xrpt {

FileCheck::FileCheck(const CheckChoice& choice, std::function<bool()> stopAsked)
    : choice_(choice),
      stopAsked_(std::move(stopAsked)),
      inspector_(CurrentHost(),
                 [this](const Finding& finding, const tagSDebugData&) {
                   if (choice_.Has(*finding.code)) findings_->push_back(finding);
                 }),
      wantsHost_(choice.HasAnyOfHost()),
      wantsEditor_(choice.HasAnyOfEditor()) {}

ReportFindings FileCheck::Check(const Path& file) {
  ReportFindings out;
  out.file = file;
  findings_ = &out.findings;
  try {
    Read(out);
  } catch (const std::exception& fault) {
    out.unreadable = fault.what();
  }
  if (out.unreadable.empty()) return out;
  const CheckCode& code = *FindEditorCode(kUnreadableCode);
  if (choice_.Has(code)) out.findings.push_back({.code = &code, .detail = FromUtf8(out.unreadable)});
  return out;
}

void FileCheck::Read(ReportFindings& out) {
  XmlDocument document;
  XmlError error;
  if (document.Load(out.file, &error)) return CheckRoot(document.Root(), out);
  out.unreadable = error.message + (error.offset ? " at byte " + std::to_string(error.offset) : "");
}

void FileCheck::CheckRoot(const XmlNode& root, ReportFindings& out) {
  out.name = root.Value("name");
  out.id = root.Value("id");
  inspector_.usedVirtualDevices.clear();
  inspector_.usedGoBackVariables.clear();
  if (wantsHost_) WalkReport(root, inspector_, *this);
  out.isComplete = !StopAsked();
  if (!wantsEditor_ || !out.isComplete) return;
  RVReport report;
  report.SetTemplate(root);
  std::vector<Finding> more = InspectReport(report, root, choice_);
  std::move(more.begin(), more.end(), std::back_inserter(out.findings));
}

}  // namespace xrpt
