// The functions expressions may call, one row each.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace xrpt {

struct Function {
  std::wstring_view name;
  std::wstring_view use;  // "atan2(y, x)"
  std::size_t fewest;     // arguments
  std::size_t most;
  int helpText;  // its line of help; the example is the text after it
  // Any numbers, infinite ones and no-numbers included, give a number, an infinite one or no number.
  double (*compute)(std::span<const double> arguments);
  // A choice between logical results is logical; all else is a number.
  bool choosesResult = false;
};

inline constexpr std::size_t kAnyNumber = static_cast<std::size_t>(-1);

std::span<const Function> Functions();
// Place in the table, -1 for a name that is no function. Capitals matter.
int FindFunction(std::wstring_view name);

}  // namespace xrpt
