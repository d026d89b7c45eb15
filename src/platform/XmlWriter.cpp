#include "platform/XmlWriter.h"

#include "platform/Text.h"

namespace xrpt {
namespace {

// What an XML 1.0 text may hold.
bool IsXmlCharacter(char32_t c) {
  return c == '\t' || c == '\n' || c == '\r' || (c >= 0x20 && c <= 0xD7FF) || (c >= 0xE000 && c <= 0xFFFD) ||
         (c >= 0x10000 && c <= 0x10FFFF);
}

bool IsOrdinary(char32_t c) { return c >= 0x20 && c < 0x7F && c != '<' && c != '>' && c != '&' && c != '"'; }

}  // namespace

void XmlWriter::Declaration() { out_ += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"; }

void XmlWriter::Indent() { out_.append(static_cast<std::size_t>(2 * depth_), ' '); }

void XmlWriter::CloseTag() {
  if (open_) out_ += '>';
  open_ = false;
}

void XmlWriter::Start(std::string_view tag) {
  if (open_) {
    CloseTag();
    out_ += '\n';
  }
  Indent();
  out_ += '<';
  out_ += tag;
  open_ = true;
  ++depth_;
}

void XmlWriter::End(std::string_view tag) {
  --depth_;
  if (open_) {
    out_ += "/>\n";
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
  out_ += ">\n";
}

void XmlWriter::Value(std::string_view name, std::wstring_view text) {
  Start(name);
  if (text.empty()) {
    End(name);
    return;
  }
  CloseTag();
  for (wchar_t c : text) Character(static_cast<char32_t>(c));
  EndInline(name);
}

void XmlWriter::Plain(std::string_view name, std::string_view text) {
  Start(name);
  CloseTag();
  out_ += text;
  EndInline(name);
}

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

void XmlWriter::Text(std::string_view utf8) {
  for (wchar_t c : FromUtf8(utf8)) Character(static_cast<char32_t>(c));
}

}  // namespace xrpt
