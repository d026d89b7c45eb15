#include "editor/DatabaseFields.h"

#include "platform/Host.h"

namespace xrpt {
namespace {

constexpr std::string_view kField = "field";

struct DateField {
  const wchar_t* id;
  int textId;
};
constexpr DateField kDateFields[] = {{L"ACTUAL_DATE", 32530}, {L"BEGIN_DATE", 32531}, {L"END_DATE", 32532}};

}  // namespace

XmlDocument CreateDatabaseFields() {
  XmlDocument fields("fields");
  for (const DateField& date : kDateFields) {
    XmlNode field = fields.Root().NewChild(kField);
    field.SetValue("id", date.id);
    field.SetValue("name", HostText(date.textId));
    field.SetValue("type", L"date");
  }
  return fields;
}

std::wstring NameOfDateField(const std::wstring& id) {
  for (const DateField& date : kDateFields) {
    if (id == date.id) return HostText(date.textId);
  }
  return id;
}

std::vector<NamedValue> NamesOfFields(const XmlDocument& fields) {
  std::vector<NamedValue> names;
  for (const XmlNode& field : fields.Root()) {
    NamedValue named{field.Value("id"), field.Value("name")};
    if (field.Tag() != kField || named.value.empty()) continue;
    if (named.name.empty()) named.name = named.value;
    names.push_back(std::move(named));
  }
  return names;
}

}  // namespace xrpt
