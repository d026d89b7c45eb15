// A report as the host's checks know it while they go through its cards.
#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>

#include "formulas/checks/ExpressionReading.h"
#include "formulas/checks/Finding.h"
#include "platform/Xml.h"

namespace xrpt {

using UsedIds = std::set<std::wstring, std::less<>>;

// The identifiers of what a report declares for itself: its virtual devices, or its go-back variables.
class DeclaredIds {
 public:
  // Of the children of that tag.
  DeclaredIds(const XmlNode& list, std::string_view tag);
  bool Has(std::wstring_view id) const { return ids_.find(id) != ids_.end(); }
  // Whether every one of them is used.
  bool AreAllIn(const UsedIds& used) const;

 private:
  UsedIds ids_;
};

struct tagSDebugData {
  tagSDebugData() = default;
  // Of a "reportLayout" element, which must outlive this. Virtual devices and go-back variables count only when the
  // report switches them on.
  explicit tagSDebugData(const XmlNode& root);

  std::wstring name;
  std::wstring id;
  FormulaSource formules;
  std::wstring ctrlId;                        // of the card being checked
  std::optional<DeclaredIds> virtualDevices;  // nothing when absent or switched off, as for the next
  std::optional<DeclaredIds> goBackVariables;

  CardPlace place;     // of the card being checked
  int kindTextId = 0;  // and its kind
};

}  // namespace xrpt
