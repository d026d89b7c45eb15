#include "formulas/checks/WarningRecord.h"

#include "formulas/checks/HostCodes.h"

namespace xrpt {
namespace {

void AddText(XmlNode warning, const WarningRecord& record) {
  XmlNode text = warning.NewChild("text");
  if (record.textId != 0) text.SetValue("textId", std::to_wstring(record.textId));
  text.NewChild("textStr").SetText(std::wstring(record.reportName) + L": ");
  if (record.detail) text.NewChild("textStr").SetText(L" " + std::wstring(*record.detail));
}

}  // namespace

XmlDocument WarningRecord::AsXml() const {
  XmlDocument document("warning");
  XmlNode warning = document.Root();
  warning.SetValue("resource", resource);
  warning.SetValue("type", type);
  warning.SetValue("id", reportId);
  if (!cardId.empty()) warning.SetValue("ctrlId", cardId);
  if (dontConsider) warning.SetValue("dontConsiderWarning", L"1");
  AddText(warning, *this);
  return document;
}

WarningRecord RecordOf(const Finding& finding, std::wstring_view reportName, std::wstring_view reportId) {
  WarningRecord record;
  if (!FindHostCode(finding.code->name)) record.resource = L"EDITOR";
  record.type = finding.code->name;
  record.textId = finding.code->textId;
  record.reportName = reportName;
  record.reportId = reportId;
  record.cardId = finding.cardId;
  record.detail = finding.detail;
  record.dontConsider = finding.dontConsider;
  return record;
}

}  // namespace xrpt
