#include "editor/ReportDialogs.h"

#include "canvas/UndoTexts.h"
#include "editor/RVEditControlWnd.h"
#include "formulas/ReportTexts.h"

namespace xrpt {

ExpressionSources SourcesOf(const RVEditControlWnd& frame) {
  const RVReport& report = frame.Report();
  return {ReadFormulas(report.formules), ReadSources(SourceKind::VirtualDevice, report.virtualDevices),
          ReadSources(SourceKind::GoBackVariable, report.goBackVariables)};
}

CDlgFormules OpenFormulas(const RVEditControlWnd& frame, FormulesPort& port) {
  return {frame.Report().formules, FormulasUsedByCards(frame.Report()), port};
}

bool AcceptFormulas(RVEditControlWnd& frame, CDlgFormules& dialog) {
  std::optional<XmlDocument> table = dialog.OnOK();
  if (!table) return false;
  const UndoName name{text::kFormulasChanged, 0};
  ReportEdit edit = frame.Edit(name);
  if (ReadFormulas(frame.Report().formules) != dialog.Rows()) edit.Table(ReportTable::Formules) = std::move(*table);
  frame.ApplyChanges(PreviewFormulaRenamings(frame.Report(), dialog.RenamingsInCards()), name);
  return true;
}

RVDlgReportVirtualDeviceSetup OpenSources(const RVEditControlWnd& frame, VirtualSetupPort& port) {
  const RVReport& report = frame.Report();
  RVDlgReportVirtualDeviceSetup dialog(port);
  dialog.devices = ReadSources(SourceKind::VirtualDevice, report.virtualDevices);
  dialog.goBacks = ReadSources(SourceKind::GoBackVariable, report.goBackVariables);
  dialog.uses = SourcesUsed(report);
  return dialog;
}

bool AcceptSources(RVEditControlWnd& frame, const RVDlgReportVirtualDeviceSetup& dialog) {
  if (!dialog.OnOK()) return false;
  const UndoName name{text::kSourcesChanged, 0};
  ReportEdit edit = frame.Edit(name);
  edit.Table(ReportTable::VirtualDevices) = SourcesDocument(SourceKind::VirtualDevice, dialog.devices);
  edit.Table(ReportTable::GoBackVariables) = SourcesDocument(SourceKind::GoBackVariable, dialog.goBacks);
  frame.ApplyChanges(PreviewSourceRenamings(frame.Report(), dialog.Renamings()), name);
  return true;
}

}  // namespace xrpt
