// XML documents: parsing with bounds, null-safe look-up, and one writer for every file of the system.
// Tags and paths are UTF-8; values are wide strings, or UTF-8 views where speed counts.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Files.h"

namespace xrpt {

class FileService;
class XmlWriter;

// Why a text is no document. `offset` counts bytes from its start; `message` is for people.
struct XmlError {
  std::string message;
  std::size_t offset = 0;
};

// A handle on one element. A handle on nothing answers every question with nothing, so look-ups chain without tests.
// Handles die with their document.
class XmlNode {
 public:
  class Iterator;

  XmlNode() = default;

  explicit operator bool() const { return node_ != nullptr; }
  bool operator==(const XmlNode&) const = default;

  std::string_view Tag() const;
  // First element under a path below this one: "/name", "name" or "/font/size".
  XmlNode Node(std::string_view path) const;
  // Own text; several text and CDATA pieces are joined.
  std::wstring Value() const;
  // Text of a named value, or the default when there is no such child.
  std::wstring Value(std::string_view path, std::wstring_view missing = {}) const;
  // Own text as it stands in memory (first piece only): for numbers and words, without conversion.
  std::string_view RawText() const;
  // Own text as UTF-8, whole: in place when it is one piece, else joined into the given string.
  std::string_view WholeText(std::string& joined) const;
  // Where the element's name stands in the text that was parsed, in bytes; nothing for an element made since.
  std::optional<std::size_t> SourceOffset() const;

  // Replaces the text of the named child, which keeps its place; creates it at the end when absent.
  XmlNode SetValue(std::string_view name, std::wstring_view text);
  // Replaces this element's own text.
  void SetText(std::wstring_view text);
  XmlNode NewChild(std::string_view tag);
  bool Remove(XmlNode child);
  void Clear();
  // Makes this element a deep copy of the other (children, attributes and text; the tag stays).
  void Assign(const XmlNode& other);
  // Appends a deep copy of the other element as last child.
  XmlNode Append(const XmlNode& other);

  // Child elements in document order.
  Iterator ChildsBegin() const;
  Iterator ChildsEnd() const;
  Iterator begin() const;
  Iterator end() const;
  std::size_t Size() const;

  // The element as XML text, without a declaration.
  std::string CreateXmlCode() const;

 private:
  friend class XmlDocument;
  friend class XmlWriter;
  friend class XmlCursor;
  explicit XmlNode(void* node) : node_(node) {}
  XmlNode FirstChild() const;
  XmlNode NextSibling() const;

  void* node_ = nullptr;
};

class XmlNode::Iterator {
 public:
  using iterator_category = std::forward_iterator_tag;
  using value_type = XmlNode;
  using difference_type = std::ptrdiff_t;
  using pointer = const XmlNode*;
  using reference = const XmlNode&;

  Iterator() = default;
  explicit Iterator(XmlNode at) : at_(at) {}
  reference operator*() const { return at_; }
  pointer operator->() const { return &at_; }
  Iterator& operator++();
  Iterator operator++(int);
  bool operator==(const Iterator&) const = default;

 private:
  XmlNode at_;
};

// A name to look for, made ready once: its first four bytes tell most names apart.
struct XmlName {
  std::string_view text;
  std::uint32_t head = 0;

  XmlName() = default;
  constexpr XmlName(const char* name) : XmlName(std::string_view(name ? name : "")) {}
  constexpr XmlName(std::string_view name) : text(name) {
    for (std::size_t i = 0; i < name.size() && i < 4; ++i) {
      head |= static_cast<std::uint32_t>(static_cast<unsigned char>(name[i])) << (8 * i);
    }
  }
  // Whether this is the given name, which ends with a zero byte and whose first four bytes are `otherHead`.
  bool Is(const char* other, std::uint32_t otherHead) const {
    if (head != otherHead) return false;
    std::size_t at = 4;
    while (at < text.size() && text[at] == other[at]) ++at;
    return at > text.size() || (at == text.size() && other[at] == '\0');
  }
};

// Looks up the children of one element, which it goes through once. Among children of one name the first counts; names
// asked for in the order of the file are found at once. Each name is asked for once: a second time it may be missed.
class XmlCursor {
 public:
  explicit XmlCursor(const XmlNode& parent);
  XmlNode Find(const XmlName& tag);

 private:
  struct Child {
    std::uint32_t head;
    const char* name;
    void* node;
  };
  static constexpr std::size_t kAtHand = 48;

  XmlNode FindInRest(const XmlName& tag) const;

  std::array<Child, kAtHand> children_;  // the first `count_` are set
  std::size_t count_ = 0;
  std::size_t next_ = 0;  // every child before this one was found under another name
  XmlNode rest_;          // the first child that found no place
};

class XmlDocument {
 public:
  // Beyond these a text is neither read nor written: they bound memory and time for hostile input, and what is saved
  // can be opened again.
  static constexpr std::size_t kMaxBytes = 512u << 20;
  static constexpr std::size_t kMaxElements = 16'000'000;
  static constexpr int kMaxDepth = 256;
  static constexpr const char* kTooDeep = "elements are nested too deep";

  XmlDocument();
  ~XmlDocument();
  XmlDocument(XmlDocument&&) noexcept;
  XmlDocument& operator=(XmlDocument&&) noexcept;
  // A document with the given root.
  explicit XmlDocument(std::string_view rootTag);
  XmlDocument Clone() const;

  void SetFileName(const std::filesystem::path& path) { path_ = path; }
  const std::filesystem::path& FileName() const { return path_; }
  // Empties the document and gives it a root.
  XmlNode Create(std::string_view rootTag);
  // Reads a file and remembers its name; through the installed host's files when told no others. False leaves the
  // document without a root.
  bool Load(FileService& files, const std::filesystem::path& path, XmlError* error = nullptr);
  bool Load(const std::filesystem::path& path, XmlError* error = nullptr);
  // Parses a whole document. False leaves the document without a root.
  bool Parse(std::string text, XmlError* error = nullptr);
  // Writes to the file name through the host's file service, atomically.
  SaveResult Save() const;
  // The document as text, with its declaration.
  std::string Text() const;

  // What makes a text too much to be read or written: bytes or elements. An empty message when it is within bounds.
  static XmlError CheckSize(std::string_view text);

  XmlNode Root() const;
  XmlNode Node(std::string_view path) const { return Root().Node(path); }

 private:
  struct Impl;
  void Write(XmlWriter& writer) const;

  std::unique_ptr<Impl> impl_;
  std::filesystem::path path_;
};

}  // namespace xrpt
