// How a formula card shows its number: pure rules over texts.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace xrpt {

struct NumberFormat {
  std::int32_t integers = -1;  // digits before the separator, -1: free
  std::int32_t decimals = 3;   // digits after it, -1: free
  bool thousandSeparator = false;
  bool leftPadding = false;   // fill the integer part with zeros
  bool rightPadding = false;  // keep trailing zeros
};

// "05.02" and the like; see RVCardFormule::ParseFormat.
NumberFormat ParseNumberFormat(std::wstring_view format);

// What the user's locale puts between digits.
struct NumberSeparators {
  std::wstring decimal = L".";
  std::wstring thousands = L",";
};

// "#" for what is no number, a mask of "*" for one that does not fit its integer digits (a minus sign takes one).
std::wstring FormatDouble(double value, const NumberFormat& format, const NumberSeparators& separators);

// A text that is a number from end to end, blanks round it aside; nothing for an expression or a name.
std::optional<double> ReadWholeNumber(std::wstring_view text);

}  // namespace xrpt
