// Wide strings in memory, UTF-8 at every edge: the conversions between the two, and the few text rules all layers
// share.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace xrpt {

// Malformed sequences, surrogates and code points above U+10FFFF each become U+FFFD; nothing is ever dropped silently.
std::wstring FromUtf8(std::string_view utf8);
// The same into a string whose room is used again.
void AssignUtf8(std::wstring& out, std::string_view utf8);
std::string ToUtf8(std::wstring_view text);
void AppendUtf8(std::string& out, char32_t code);

// Offset of the first byte that is no valid UTF-8, or npos when all of it is.
std::size_t FindInvalidUtf8(std::string_view bytes);

// Whether a terminal acts on a character instead of showing it: control characters, line separators, direction marks.
bool IsTerminalCommand(wchar_t c);
// The same text with a space for every such character. Lines and tabs stay when `keepsLines`.
std::string ForTerminal(std::string_view utf8, bool keepsLines = false);

// True for a name that stays one plain file name inside a folder: not empty, no separator, no drive colon, no control
// character, not "." or "..".
bool IsSafeFileName(std::wstring_view name);

// True for a relative folder path that never climbs out of the folder it is joined to ("./", "a/b", "a/b/").
bool IsSafeSubPath(std::wstring_view path);

// Replaces each "%d" or "%s" of a text of ours by the next argument; what the arguments hold is left as it is, and so
// are places beyond the last argument.
std::wstring FillIn(std::wstring_view pattern, std::initializer_list<std::wstring_view> arguments);
// The same with one.
std::wstring FormatText(std::wstring_view pattern, std::wstring_view argument);

}  // namespace xrpt
