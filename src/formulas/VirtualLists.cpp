#include "formulas/VirtualLists.h"

#include <algorithm>

#include "formulas/FormulaTexts.h"

namespace xrpt {
namespace {

constexpr SourceRules kDevices = {
    SourceKind::VirtualDevice,    "virtualDevices",         "virtualDevice",           L"VIRTUAL_",
    text::kTooManyVirtualDevices, text::kVirtualDeviceName, text::kVirtualDeviceExists};
constexpr SourceRules kGoBacks = {
    SourceKind::GoBackVariable,    "goBackVariables",         "goBackVariable",           L"GOBACK@",
    text::kTooManyGoBackVariables, text::kGoBackVariableName, text::kGoBackVariableExists};

}  // namespace

const SourceRules& RulesOf(SourceKind kind) { return kind == SourceKind::VirtualDevice ? kDevices : kGoBacks; }

std::wstring SourceId(SourceKind kind, const std::wstring& name) { return RulesOf(kind).prefix + name; }

bool SourceList::HasName(const std::wstring& name) const {
  return std::find(names.begin(), names.end(), name) != names.end();
}

SourceList ReadSources(SourceKind kind, const XmlDocument& document) {
  SourceList sources;
  for (const XmlNode& node : document.Root()) {
    if (node.Tag() != RulesOf(kind).element) continue;
    sources.ids.push_back(node.Value("id"));
    sources.names.push_back(node.Value("name"));
  }
  return sources;
}

XmlDocument SourcesDocument(SourceKind kind, const SourceList& sources) {
  XmlDocument document(RulesOf(kind).root);
  for (std::size_t i = 0; i < sources.Size(); ++i) {
    XmlNode node = document.Root().NewChild(RulesOf(kind).element);
    node.SetValue("id", sources.ids[i]);
    node.SetValue("name", sources.names[i]);
  }
  return document;
}

}  // namespace xrpt
