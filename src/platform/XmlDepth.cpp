#include "platform/XmlDepth.h"

#include <array>
#include <cstdint>

#include "platform/Xml.h"

namespace xrpt {
namespace {

constexpr std::size_t kBlock = 128;  // as many as a byte can count, with room

// What a block of the text holds.
struct Tags {
  std::uint8_t brackets = 0;
  std::uint8_t ends = 0;
  std::uint8_t sections = 0;  // comments, CDATA, instructions: what looks like tags in them is none
};

// Of kBlock bytes, and the one behind them. So simple that the compiler takes many bytes at a time.
Tags CountTags(const char* bytes) {
  Tags tags;
  for (std::size_t i = 0; i < kBlock; ++i) {
    const auto isTag = static_cast<std::uint8_t>(bytes[i] == '<');
    const char next = bytes[i + 1];
    tags.brackets = static_cast<std::uint8_t>(tags.brackets + isTag);
    tags.ends = static_cast<std::uint8_t>(tags.ends + (isTag & static_cast<std::uint8_t>(next == '/')));
    tags.sections |= static_cast<std::uint8_t>(isTag & static_cast<std::uint8_t>((next == '!') | (next == '?')));
  }
  return tags;
}

Tags CountTagsAt(std::string_view text, std::size_t at) {
  if (text.size() - at > kBlock) return CountTags(text.data() + at);
  std::array<char, kBlock + 1> last = {};
  text.copy(last.data(), kBlock, at);
  return CountTags(last.data());
}

bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

// The value of an attribute may hold what looks like tags.
bool MayHaveAttributes(std::string_view text) {
  for (std::size_t at = text.find('='); at != std::string_view::npos; at = text.find('=', at + 1)) {
    std::size_t next = at + 1;
    while (next < text.size() && IsSpace(text[next])) ++next;
    if (next < text.size() && (text[next] == '"' || text[next] == '\'')) return true;
  }
  return false;
}

std::string_view WithoutDeclaration(std::string_view text) {
  if (text.substr(0, 3) == "\xEF\xBB\xBF") text.remove_prefix(3);
  if (text.substr(0, 5) != "<?xml") return text;
  const std::size_t end = text.find("?>");
  return end == std::string_view::npos ? text : text.substr(end + 2);
}

}  // namespace

// An element that begins and ends in one tag counts as one that does not end.
bool IsSurelyShallow(std::string_view text, int level) {
  text = WithoutDeclaration(text);
  if (MayHaveAttributes(text)) return false;
  int depth = level;
  for (std::size_t at = 0; at < text.size(); at += kBlock) {
    const Tags tags = CountTagsAt(text, at);
    const int starts = tags.brackets - tags.ends;
    if (tags.sections != 0 || depth + starts >= XmlDocument::kMaxDepth) return false;
    depth += starts - tags.ends;
  }
  return true;
}

}  // namespace xrpt
