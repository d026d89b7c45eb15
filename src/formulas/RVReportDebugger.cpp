#include "formulas/RVReportDebugger.h"

#include "formulas/checks/CheckTexts.h"
#include "formulas/checks/HostChecks.h"
#include "formulas/checks/HostCodes.h"
#include "formulas/checks/WarningRecord.h"
#include "model/RVReport.h"
#include "platform/Text.h"

namespace xrpt {

RVReportDebugger::RVReportDebugger(Host& host)
    : RVResourceDebugger(host), inspector_(host, [this](const Finding& finding, const tagSDebugData& data) {
        addWarning(finding.code->name, data, finding.detail ? finding.detail->c_str() : nullptr, finding.dontConsider);
      }) {}

void RVReportDebugger::work() {
  const std::vector<Path> files = host_.files->List(host_.setup->CfgPath(), kReportEnding);
  inspector_.Forget();
  setRunning();
  if (!files.empty()) reportShare_ = 100.0 / static_cast<double>(files.size());
  double done = 0.0;
  for (const Path& file : files) {
    if (stopRequested()) break;
    CheckFile(file);
    setPercentDone(++done * reportShare_);
  }
  setFinished();
}

void RVReportDebugger::CheckFile(const Path& file) {
  inspector_.usedVirtualDevices.clear();
  inspector_.usedGoBackVariables.clear();
  XmlDocument document;
  std::optional<std::string> bytes = host_.files->Read(file, XmlDocument::kMaxBytes);
  if (bytes && document.Parse(std::move(*bytes))) debugReport(document.Root());
}

bool RVReportDebugger::debugReport(const XmlNode& root) {
  WalkReport(root, inspector_, *this);
  return true;
}

void RVReportDebugger::Begins(const tagSDebugData& data, std::size_t steps) {
  setDescription(FormatText(host_.texts->Text(text::kCheckingReport), data.name));
  step_ = reportShare_ / static_cast<double>(steps);
}

bool RVReportDebugger::debugFormuleCtrl(const XmlNode& card, tagSDebugData& data, bool conditioned) {
  return CheckFormule(inspector_, card, data, conditioned);
}

bool RVReportDebugger::debugConditionedCtrl(const XmlNode& card, tagSDebugData& data) {
  return CheckConditioned(inspector_, card, data);
}

bool RVReportDebugger::debugDateCtrl(const XmlNode& card, tagSDebugData& data, bool conditioned) {
  return CheckDate(inspector_, card, data, conditioned);
}

bool RVReportDebugger::debugStaticImageCtrl(const XmlNode& card, tagSDebugData& data, bool conditioned) {
  return CheckStaticImage(inspector_, card, data, conditioned);
}

bool RVReportDebugger::debugReportGraphCtrl(const XmlNode& card, tagSDebugData& data) {
  return CheckReportGraph(inspector_, card, data);
}

bool RVReportDebugger::debugAnalogBarCtrl(const XmlNode& card, tagSDebugData& data) {
  return CheckAnalogBar(inspector_, card, data);
}

void RVReportDebugger::addWarning(std::wstring_view code, const tagSDebugData& data, const wchar_t* detail,
                                  bool dontConsider) {
  WarningRecord record;
  record.type = code;
  const CheckCode* known = FindHostCode(code);
  record.textId = known ? known->textId : 0;
  record.reportName = data.name;
  record.reportId = data.id;
  record.cardId = data.ctrlId;
  if (detail) record.detail = detail;
  record.dontConsider = dontConsider;
  RVResourceDebugger::addWarning(record.AsXml().Root());
}

}  // namespace xrpt
