// The virtual devices and go-back variables a report declares for itself. What it decides is
// `RVDlgReportVirtualDeviceSetup`; OK is one step of the report's history.
#pragma once

#include <QDialog>

#include "formulas/RVDlgReportVirtualDeviceSetup.h"

class QBoxLayout;
class QTreeWidget;

namespace xrpt {

class RVEditControlWnd;

class SourcesDialog final : public QDialog, private VirtualSetupPort {
 public:
  // The frame must outlive the dialog.
  SourcesDialog(RVEditControlWnd& frame, QWidget* parent);

  // The result is OK only when something was modified.
  void accept() override;
  const RVDlgReportVirtualDeviceSetup& Setup() const { return setup_; }

 private:
  // VirtualSetupPort
  std::optional<std::wstring> AskIdentification(int promptText, int titleText, const std::wstring& initial) override;
  void ShowMessage(int textId) override;
  bool AskUpdateUses(const std::wstring& from, const std::wstring& to, std::size_t uses) override;
  bool AskDeleteUsed(const std::wstring& id, std::size_t uses) override;

  QString UsersOf(const std::wstring& id) const;

  // One of the two kinds: its list and what its buttons do.
  struct Part {
    int titleText;
    const SourceList& list;
    bool (RVDlgReportVirtualDeviceSetup::*add)();
    bool (RVDlgReportVirtualDeviceSetup::*modify)(std::size_t);
    bool (RVDlgReportVirtualDeviceSetup::*remove)(std::size_t);
    QTreeWidget* shown = nullptr;
  };
  void AddPart(QBoxLayout& row, Part& part);
  QTreeWidget* NewList(const Part& part);
  void AddActions(Part& part);
  void UpdateList(const Part& part, std::size_t row);
  static std::size_t RowOf(const Part& part);

  RVEditControlWnd& frame_;
  RVDlgReportVirtualDeviceSetup setup_;
  Part devices_;
  Part goBacks_;
};

bool EditSources(RVEditControlWnd& frame, QWidget* parent);

}  // namespace xrpt
