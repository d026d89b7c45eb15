#include "formulas/RVDlgReportVirtualDeviceSetup.h"

#include "formulas/FormulaTexts.h"
#include "platform/Characters.h"

namespace xrpt {
namespace {

template <class List>
void EraseAt(List& list, std::size_t row) {
  list.erase(list.begin() + static_cast<std::ptrdiff_t>(row));
}

// Nothing could refer to an identifier with one of these: a bracket ends a variable, and a point ends its device.
bool CanBeReferredTo(SourceKind kind, const std::wstring& name) {
  return name.find_first_of(kind == SourceKind::VirtualDevice ? L"[]." : L"[]") == name.npos;
}

}  // namespace

bool RVDlgReportVirtualDeviceSetup::Add(SourceKind kind) {
  SourceList& list = ListOf(kind);
  if (list.Size() >= kMostSources) {
    port_.ShowMessage(RulesOf(kind).fullText);
    return false;
  }
  const std::optional<std::wstring> name = AskName(kind, L"");
  if (!name) return false;
  list.ids.push_back(SourceId(kind, *name));
  list.names.push_back(*name);
  modified_ = true;
  return true;
}

// Prompts until the name will do; nothing when the user gave up. A refused name stands in the next prompt.
std::optional<std::wstring> RVDlgReportVirtualDeviceSetup::AskName(SourceKind kind, const std::wstring& former) {
  std::wstring initial = former;
  while (std::optional<std::wstring> entered =
             port_.AskIdentification(RulesOf(kind).promptText, text::kNameTitle, initial)) {
    initial = Trimmed(*entered);
    if (initial.empty()) continue;
    const int fault = FaultOf(kind, initial, former);
    if (fault == 0) return initial;
    port_.ShowMessage(fault);
  }
  return std::nullopt;
}

int RVDlgReportVirtualDeviceSetup::FaultOf(SourceKind kind, const std::wstring& name, const std::wstring& former) {
  if (name == former) return 0;
  if (ListOf(kind).HasName(name)) return RulesOf(kind).duplicateText;
  return CanBeReferredTo(kind, name) ? 0 : text::kNameNotValid;
}

bool RVDlgReportVirtualDeviceSetup::Modify(SourceKind kind, std::size_t row) {
  SourceList& list = ListOf(kind);
  if (row >= list.Size()) return false;
  const std::optional<std::wstring> name = AskName(kind, list.names[row]);
  if (!name || *name == list.names[row]) return false;
  const std::wstring former = list.ids[row];
  list.names[row] = *name;
  list.ids[row] = SourceId(kind, *name);
  modified_ = true;
  RenameUses(kind, former, list.ids[row]);
  return true;
}

void RVDlgReportVirtualDeviceSetup::RenameUses(SourceKind kind, const std::wstring& from, const std::wstring& to) {
  const std::size_t count = UsesOf(uses, from);
  if (from == to || count == 0 || !port_.AskUpdateUses(from, to, count)) return;
  renamings_.push_back({kind, {from, to}});
  uses[to] += count;
  uses.erase(from);
}

bool RVDlgReportVirtualDeviceSetup::Delete(SourceKind kind, std::size_t row) {
  SourceList& list = ListOf(kind);
  if (row >= list.Size()) return false;
  const std::size_t count = UsesOf(uses, list.ids[row]);
  if (count > 0 && !port_.AskDeleteUsed(list.ids[row], count)) return false;
  EraseAt(list.ids, row);
  EraseAt(list.names, row);
  modified_ = true;
  return true;
}

}  // namespace xrpt
