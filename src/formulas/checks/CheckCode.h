// What a check can find: the code its findings carry, the text that tells people, and how bad it is.
#pragma once

#include <string_view>

namespace xrpt {

enum class Severity { Information, Warning, Error };

struct CheckCode {
  std::wstring_view name;
  int textId;
  Severity severity;
  bool operator==(const CheckCode& other) const { return name == other.name; }
};

}  // namespace xrpt
