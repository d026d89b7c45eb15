#include "platform/Text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace xrpt {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

struct Decoded {
  char32_t code;
  std::size_t length;  // bytes taken, at least 1
  bool valid;
};

bool IsAscii(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

bool IsContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

// Length of the sequence that a lead byte announces, and the smallest code point such a sequence may hold.
struct Lead {
  std::size_t length;
  char32_t bits;
  char32_t smallest;
};

Lead LeadOf(unsigned char byte) {
  if ((byte & 0xE0) == 0xC0) return {2, byte & 0x1Fu, 0x80};
  if ((byte & 0xF0) == 0xE0) return {3, byte & 0x0Fu, 0x800};
  if ((byte & 0xF8) == 0xF0) return {4, byte & 0x07u, 0x10000};
  return {1, 0, 1};
}

bool IsScalar(char32_t code) { return code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF); }

Decoded DecodeOne(std::string_view bytes, std::size_t at) {
  const auto first = static_cast<unsigned char>(bytes[at]);
  if (first < 0x80) return {first, 1, true};
  const Lead lead = LeadOf(first);
  char32_t code = lead.bits;
  std::size_t used = 1;
  for (; used < lead.length && at + used < bytes.size(); ++used) {
    const auto next = static_cast<unsigned char>(bytes[at + used]);
    if (!IsContinuation(next)) break;
    code = code << 6 | (next & 0x3Fu);
  }
  const bool whole = used == lead.length && lead.length > 1;
  const bool valid = whole && code >= lead.smallest && IsScalar(code);
  return {valid ? code : kReplacement, used, valid};
}

// Whether the eight bytes from `at` on are all there and plain ASCII.
bool IsAsciiWord(std::string_view bytes, std::size_t at) {
  if (at + 8 > bytes.size()) return false;
  std::uint64_t word = 0;
  std::memcpy(&word, bytes.data() + at, 8);
  return (word & 0x8080808080808080ull) == 0;
}

// The same of more of them at once.
constexpr std::size_t kAsciiBlock = 64;
bool IsAsciiBlock(std::string_view bytes, std::size_t at) {
  if (at + kAsciiBlock > bytes.size()) return false;
  std::array<std::uint64_t, kAsciiBlock / 8> words;
  std::memcpy(words.data(), bytes.data() + at, kAsciiBlock);
  std::uint64_t all = 0;
  for (const std::uint64_t word : words) all |= word;
  return (all & 0x8080808080808080ull) == 0;
}

// To the next byte that is not ASCII, or the end.
std::size_t SkipAscii(std::string_view bytes, std::size_t at) {
  while (IsAsciiBlock(bytes, at)) at += kAsciiBlock;
  while (IsAsciiWord(bytes, at)) at += 8;
  while (at < bytes.size() && IsAscii(bytes[at])) ++at;
  return at;
}

bool IsSafeCharacter(wchar_t c) { return c >= 0x20 && c != L'/' && c != L'\\' && c != L':' && c != 0x7F; }

}  // namespace

void AppendUtf8(std::string& out, char32_t code) {
  if (code < 0x80) {
    out += static_cast<char>(code);
  } else if (code < 0x800) {
    out += static_cast<char>(0xC0 | code >> 6);
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    out += static_cast<char>(0xE0 | code >> 12);
    out += static_cast<char>(0x80 | (code >> 6 & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | code >> 18);
    out += static_cast<char>(0x80 | (code >> 12 & 0x3F));
    out += static_cast<char>(0x80 | (code >> 6 & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  }
}

std::wstring FromUtf8(std::string_view utf8) {
  std::wstring out;
  AssignUtf8(out, utf8);
  return out;
}

void AssignUtf8(std::wstring& out, std::string_view utf8) {
  out.resize(utf8.size());  // no text has more characters than bytes
  wchar_t* to = out.data();
  for (std::size_t at = 0; at < utf8.size();) {
    if (IsAsciiWord(utf8, at)) {
      for (std::size_t i = 0; i < 8; ++i) to[i] = static_cast<wchar_t>(utf8[at + i]);
      to += 8;
      at += 8;
      continue;
    }
    if (IsAscii(utf8[at])) {
      *to++ = static_cast<wchar_t>(utf8[at++]);
      continue;
    }
    const Decoded one = DecodeOne(utf8, at);
    *to++ = static_cast<wchar_t>(one.code);
    at += one.length;
  }
  out.resize(static_cast<std::size_t>(to - out.data()));
}

std::string ToUtf8(std::wstring_view text) {
  std::string out;
  out.reserve(text.size());
  for (wchar_t c : text) {
    const auto code = static_cast<char32_t>(c);
    AppendUtf8(out, IsScalar(code) ? code : kReplacement);
  }
  return out;
}

std::size_t FindInvalidUtf8(std::string_view bytes) {
  for (std::size_t at = SkipAscii(bytes, 0); at < bytes.size();) {
    const Decoded one = DecodeOne(bytes, at);
    if (!one.valid) return at;
    at = SkipAscii(bytes, at + one.length);
  }
  return std::string_view::npos;
}

bool IsTerminalCommand(wchar_t c) {
  if (c < 0x20 || (c >= 0x7F && c < 0xA0)) return true;
  return c == 0x2028 || c == 0x2029 || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) ||
         (c >= 0x2066 && c <= 0x2069);
}

std::string ForTerminal(std::string_view utf8, bool keepsLines) {
  std::wstring text = FromUtf8(utf8);
  for (wchar_t& c : text) {
    if (IsTerminalCommand(c) && !(keepsLines && (c == L'\n' || c == L'\t'))) c = L' ';
  }
  return ToUtf8(text);
}

bool IsSafeFileName(std::wstring_view name) {
  if (name.empty() || name == L"." || name == L"..") return false;
  for (wchar_t c : name) {
    if (!IsSafeCharacter(c)) return false;
  }
  return true;
}

bool IsSafeSubPath(std::wstring_view path) {
  if (!path.empty() && path.front() == L'/') return false;
  while (!path.empty()) {
    const std::size_t cut = path.find(L'/');
    const std::wstring_view step = path.substr(0, cut);
    if (!step.empty() && step != L"." && !IsSafeFileName(step)) return false;
    path = cut == std::wstring_view::npos ? std::wstring_view() : path.substr(cut + 1);
  }
  return true;
}

std::wstring FillIn(std::wstring_view pattern, std::initializer_list<std::wstring_view> arguments) {
  std::wstring out;
  for (const std::wstring_view argument : arguments) {
    const std::size_t at = std::min(pattern.find(L"%d"), pattern.find(L"%s"));
    if (at == std::wstring_view::npos) break;
    out.append(pattern.substr(0, at)).append(argument);
    pattern.remove_prefix(at + 2);
  }
  return out.append(pattern);
}

std::wstring FormatText(std::wstring_view pattern, std::wstring_view argument) { return FillIn(pattern, {argument}); }

}  // namespace xrpt
