// Numbers as files hold them: always a point, never the user's locale, and read as forgivingly as the C library reads
// (a leading number, the rest ignored, else 0).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Color.h"

namespace xrpt {

// Like wcstod in the "C" locale: leading white space, sign, decimal or 0x number, inf and nan; no number gives 0.
double ParseDecimal(std::string_view text);
double ParseDecimal(std::wstring_view text);

// Like _wtoi: leading white space, sign, digits; too large is clamped to the ends of the type.
std::int32_t ParseInteger(std::string_view text);
std::int32_t ParseInteger(std::wstring_view text);

// Like wcstol in base 16 over 32 bits: an optional 0x, then digits; FFFFFFFF reads as 0xFFFFFFFF, larger is clamped to
// it.
Color ParseColor(std::string_view text);
Color ParseColor(std::wstring_view text);

// "%.2f" with a point.
std::string FormatDecimal(double value);
// The given number of decimals (0 to 40), with a point.
std::string FormatFixed(double value, int decimals);
// The shortest text that reads back as the same double.
std::string FormatExact(double value);
// "%06X".
std::string FormatColor(Color color);

}  // namespace xrpt
