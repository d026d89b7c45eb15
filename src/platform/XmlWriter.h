// The one serialiser: elements are appended to a text as they are written, two spaces a level, so that saving a report
// builds no tree and two saves of the same thing are the same bytes.
#pragma once

#include <string>
#include <string_view>

#include "platform/Xml.h"

namespace xrpt {

class XmlWriter {
 public:
  // Appends to `out`, which must outlive the writer. `depth` is the level at which the first element stands.
  explicit XmlWriter(std::string& out, int depth = 0) : out_(out), depth_(depth) {}

  void Declaration();
  void Start(std::string_view tag);
  void End(std::string_view tag);
  // A named value: <name>text</name>. Characters that no XML text may hold are left out.
  void Value(std::string_view name, std::wstring_view text);
  // The same for a text that is plain ASCII with nothing to escape: a number or a word of ours.
  void Plain(std::string_view name, std::string_view text);
  void Bool(std::string_view name, bool value) { Plain(name, value ? "T" : "F"); }
  // A deep copy of an element under the given tag.
  void Copy(std::string_view tag, const XmlNode& node);

  // A text as it stands inside an element.
  static std::string Escaped(std::wstring_view text);

  // What keeps the text from being read again: more bytes, elements or levels than a document may have. An empty
  // message when nothing does.
  XmlError Check() const;
  std::string_view Written() const { return out_; }

 private:
  void Indent();
  void NewLine();
  // A whole element whose text is written as it stands.
  template <class Char>
  void Whole(std::string_view name, std::basic_string_view<Char> text);
  // Ends an element that holds text: its end tag stands on the same line.
  void EndInline(std::string_view tag);
  void EndTag(std::string_view tag);
  // Closes the start tag that is still open, when there is one.
  void CloseTag();
  void Attributes(const XmlNode& node);
  void Text(std::wstring_view text);
  void Text(std::string_view utf8);
  void Character(char32_t code);

  std::string& out_;
  int depth_;
  int deepest_ = 0;
  bool open_ = false;
  bool compact_ = false;  // inside an element that has text of its own, where space would become part of it
};

// Writes a whole document through the host's file service, atomically. One that could not be read again is refused
// before a byte is written.
SaveResult SaveText(const Path& file, const XmlWriter& document, const FileVersion* expected = nullptr);

// Writes one element for as long as it lives.
class XmlElement {
 public:
  XmlElement(XmlWriter& writer, std::string_view tag) : writer_(writer), tag_(tag) { writer_.Start(tag_); }
  ~XmlElement() { writer_.End(tag_); }
  XmlElement(const XmlElement&) = delete;
  XmlElement& operator=(const XmlElement&) = delete;

 private:
  XmlWriter& writer_;
  std::string_view tag_;
};

}  // namespace xrpt
