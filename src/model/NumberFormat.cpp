#include "model/NumberFormat.h"

#include <algorithm>
#include <cmath>

#include "platform/Numbers.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

constexpr std::int32_t kFreeDecimals = 5;
// A double has no digits beyond these; a file may ask for two thousand million.
constexpr std::int32_t kMostIntegers = 310;
constexpr std::int32_t kMostDecimals = 40;

// One side of a format text: one digit, or two of which the first may be the 0 that asks for padding. A character that
// is no digit gives its distance from '0', which the limits below then treat.
struct Count {
  std::int32_t digits;
  bool padding;
};

Count CountOf(std::wstring_view part, std::int32_t otherwise) {
  const auto digit = [part](std::size_t i) { return static_cast<std::int32_t>(part[i]) - L'0'; };
  if (part.size() == 1) return {digit(0), false};
  if (part.size() == 2) return {digit(1), part[0] == L'0'};
  return {otherwise, false};
}

// A number's text cut at its separator.
struct Digits {
  std::wstring integer;  // with a leading minus
  std::wstring decimal;
  bool hasDecimal = false;
};

Digits Split(double value, std::int32_t decimals) {
  const std::wstring text = FromUtf8(FormatFixed(value, decimals));
  const std::size_t point = text.find(L'.');
  if (point == std::wstring::npos) return {text, L"", false};
  return {text.substr(0, point), text.substr(point + 1), true};
}

std::wstring Mask(std::int32_t integers, std::int32_t decimals, const std::wstring& separator) {
  std::wstring mask(static_cast<std::size_t>(integers), L'*');
  if (decimals > 0) mask += separator + std::wstring(static_cast<std::size_t>(decimals), L'*');
  return mask;
}

void PadLeft(std::wstring& integer, std::int32_t digits) {
  const bool negative = !integer.empty() && integer[0] == L'-';
  std::wstring plain = integer.substr(negative ? 1 : 0);
  const auto wanted = static_cast<std::size_t>(std::max(digits, 0));
  if (plain.size() < wanted) plain.insert(0, wanted - plain.size(), L'0');
  integer = (negative ? L"-" : L"") + plain;
}

void TrimZeros(Digits& digits) {
  while (!digits.decimal.empty() && digits.decimal.back() == L'0') digits.decimal.pop_back();
  if (digits.decimal.empty()) digits.hasDecimal = false;
}

std::wstring GroupThousands(const std::wstring& integer, const std::wstring& separator) {
  const std::size_t sign = !integer.empty() && integer[0] == L'-' ? 1 : 0;
  std::wstring out = integer.substr(0, sign);
  for (std::size_t i = sign; i < integer.size(); ++i) {
    if (i > sign && (integer.size() - i) % 3 == 0) out += separator;
    out += integer[i];
  }
  return out;
}

// Takes digits off the front and says how many there were.
std::size_t TakeDigits(std::wstring_view& text) {
  const std::size_t count = std::min(text.find_first_not_of(L"0123456789"), text.size());
  text.remove_prefix(count);
  return count;
}

bool TakeOne(std::wstring_view& text, std::wstring_view characters) {
  const bool found = !text.empty() && characters.find(text.front()) != characters.npos;
  if (found) text.remove_prefix(1);
  return found;
}

bool IsWholeNumber(std::wstring_view text) {
  TakeOne(text, L"+-");
  std::size_t digits = TakeDigits(text);
  if (TakeOne(text, L".")) digits += TakeDigits(text);
  if (digits == 0) return false;
  if (!TakeOne(text, L"eE")) return text.empty();
  TakeOne(text, L"+-");
  return TakeDigits(text) > 0 && text.empty();
}

}  // namespace

std::optional<double> ReadWholeNumber(std::wstring_view text) {
  constexpr const wchar_t* kBlanks = L" \t\r\n";
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  text = text.substr(0, text.find_last_not_of(kBlanks) + 1);
  if (!IsWholeNumber(text)) return std::nullopt;
  return ParseDecimal(text);
}

NumberFormat ParseNumberFormat(std::wstring_view format) {
  NumberFormat out;
  const std::size_t point = format.find(L'.');
  if (point == std::wstring_view::npos) return out;
  const Count integers = CountOf(format.substr(0, point), -1);
  out.integers = integers.digits >= 13 ? 12 : integers.digits;
  out.leftPadding = integers.padding && out.integers >= 0;
  const std::wstring_view tail = format.substr(point + 1);
  const Count decimals = CountOf(tail, tail.empty() ? -1 : out.decimals);
  out.decimals = std::min(decimals.digits, 9);
  out.rightPadding = decimals.padding && out.decimals >= 0;
  return out;
}

std::wstring FormatDouble(double value, const NumberFormat& format, const NumberSeparators& separators) {
  if (!std::isfinite(value)) return L"#";
  const std::int32_t decimals = format.decimals < 0 ? kFreeDecimals : std::min(format.decimals, kMostDecimals);
  Digits digits = Split(value, decimals);
  if (format.integers >= 1 && digits.integer.size() > static_cast<std::size_t>(format.integers)) {
    return Mask(format.integers, decimals, separators.decimal);
  }
  if (format.leftPadding) PadLeft(digits.integer, std::min(format.integers, kMostIntegers));
  if (!format.rightPadding || decimals < 1) TrimZeros(digits);
  if (format.thousandSeparator) digits.integer = GroupThousands(digits.integer, separators.thousands);
  return digits.hasDecimal ? digits.integer + separators.decimal + digits.decimal : digits.integer;
}

}  // namespace xrpt
