#include "formulas/checks/DebugData.h"

#include <algorithm>

namespace xrpt {
namespace {

std::optional<DeclaredIds> DeclaredIn(const XmlNode& list, std::string_view tag) {
  if (!list) return std::nullopt;
  return DeclaredIds(list, tag);
}

}  // namespace

DeclaredIds::DeclaredIds(const XmlNode& list, std::string_view tag) {
  for (const XmlNode& child : list) {
    if (child.Tag() == tag) ids_.insert(child.Value("id"));
  }
}

bool DeclaredIds::AreAllIn(const UsedIds& used) const {
  return std::includes(used.begin(), used.end(), ids_.begin(), ids_.end());
}

tagSDebugData::tagSDebugData(const XmlNode& root)
    : name(root.Value("name")), id(root.Value("id")), formules(root.Node("formules")) {
  if (root.Value("virtualEnabled") != L"T") return;
  virtualDevices = DeclaredIn(root.Node("virtualDevices"), "virtualDevice");
  goBackVariables = DeclaredIn(root.Node("goBackVariables"), "goBackVariable");
}

}  // namespace xrpt
