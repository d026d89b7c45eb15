// The definition files of virtual devices: which types of hour each of them tells apart.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace xrpt {

inline constexpr std::wstring_view kDefinitionEnding = L".xdct";

struct HourTypes {
  std::wstring file;  // its name, without the ending
  std::vector<std::wstring> entries;
};

// Those of the configuration folder, by name. What cannot be read is logged and left out.
std::vector<HourTypes> ReadHourTypes();
// How an expression refers to one: "Tariff.xdct@P1".
std::wstring HourTypeReference(const std::wstring& file, const std::wstring& entry);

}  // namespace xrpt
