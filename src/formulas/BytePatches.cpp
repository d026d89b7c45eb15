#include "formulas/BytePatches.h"

#include <algorithm>
#include <charconv>

#include "platform/Text.h"
#include "platform/XmlWriter.h"

namespace xrpt {
namespace {

constexpr std::size_t kNowhere = std::string_view::npos;

// Behind the ">" of the start tag whose name stands at `at`; attribute values may hold one.
std::size_t EndOfStartTag(std::string_view bytes, std::size_t at) {
  char quote = '\0';
  for (; at < bytes.size(); ++at) {
    const char c = bytes[at];
    if (quote != '\0') {
      if (c == quote) quote = '\0';
    } else if (c == '"' || c == '\'') {
      quote = c;
    } else if (c == '>') {
      return bytes[at - 1] == '/' ? kNowhere : at + 1;
    }
  }
  return kNowhere;
}

// The end of what begins at `at` with an opening "<" and is no element; kNowhere for one.
std::size_t EndOfMarkup(std::string_view bytes, std::size_t at) {
  constexpr std::pair<std::string_view, std::string_view> kKinds[] = {
      {"<![CDATA[", "]]>"}, {"<!--", "-->"}, {"<?", "?>"}};
  for (const auto& [begin, end] : kKinds) {
    if (bytes.substr(at, begin.size()) != begin) continue;
    const std::size_t found = bytes.find(end, at + begin.size());
    return found == kNowhere ? kNowhere : found + end.size();
  }
  return kNowhere;
}

struct Content {
  std::size_t offset;
  std::string_view raw;
};

// What stands between the tags of an element that holds text alone.
std::optional<Content> ContentOf(const XmlNode& element, std::string_view bytes) {
  const std::optional<std::size_t> name = element.SourceOffset();
  if (!name || *name >= bytes.size() || bytes.substr(*name, element.Tag().size()) != element.Tag()) return std::nullopt;
  const std::size_t begin = EndOfStartTag(bytes, *name);
  std::size_t end = begin;
  while (end != kNowhere && (end = bytes.find('<', end)) != kNowhere && bytes.substr(end, 2) != "</") {
    end = EndOfMarkup(bytes, end);
  }
  if (begin == kNowhere || end == kNowhere) return std::nullopt;
  return Content{begin, bytes.substr(begin, end - begin)};
}

// A text as it stands in a file, a character at a time.
struct Spelled {
  std::wstring text;
  std::vector<std::size_t> offsets;  // where each character begins, and the end
};

std::size_t SequenceLength(char lead) {
  const auto byte = static_cast<unsigned char>(lead);
  if (byte < 0xC0) return 1;
  return byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

// The character of "&lt;" or "&#13;", whose inside is given; nothing for any other.
std::optional<wchar_t> ReferenceOf(std::string_view name) {
  constexpr std::pair<std::string_view, wchar_t> kNamed[] = {
      {"lt", L'<'}, {"gt", L'>'}, {"amp", L'&'}, {"quot", L'"'}, {"apos", L'\''}};
  for (const auto& [known, c] : kNamed) {
    if (name == known) return c;
  }
  if (name.size() < 2 || name[0] != '#') return std::nullopt;
  const bool isHex = name[1] == 'x';
  name.remove_prefix(isHex ? 2 : 1);
  std::uint32_t code = 0;
  const auto read = std::from_chars(name.data(), name.data() + name.size(), code, isHex ? 16 : 10);
  if (read.ec != std::errc() || read.ptr != name.data() + name.size()) return std::nullopt;
  return static_cast<wchar_t>(code);
}

// One character, and how many bytes it takes.
std::pair<wchar_t, std::size_t> CharacterAt(std::string_view raw, std::size_t at) {
  const std::size_t semicolon = raw[at] == '&' ? raw.substr(0, at + 12).find(';', at) : kNowhere;
  if (semicolon != kNowhere) {
    if (const auto c = ReferenceOf(raw.substr(at + 1, semicolon - at - 1))) return {*c, semicolon + 1 - at};
  }
  if (raw[at] == '\r') return {L'\n', raw.substr(at, 2) == "\r\n" ? 2 : 1};
  const std::size_t length = SequenceLength(raw[at]);
  return {FromUtf8(raw.substr(at, length)).front(), length};
}

Spelled Spell(std::string_view raw) {
  Spelled spelled;
  std::size_t at = 0;
  while (at < raw.size()) {
    const auto [c, length] = CharacterAt(raw, at);
    spelled.text += c;
    spelled.offsets.push_back(at);
    at += length;
  }
  spelled.offsets.push_back(raw.size());
  return spelled;
}

// From `begin` to the end of the line that `end` is in.
struct Lines {
  std::size_t begin;
  std::size_t end;
};

Lines LinesOf(std::string_view bytes, std::size_t begin, std::size_t end) {
  const std::size_t before = begin == 0 ? kNowhere : bytes.rfind('\n', begin - 1);
  const std::size_t after = bytes.find('\n', end);
  return {before == kNowhere ? 0 : before + 1, after == kNowhere ? bytes.size() : after};
}

std::size_t CountLines(std::string_view text) {
  return 1 + static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

std::string Marked(char mark, std::string_view text) {
  std::string out(1, mark);
  for (const char c : text) {
    out += c;
    if (c == '\n') out += mark;
  }
  return out + "\n";
}

}  // namespace

// Text that is spelled in pieces (comments, CDATA) is written anew as a whole.
bool AddPatches(std::vector<BytePatch>& patches, const XmlNode& element, std::string_view bytes,
                const TextFinder& finder, std::wstring_view replacement) {
  const std::wstring text = element.Value();
  const std::optional<std::wstring> whole = finder.Replaced(text, replacement);
  if (!whole) return true;
  const std::optional<Content> content = ContentOf(element, bytes);
  if (!content) return false;
  const Spelled spelled = Spell(content->raw);
  if (spelled.text != text) return AddWholePatch(patches, element, bytes, *whole);
  const std::string now = XmlWriter::Escaped(replacement);
  for (const std::size_t at : finder.FindAll(text)) {
    const std::size_t begin = spelled.offsets[at];
    patches.push_back({content->offset + begin, spelled.offsets[at + finder.Length()] - begin, now});
  }
  return true;
}

bool AddWholePatch(std::vector<BytePatch>& patches, const XmlNode& element, std::string_view bytes,
                   std::wstring_view now) {
  const std::optional<Content> content = ContentOf(element, bytes);
  if (content) patches.push_back({content->offset, content->raw.size(), XmlWriter::Escaped(now)});
  return content.has_value();
}

std::string Patched(std::string_view bytes, const std::vector<BytePatch>& patches) {
  std::string now;
  std::size_t done = 0;
  for (const BytePatch& patch : patches) {
    now.append(bytes, done, patch.offset - done).append(patch.now);
    done = patch.offset + patch.length;
  }
  return now.append(bytes, done);
}

std::string DiffOf(const std::string& file, std::string_view bytes, const std::vector<BytePatch>& patches) {
  std::string diff = "--- " + file + "\n+++ " + file + "\n";
  std::size_t line = 1;      // of the file, where `counted` is
  std::size_t counted = 0;   // bytes
  std::size_t newLines = 0;  // how many more the new text has, counted round
  for (std::size_t first = 0; first < patches.size();) {
    Lines lines = LinesOf(bytes, patches[first].offset, patches[first].offset + patches[first].length);
    std::vector<BytePatch> inLines;
    std::size_t next = first;
    for (; next < patches.size() && patches[next].offset <= lines.end; ++next) {
      const BytePatch& patch = patches[next];
      lines.end = LinesOf(bytes, patch.offset, patch.offset + patch.length).end;
      inLines.push_back({patch.offset - lines.begin, patch.length, patch.now});
    }
    const std::string_view before = bytes.substr(lines.begin, lines.end - lines.begin);
    const std::string after = Patched(before, inLines);
    line += CountLines(bytes.substr(counted, lines.begin - counted)) - 1;
    counted = lines.begin;
    diff += "@@ -" + std::to_string(line) + "," + std::to_string(CountLines(before)) + " +" +
            std::to_string(line + newLines) + "," + std::to_string(CountLines(after)) + " @@\n" + Marked('-', before) +
            Marked('+', after);
    newLines += CountLines(after) - CountLines(before);
    first = next;
  }
  return diff;
}

}  // namespace xrpt
