// A finding as the host's diagnostics collector takes it: root "warning" with "resource", "type", "id", "ctrlId",
// "dontConsiderWarning" and "text".
#pragma once

#include <optional>
#include <string_view>

#include "formulas/checks/Finding.h"
#include "platform/Xml.h"

namespace xrpt {

struct WarningRecord {
  std::wstring_view resource = L"REPORTS";
  std::wstring_view type;
  int textId = 0;  // 0: none
  std::wstring_view reportName;
  std::wstring_view reportId;
  std::wstring_view cardId = {};
  std::optional<std::wstring_view> detail = std::nullopt;
  bool dontConsider = false;

  XmlDocument AsXml() const;
};

// Findings of the editor's own checks go under a resource of their own, so that no host takes them for its own.
WarningRecord RecordOf(const Finding& finding, std::wstring_view reportName, std::wstring_view reportId);

}  // namespace xrpt
