#include "formulas/HourTypes.h"

#include "platform/Host.h"
#include "platform/Text.h"
#include "platform/Xml.h"

namespace xrpt {
namespace {

constexpr std::size_t kLimit = 8u << 20;  // bytes

// An hour goes by its name; one that has none, by its identifier or by what its element says.
std::wstring EntryOf(const XmlNode& hour) {
  const std::wstring name = hour.Value("name");
  return name.empty() ? hour.Value("id", hour.Value()) : name;
}

bool Read(const Path& file, std::vector<std::wstring>& entries, std::string& reason) {
  FileError unreadable;
  XmlError malformed;
  XmlDocument document;
  std::optional<std::string> bytes = CurrentHost().files->Read(file, kLimit, &unreadable);
  if (!bytes || !document.Parse(std::move(*bytes), &malformed)) {
    reason = bytes ? malformed.message : unreadable.reason;
    return false;
  }
  for (const XmlNode& hour : document.Root().Node("hourTypes")) {
    const std::wstring entry = hour.Tag() == "hour" ? EntryOf(hour) : std::wstring();
    if (!entry.empty()) entries.push_back(entry);
  }
  return true;
}

}  // namespace

std::vector<HourTypes> ReadHourTypes() {
  std::vector<HourTypes> all;
  for (const Path& file : CurrentHost().files->List(CurrentHost().setup->CfgPath(), kDefinitionEnding)) {
    HourTypes types{FromUtf8(file.stem().string()), {}};
    std::string reason;
    if (Read(file, types.entries, reason)) {
      all.push_back(std::move(types));
    } else {
      CurrentHost().logger->Log(3, FromUtf8("ReadHourTypes(): " + file.string() + ": " + reason));
    }
  }
  return all;
}

std::wstring HourTypeReference(const std::wstring& file, const std::wstring& entry) {
  return file + std::wstring(kDefinitionEnding) + L"@" + entry;
}

}  // namespace xrpt
