#include "platform/Characters.h"

#include <wctype.h>

#include <algorithm>

namespace xrpt {
namespace {

constexpr wchar_t kLastAscii = 0x7F;
constexpr wchar_t kNoBreakSpace = 0xA0;
constexpr wchar_t kFigureSpace = 0x2007;
constexpr wchar_t kNarrowNoBreakSpace = 0x202F;

// Knows every script and no country's habits.
locale_t Unicode() {
  static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  return locale;
}

wint_t Code(wchar_t c) { return static_cast<wint_t>(c); }

bool IsAsciiLetter(wchar_t c) { return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z'); }

}  // namespace

bool IsLetterOrDigit(wchar_t c) {
  if (c >= 0 && c <= kLastAscii) return IsDecimalDigit(c) || IsAsciiLetter(c);
  return Unicode() ? iswalnum_l(Code(c), Unicode()) != 0 : iswalnum(Code(c)) != 0;
}

bool IsWhiteSpace(wchar_t c) {
  if (c >= 0 && c <= kLastAscii) return c == L' ' || (c >= L'\t' && c <= L'\r');
  if (c == kNoBreakSpace || c == kFigureSpace || c == kNarrowNoBreakSpace) return true;
  return Unicode() ? iswspace_l(Code(c), Unicode()) != 0 : iswspace(Code(c)) != 0;
}

std::wstring_view Trimmed(std::wstring_view text) {
  while (!text.empty() && IsWhiteSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsWhiteSpace(text.back())) text.remove_suffix(1);
  return text;
}

// By way of the capital, so that letters with two small forms (sigma at a word's end) are one.
wchar_t FoldCase(wchar_t c) {
  if (c >= 0 && c <= kLastAscii) return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
  if (!Unicode()) return static_cast<wchar_t>(towlower(towupper(Code(c))));
  return static_cast<wchar_t>(towlower_l(towupper_l(Code(c), Unicode()), Unicode()));
}

std::wstring FoldCase(std::wstring_view text) {
  std::wstring folded(text.size(), L'\0');
  std::transform(text.begin(), text.end(), folded.begin(), [](wchar_t c) { return FoldCase(c); });
  return folded;
}

}  // namespace xrpt
