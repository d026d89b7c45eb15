#include "platform/Base64.h"

#include <array>
#include <cstdint>
#include <utility>

#include "platform/Numbers.h"

namespace xrpt {
namespace {

constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

constexpr std::array<std::int8_t, 256> MakeReverse() {
  std::array<std::int8_t, 256> reverse{};
  for (auto& value : reverse) value = -1;
  for (std::size_t i = 0; i < kAlphabet.size(); ++i) {
    reverse[static_cast<unsigned char>(kAlphabet[i])] = static_cast<std::int8_t>(i);
  }
  return reverse;
}
constexpr std::array<std::int8_t, 256> kReverse = MakeReverse();

bool IsSpace(char c) { return c == ' ' || c == '\n' || c == '\r' || c == '\t'; }

// Four letters are three bytes, as far as nothing else stands between them. How many letters that were; `to` ends
// behind the last byte.
std::size_t DecodeGroups(std::string_view text, char*& to) {
  std::size_t at = 0;
  for (; at + 4 <= text.size(); at += 4) {
    std::int32_t bits = 0;
    for (std::size_t i = 0; i < 4; ++i) {
      // A letter that is none makes the number negative for good.
      bits = bits << 6 | kReverse[static_cast<unsigned char>(text[at + i])];
    }
    if (bits < 0) break;
    *to++ = static_cast<char>(bits >> 16 & 0xFF);
    *to++ = static_cast<char>(bits >> 8 & 0xFF);
    *to++ = static_cast<char>(bits & 0xFF);
  }
  return at;
}

constexpr std::array<std::pair<std::string_view, char>, 5> kEntities = {
    {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}}};

// The character an entity stands for, 0 for one that stays as it is.
char EntityCharacter(std::string_view name) {
  for (const auto& [known, character] : kEntities) {
    if (name == known) return character;
  }
  if (name.size() < 2 || name[0] != '#') return 0;
  const Color code = name[1] == 'x' ? ParseColor(name.substr(2)) : static_cast<Color>(ParseInteger(name.substr(1)));
  return code < 128 ? static_cast<char>(code) : '\0';
}

}  // namespace

std::optional<std::string> DecodeBase64(std::string_view text) {
  std::string out(text.size() / 4 * 3 + 3, '\0');
  char* to = out.data();
  std::size_t at = DecodeGroups(text, to);
  std::uint32_t bits = 0;
  int held = 0;
  for (; at < text.size(); ++at) {
    // Between lines, whole groups again.
    if (held == 0) at += DecodeGroups(text.substr(at), to);
    if (at == text.size() || text[at] == '=') break;
    if (IsSpace(text[at])) continue;
    const std::int8_t value = kReverse[static_cast<unsigned char>(text[at])];
    if (value < 0) return std::nullopt;
    bits = bits << 6 | static_cast<std::uint32_t>(value);
    held += 6;
    if (held >= 8) {
      held -= 8;
      *to++ = static_cast<char>(bits >> held & 0xFF);
    }
  }
  out.resize(static_cast<std::size_t>(to - out.data()));
  return out;
}

std::string EncodeBase64(std::string_view bytes) {
  std::string out;
  out.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t at = 0; at < bytes.size(); at += 3) {
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < 3; ++i) {
      bits = bits << 8 | (at + i < bytes.size() ? static_cast<unsigned char>(bytes[at + i]) : 0u);
    }
    for (std::size_t i = 0; i < 4; ++i) {
      out += at + i <= bytes.size() ? kAlphabet[bits >> (18 - 6 * i) & 63] : '=';
    }
  }
  return out;
}

std::string Xml2Text(std::string_view escaped) {
  if (escaped.find('&') == escaped.npos) return std::string(escaped);
  std::string out;
  out.reserve(escaped.size());
  for (std::size_t at = 0; at < escaped.size(); ++at) {
    const std::size_t end = escaped[at] == '&' ? escaped.find(';', at) : escaped.npos;
    const char character =
        end == escaped.npos || end - at > 8 ? '\0' : EntityCharacter(escaped.substr(at + 1, end - at - 1));
    out += character ? character : escaped[at];
    if (character) at = end;
  }
  return out;
}

}  // namespace xrpt
