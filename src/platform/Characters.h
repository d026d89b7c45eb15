// What kind of character a character is, the same on every machine whatever the program's locale.
#pragma once

#include <string>
#include <string_view>

namespace xrpt {

// "0" to "9" and nothing else.
constexpr bool IsDecimalDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }
bool IsLetterOrDigit(wchar_t c);
// Blanks, tabs, line ends, and the spaces of typography.
bool IsWhiteSpace(wchar_t c);
// What a formula's name is made of: letters, digits, "_".
inline bool IsNameCharacter(wchar_t c) { return c == L'_' || IsLetterOrDigit(c); }

// Without the white space at either end.
std::wstring_view Trimmed(std::wstring_view text);

// Capital and small letters become the same character; the text keeps its length.
wchar_t FoldCase(wchar_t c);
std::wstring FoldCase(std::wstring_view text);

}  // namespace xrpt
