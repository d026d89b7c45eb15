// Finds a text among those remembered without copying it first.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace xrpt {

struct TextHash {
  using is_transparent = void;
  std::size_t operator()(std::wstring_view text) const { return std::hash<std::wstring_view>()(text); }
};

template <class Value>
using TextMap = std::unordered_map<std::wstring, Value, TextHash, std::equal_to<>>;

}  // namespace xrpt
