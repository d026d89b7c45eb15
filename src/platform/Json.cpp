#include "platform/Json.h"

#include <array>
#include <cmath>
#include <cstdio>

#include "platform/Numbers.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

std::string Escaped(wchar_t c) {
  switch (c) {
    case '"':
      return "\\\"";
    case '\\':
      return "\\\\";
    case '\n':
      return "\\n";
    case '\t':
      return "\\t";
    case '\r':
      return "\\r";
    default:
      break;
  }
  std::array<char, 8> code;
  std::snprintf(code.data(), code.size(), "\\u%04x", static_cast<unsigned>(c));
  return code.data();
}

}  // namespace

void JsonWriter::Key(std::string_view name) {
  String(name);
  text_ += indent_ ? ": " : ":";
  afterKey_ = true;
}

void JsonWriter::String(std::wstring_view text) { String(std::string_view(ToUtf8(text))); }

void JsonWriter::String(std::string_view utf8) {
  Separate();
  text_ += '"';
  for (const wchar_t c : FromUtf8(utf8)) {
    if (c == L'"' || c == L'\\' || IsTerminalCommand(c)) {
      text_ += Escaped(c);
    } else {
      AppendUtf8(text_, static_cast<char32_t>(c));
    }
  }
  text_ += '"';
}

void JsonWriter::Int(long long value) {
  Separate();
  text_ += std::to_string(value);
}

void JsonWriter::Number(double value) {
  Separate();
  text_ += std::isfinite(value) ? FormatExact(value) : "null";
}

void JsonWriter::Bool(bool value) {
  Separate();
  text_ += value ? "true" : "false";
}

void JsonWriter::Open(char bracket) {
  Separate();
  text_ += bracket;
  hasItems_.push_back(false);
}

void JsonWriter::Close(char bracket) {
  const bool items = hasItems_.back();
  hasItems_.pop_back();
  if (items) NewLine();
  text_ += bracket;
}

void JsonWriter::Separate() {
  if (afterKey_) {
    afterKey_ = false;
    return;
  }
  if (hasItems_.empty()) return;
  if (hasItems_.back()) text_ += ',';
  hasItems_.back() = true;
  NewLine();
}

void JsonWriter::NewLine() {
  if (!indent_) return;
  text_ += '\n';
  text_.append(static_cast<std::size_t>(indent_) * hasItems_.size(), ' ');
}

}  // namespace xrpt
