// The virtual devices and go-back variables of a report while they are edited: what the dialog does, without the
// dialog. Whoever opens it copies the lists in, and out again when it ends with OK.
#pragma once

#include <optional>

#include "formulas/CDlgFormules.h"
#include "formulas/VirtualLists.h"

namespace xrpt {

// What the dialog asks of whoever shows it.
class VirtualSetupPort {
 public:
  virtual ~VirtualSetupPort() = default;
  // The host's name prompt; nothing when it was cancelled. Text ids of the prompt and of its title.
  virtual std::optional<std::wstring> AskIdentification(int promptText, int titleText, const std::wstring& initial) = 0;
  virtual void ShowMessage(int textId) = 0;
  // Whether the cards and formulas that use an identifier shall use the new one.
  virtual bool AskUpdateUses(const std::wstring& from, const std::wstring& to, std::size_t uses) = 0;
  // Whether to delete a source that cards or formulas still use.
  virtual bool AskDeleteUsed(const std::wstring& id, std::size_t uses) = 0;
};

class RVDlgReportVirtualDeviceSetup {
 public:
  explicit RVDlgReportVirtualDeviceSetup(VirtualSetupPort& port) : port_(port) {}

  // Each says whether it changed its list.
  bool OnAdd() { return Add(SourceKind::VirtualDevice); }
  bool OnModify(std::size_t row) { return Modify(SourceKind::VirtualDevice, row); }
  bool OnDelete(std::size_t row) { return Delete(SourceKind::VirtualDevice, row); }
  bool OnGoBackAdd() { return Add(SourceKind::GoBackVariable); }
  bool OnGoBackModify(std::size_t row) { return Modify(SourceKind::GoBackVariable, row); }
  bool OnGoBackDelete(std::size_t row) { return Delete(SourceKind::GoBackVariable, row); }

  // The OK result; false, as if cancelled, when nothing was modified.
  bool OnOK() const { return modified_; }
  bool IsModified() const { return modified_; }

  // The identifiers to exchange in cards and formulas, in the order in which the user agreed to them.
  const std::vector<SourceRenaming>& Renamings() const { return renamings_; }

  SourceList devices;
  SourceList goBacks;
  // How many texts of the report use each identifier of either kind.
  UseCounts uses;

 private:
  SourceList& ListOf(SourceKind kind) { return kind == SourceKind::VirtualDevice ? devices : goBacks; }
  bool Add(SourceKind kind);
  bool Modify(SourceKind kind, std::size_t row);
  bool Delete(SourceKind kind, std::size_t row);
  std::optional<std::wstring> AskName(SourceKind kind, const std::wstring& former);
  int FaultOf(SourceKind kind, const std::wstring& name, const std::wstring& former);
  void RenameUses(SourceKind kind, const std::wstring& from, const std::wstring& to);

  VirtualSetupPort& port_;
  bool modified_ = false;
  std::vector<SourceRenaming> renamings_;
};

}  // namespace xrpt
