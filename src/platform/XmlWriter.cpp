#include "platform/XmlWriter.h"

#include <algorithm>

#include "platform/Text.h"

namespace xrpt {
namespace {

// What an XML 1.0 text may hold.
bool IsXmlCharacter(char32_t c) {
  return c == '\t' || c == '\n' || c == '\r' || (c >= 0x20 && c <= 0xD7FF) || (c >= 0xE000 && c <= 0xFFFD) ||
         (c >= 0x10000 && c <= 0x10FFFF);
}

constexpr bool IsOrdinary(char32_t c) { return c >= 0x20 && c < 0x7F && c != '<' && c != '>' && c != '&' && c != '"'; }

// Length of the run of characters from `at` on that are written as they stand.
template <class Char>
std::size_t OrdinaryRun(std::basic_string_view<Char> text, std::size_t at) {
  std::size_t end = at;
  while (end < text.size() && IsOrdinary(static_cast<char32_t>(text[end]))) ++end;
  return end - at;
}

}  // namespace

void XmlWriter::Declaration() { out_ += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"; }

void XmlWriter::Indent() {
  if (!compact_) out_.append(static_cast<std::size_t>(2 * depth_), ' ');
}

void XmlWriter::NewLine() {
  if (!compact_) out_ += '\n';
}

void XmlWriter::CloseTag() {
  if (open_) out_ += '>';
  open_ = false;
}

void XmlWriter::Start(std::string_view tag) {
  if (open_) {
    CloseTag();
    NewLine();
  }
  Indent();
  out_ += '<';
  out_ += tag;
  open_ = true;
  deepest_ = std::max(deepest_, ++depth_);
}

void XmlWriter::End(std::string_view tag) {
  --depth_;
  if (open_) {
    out_ += "/>";
    NewLine();
    open_ = false;
    return;
  }
  Indent();
  EndTag(tag);
}

void XmlWriter::EndInline(std::string_view tag) {
  --depth_;
  EndTag(tag);
}

void XmlWriter::EndTag(std::string_view tag) {
  out_ += "</";
  out_ += tag;
  out_ += '>';
  NewLine();
}

XmlError XmlWriter::Check() const {
  if (deepest_ > XmlDocument::kMaxDepth) return {XmlDocument::kTooDeep, 0};
  return XmlDocument::CheckSize(out_);
}

// Most of a report is such elements, so each is put down in one go.
template <class Char>
void XmlWriter::Whole(std::string_view name, std::basic_string_view<Char> text) {
  if (open_) {
    CloseTag();
    NewLine();
  }
  const std::size_t indent = compact_ ? 0 : static_cast<std::size_t>(2 * depth_);
  const std::size_t from = out_.size();
  out_.resize(from + indent + 2 * name.size() + text.size() + 5 + (compact_ ? 0 : 1));
  char* to = std::fill_n(out_.data() + from, indent, ' ');
  *to++ = '<';
  to = std::copy(name.begin(), name.end(), to);
  *to++ = '>';
  to = std::transform(text.begin(), text.end(), to, [](Char c) { return static_cast<char>(c); });
  *to++ = '<';
  *to++ = '/';
  to = std::copy(name.begin(), name.end(), to);
  *to++ = '>';
  if (!compact_) *to = '\n';
  deepest_ = std::max(deepest_, depth_ + 1);
}

void XmlWriter::Value(std::string_view name, std::wstring_view text) {
  if (!text.empty() && OrdinaryRun(text, 0) == text.size()) return Whole(name, text);
  Start(name);
  if (text.empty()) {
    End(name);
    return;
  }
  CloseTag();
  Text(text);
  EndInline(name);
}

void XmlWriter::Plain(std::string_view name, std::string_view text) { Whole(name, text); }

void XmlWriter::Character(char32_t code) {
  if (IsOrdinary(code)) {
    out_ += static_cast<char>(code);
    return;
  }
  switch (code) {
    case '<':
      out_ += "&lt;";
      return;
    case '>':
      out_ += "&gt;";
      return;
    case '&':
      out_ += "&amp;";
      return;
    case '"':
      out_ += "&quot;";
      return;
    case '\r':  // a bare one would come back as a line feed
      out_ += "&#13;";
      return;
    default:
      if (IsXmlCharacter(code)) AppendUtf8(out_, code);
  }
}

void XmlWriter::Text(std::wstring_view text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::size_t run = OrdinaryRun(text, at);
    const std::size_t before = out_.size();
    out_.resize(before + run);
    for (std::size_t i = 0; i < run; ++i) out_[before + i] = static_cast<char>(text[at + i]);
    at += run;
    if (at < text.size()) Character(static_cast<char32_t>(text[at]));
  }
}

std::string XmlWriter::Escaped(std::wstring_view text) {
  std::string out;
  XmlWriter(out).Text(text);
  return out;
}

void XmlWriter::Text(std::string_view utf8) {
  const std::size_t run = OrdinaryRun(utf8, 0);
  out_ += utf8.substr(0, run);
  if (run < utf8.size()) Text(std::wstring_view(FromUtf8(utf8.substr(run))));
}

}  // namespace xrpt
