// The database fields that date cards may show, as hosts hand them on: a document of root "fields" with one "field" of
// "id", "name" and "type" each.
#pragma once

#include <string>
#include <vector>

#include "platform/Xml.h"

namespace xrpt {

// A value, and what people read for it.
struct NamedValue {
  std::wstring value;
  std::wstring name;
};

// The dates of the report: now, where it begins and where it ends.
XmlDocument CreateDatabaseFields();
// What people read for one of those dates; any other value as it is.
std::wstring NameOfDateField(const std::wstring& id);
// The fields of such a document, in its order; elements without an id are left out.
std::vector<NamedValue> NamesOfFields(const XmlDocument& fields);

}  // namespace xrpt
