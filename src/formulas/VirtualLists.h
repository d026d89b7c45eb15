// The data sources a report declares for itself, as the lists its dialogs work on and as the documents the report
// holds.
#pragma once

#include <string>
#include <vector>

#include "formulas/References.h"
#include "platform/Xml.h"

namespace xrpt {

// Entry i of one belongs to entry i of the other.
struct SourceList {
  std::vector<std::wstring> ids;
  std::vector<std::wstring> names;
  bool operator==(const SourceList&) const = default;

  std::size_t Size() const { return ids.size(); }
  bool HasName(const std::wstring& name) const;
};

// What sets the two kinds apart.
struct SourceRules {
  SourceKind kind;
  const char* root;
  const char* element;
  const wchar_t* prefix;  // of the identifiers
  int fullText;           // the message for one more than `kMostSources`
  int promptText;
  int duplicateText;
};
inline constexpr std::size_t kMostSources = 10;
const SourceRules& RulesOf(SourceKind kind);

// VIRTUAL_name, GOBACK@name.
std::wstring SourceId(SourceKind kind, const std::wstring& name);

SourceList ReadSources(SourceKind kind, const XmlDocument& document);
XmlDocument SourcesDocument(SourceKind kind, const SourceList& sources);

}  // namespace xrpt
