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
  std::string out;
  out.reserve(text.size() / 4 * 3);
  std::uint32_t bits = 0;
  int held = 0;
  for (char c : text) {
    if (IsSpace(c)) continue;
    if (c == '=') break;
    const std::int8_t value = kReverse[static_cast<unsigned char>(c)];
    if (value < 0) return std::nullopt;
    bits = bits << 6 | static_cast<std::uint32_t>(value);
    held += 6;
    if (held >= 8) {
      held -= 8;
      out += static_cast<char>(bits >> held & 0xFF);
    }
  }
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
