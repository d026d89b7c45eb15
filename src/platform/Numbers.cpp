#include "platform/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace xrpt {
namespace {

bool IsSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

// A number's sign taken off the front, after white space.
struct Signed {
  std::string_view rest;
  bool negative = false;
};

Signed SkipSign(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size() && IsSpace(text[at])) ++at;
  const bool sign = at < text.size() && (text[at] == '-' || text[at] == '+');
  return {text.substr(at + (sign ? 1 : 0)), sign && text[at] == '-'};
}

bool TakeHexPrefix(std::string_view& text) {
  const bool prefixed = text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
  if (prefixed) text.remove_prefix(2);
  return prefixed;
}

// How many digits stand before the point of a number without its exponent, or, below 0, zeros behind it.
std::int64_t DigitsBeforePoint(std::string_view digits) {
  const std::size_t point = std::min(digits.find('.'), digits.size());
  const std::size_t first = digits.find_first_not_of("0.");
  if (first == digits.npos) return 0;
  const auto place = [](std::size_t at) { return static_cast<std::int64_t>(at); };
  return first < point ? place(point - first) : place(point + 1) - place(first);
}

// from_chars leaves the value alone when the number is too large or too small; the C library gives infinity or zero.
double OutOfRange(std::string_view number, bool hexadecimal) {
  const std::size_t mark = std::min(number.find_first_of(hexadecimal ? "pP" : "eE"), number.size());
  const std::int64_t exponent = mark < number.size() ? ParseInteger(number.substr(mark + 1)) : 0;
  const std::int64_t digits = DigitsBeforePoint(number.substr(0, mark)) * (hexadecimal ? 4 : 1);
  return digits + exponent > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

// Appends the decimal digits from `at` on to a number, and gives the place after the last.
std::size_t AddDigits(std::string_view text, std::size_t at, std::int64_t& number) {
  for (; at < text.size() && text[at] >= '0' && text[at] <= '9'; ++at) number = number * 10 + (text[at] - '0');
  return at;
}

// What our own files hold, "12.50": few enough digits that both numbers are exact and their quotient is rounded as the
// library would round it. Nothing for all else.
std::optional<double> ParsePlain(std::string_view text) {
  static constexpr double kPowers[] = {1.0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};
  if (text.empty() || text == "." || text.size() > 10) return std::nullopt;
  std::int64_t digits = 0;
  const std::size_t point = AddDigits(text, 0, digits);
  if (point == text.size()) return static_cast<double>(digits);
  if (text[point] != '.' || AddDigits(text, point + 1, digits) != text.size()) return std::nullopt;
  return static_cast<double>(digits) / kPowers[text.size() - point - 1];
}

// Nothing for what is no number after its sign, such as a second sign.
std::optional<double> ParseMagnitude(std::string_view text) {
  if (const std::optional<double> plain = ParsePlain(text)) return plain;
  if (!text.empty() && (text[0] == '-' || text[0] == '+')) return std::nullopt;
  const bool hexadecimal = TakeHexPrefix(text);
  const auto format = hexadecimal ? std::chars_format::hex : std::chars_format::general;
  double value = 0.0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value, format);
  if (result.ec == std::errc::result_out_of_range) {
    return OutOfRange(text.substr(0, static_cast<std::size_t>(result.ptr - text.data())), hexadecimal);
  }
  return result.ec == std::errc() ? std::optional(value) : std::nullopt;
}

// Only ASCII can be part of a number; the first other character ends it.
std::string AsciiHead(std::wstring_view text) {
  std::string out;
  for (wchar_t c : text) {
    if (c <= 0 || c >= 0x80) break;
    out += static_cast<char>(c);
  }
  return out;
}

template <int Base>
int DigitOf(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (Base == 16 && c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (Base == 16 && c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

// Digits of a base, 10 or 16, from the front of the text, clamped to the limit.
template <int Base>
std::int64_t ParseDigits(std::string_view text, std::int64_t limit) {
  std::int64_t value = 0;
  for (char c : text) {
    const int digit = DigitOf<Base>(c);
    if (digit < 0) break;
    value = value * Base + digit;
    if (value > limit) value = limit;
  }
  return value;
}

}  // namespace

double ParseDecimal(std::string_view text) {
  const Signed number = SkipSign(text);
  const std::optional<double> magnitude = ParseMagnitude(number.rest);
  if (!magnitude) return 0.0;
  return number.negative ? -*magnitude : *magnitude;
}

double ParseDecimal(std::wstring_view text) { return ParseDecimal(std::string_view(AsciiHead(text))); }

std::int32_t ParseInteger(std::string_view text) {
  const Signed number = SkipSign(text);
  const std::int64_t value = ParseDigits<10>(number.rest, number.negative ? 2147483648ll : 2147483647ll);
  return static_cast<std::int32_t>(number.negative ? -value : value);
}

std::int32_t ParseInteger(std::wstring_view text) { return ParseInteger(std::string_view(AsciiHead(text))); }

Color ParseColor(std::string_view text) {
  Signed number = SkipSign(text);
  TakeHexPrefix(number.rest);
  const std::int64_t value = ParseDigits<16>(number.rest, 0xFFFFFFFFll);
  return static_cast<Color>(number.negative ? -value : value);
}

Color ParseColor(std::wstring_view text) { return ParseColor(std::string_view(AsciiHead(text))); }

std::string FormatDecimal(double value) { return FormatFixed(value, 2); }

std::string FormatFixed(double value, int decimals) {
  std::array<char, 400> buffer;
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed,
                                    std::clamp(decimals, 0, 40));
  return std::string(buffer.data(), result.ptr);
}

std::string FormatExact(double value) {
  std::array<char, 40> buffer;
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return std::string(buffer.data(), result.ptr);
}

std::string FormatColor(Color color) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string out;
  for (int shift = 28; shift >= 0; shift -= 4) {
    const unsigned digit = color >> shift & 0xF;
    if (digit != 0 || !out.empty() || shift < 24) out += kDigits[digit];
  }
  return out;
}

}  // namespace xrpt
