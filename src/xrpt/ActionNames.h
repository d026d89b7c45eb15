// Names of tools and keys in action files.
#pragma once

#include <optional>
#include <string_view>

namespace xrpt {

// "label", "pointer" ...: the insert tool's code.
std::optional<int> ToolOf(std::string_view name);
// "Left", "Delete", a letter ...: the virtual key code.
std::optional<int> KeyOf(std::string_view name);

}  // namespace xrpt
