// The only source that knows the parser. Parsing adds what the parser lacks: bounds on size, elements and depth, the
// UTF-8 check, and a single root.
#include "platform/Xml.h"

#include <algorithm>
#include <pugixml.hpp>

#include "platform/Host.h"
#include "platform/Text.h"
#include "platform/XmlWriter.h"

namespace xrpt {
namespace {

using Raw = pugi::xml_node_struct*;

pugi::xml_node Wrap(void* node) { return pugi::xml_node(static_cast<Raw>(node)); }

bool IsElement(const pugi::xml_node& node) { return node.type() == pugi::node_element; }

bool IsText(const pugi::xml_node& node) { return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata; }

pugi::xml_node SkipToElement(pugi::xml_node node) {
  while (node && !IsElement(node)) node = node.next_sibling();
  return node;
}

pugi::xml_node ElementNamed(const pugi::xml_node& parent, std::string_view tag) {
  pugi::xml_node child = SkipToElement(parent.first_child());
  while (child && tag != child.name()) child = SkipToElement(child.next_sibling());
  return child;
}

// The next node of a walk over a whole tree, without recursion; `depth` follows.
pugi::xml_node NextInTree(pugi::xml_node node, const pugi::xml_node& top, int& depth) {
  if (node.first_child()) {
    ++depth;
    return node.first_child();
  }
  while (node != top && !node.next_sibling()) {
    node = node.parent();
    --depth;
  }
  return node == top ? pugi::xml_node() : node.next_sibling();
}

bool IsTooDeep(const pugi::xml_node& top) {
  int depth = 0;
  for (pugi::xml_node node = top; node; node = NextInTree(node, top, depth)) {
    if (depth > XmlDocument::kMaxDepth) return true;
  }
  return false;
}

std::size_t CountElements(std::string_view text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '<'));
}

// A UTF-16 or UTF-32 byte order mark; the parser converts such texts itself.
bool HasWideMark(std::string_view text) {
  return text.size() > 1 && (text.substr(0, 2) == "\xFF\xFE" || text.substr(0, 2) == "\xFE\xFF");
}

bool DeclaresLatin1(std::string_view text) {
  const std::string_view head = text.substr(0, std::min<std::size_t>(text.size(), 200));
  return head.find("iso-8859-1") != head.npos || head.find("ISO-8859-1") != head.npos;
}

XmlError CheckBytes(std::string_view text) {
  if (text.size() > XmlDocument::kMaxBytes) return {"the document is too large", XmlDocument::kMaxBytes};
  if (CountElements(text) > 2 * XmlDocument::kMaxElements) return {"the document has too many elements", 0};
  if (HasWideMark(text) || DeclaresLatin1(text)) return {};
  const std::size_t bad = FindInvalidUtf8(text);
  return bad == std::string_view::npos ? XmlError{} : XmlError{"a byte that is not UTF-8", bad};
}

XmlError CheckTree(const pugi::xml_document& document) {
  int roots = 0;
  for (const pugi::xml_node& node : document.children()) roots += IsElement(node) ? 1 : 0;
  if (roots == 0) return {"no root element", 0};
  if (roots > 1) return {"more than one root element", 0};
  if (IsTooDeep(document)) return {"elements are nested too deep", 0};
  return {};
}

// The parser frees a deep tree without recursion only as a whole, which is what dropping the document does.
constexpr unsigned kParseFlags = pugi::parse_default | pugi::parse_ws_pcdata_single;

}  // namespace

struct XmlDocument::Impl {
  std::string buffer;  // the parser works in place; the tree points into it
  pugi::xml_document document;
};

XmlNode XmlNode::FirstChild() const { return XmlNode(SkipToElement(Wrap(node_).first_child()).internal_object()); }

XmlNode XmlNode::NextSibling() const { return XmlNode(SkipToElement(Wrap(node_).next_sibling()).internal_object()); }

std::string_view XmlNode::Tag() const { return Wrap(node_).name(); }

XmlNode XmlNode::Node(std::string_view path) const {
  pugi::xml_node node = Wrap(node_);
  while (node && !path.empty()) {
    if (path.front() == '/') path.remove_prefix(1);
    const std::size_t cut = std::min(path.find('/'), path.size());
    node = ElementNamed(node, path.substr(0, cut));
    path.remove_prefix(cut);
  }
  return XmlNode(node.internal_object());
}

std::wstring XmlNode::Value() const {
  std::string joined;
  return FromUtf8(WholeText(joined));
}

std::wstring XmlNode::Value(std::string_view path, std::wstring_view missing) const {
  const XmlNode node = Node(path);
  return node ? node.Value() : std::wstring(missing);
}

std::string_view XmlNode::RawText() const { return Wrap(node_).child_value(); }

std::string_view XmlNode::WholeText(std::string& joined) const {
  const pugi::xml_node first = Wrap(node_).first_child();
  if (!first) return {};
  if (!first.next_sibling() && IsText(first)) return first.value();
  joined.clear();
  for (pugi::xml_node piece = first; piece; piece = piece.next_sibling()) {
    if (IsText(piece)) joined += piece.value();
  }
  return joined;
}

XmlNode XmlNode::SetValue(std::string_view name, std::wstring_view text) {
  XmlNode child = Node(name);
  if (!child) child = NewChild(name);
  child.SetText(text);
  return child;
}

void XmlNode::SetText(std::wstring_view text) {
  pugi::xml_node node = Wrap(node_);
  for (pugi::xml_node piece = node.first_child(); piece;) {
    const pugi::xml_node next = piece.next_sibling();
    if (IsText(piece)) node.remove_child(piece);
    piece = next;
  }
  if (!text.empty()) node.append_child(pugi::node_pcdata).set_value(ToUtf8(text).c_str());
}

XmlNode XmlNode::NewChild(std::string_view tag) {
  pugi::xml_node child = Wrap(node_).append_child(pugi::node_element);
  child.set_name(std::string(tag).c_str());
  return XmlNode(child.internal_object());
}

bool XmlNode::Remove(XmlNode child) { return Wrap(node_).remove_child(Wrap(child.node_)); }

void XmlNode::Clear() {
  while (Wrap(node_).remove_child(Wrap(node_).first_child())) {
  }
}

void XmlNode::Assign(const XmlNode& other) {
  Clear();
  pugi::xml_node node = Wrap(node_);
  node.remove_attributes();
  for (const pugi::xml_attribute& attribute : Wrap(other.node_).attributes()) node.append_copy(attribute);
  for (const pugi::xml_node& child : Wrap(other.node_).children()) node.append_copy(child);
}

XmlNode XmlNode::Append(const XmlNode& other) {
  return XmlNode(Wrap(node_).append_copy(Wrap(other.node_)).internal_object());
}

XmlNode::Iterator XmlNode::ChildsBegin() const { return Iterator(FirstChild()); }
XmlNode::Iterator XmlNode::ChildsEnd() const { return Iterator(); }
XmlNode::Iterator XmlNode::begin() const { return ChildsBegin(); }
XmlNode::Iterator XmlNode::end() const { return ChildsEnd(); }

std::size_t XmlNode::Size() const { return static_cast<std::size_t>(std::distance(begin(), end())); }

std::string XmlNode::CreateXmlCode() const {
  std::string text;
  XmlWriter writer(text);
  writer.Copy(Tag(), *this);
  return text;
}

XmlNode::Iterator& XmlNode::Iterator::operator++() {
  at_ = at_.NextSibling();
  return *this;
}

XmlNode::Iterator XmlNode::Iterator::operator++(int) {
  Iterator before = *this;
  ++*this;
  return before;
}

XmlCursor::XmlCursor(const XmlNode& parent) : next_(parent.FirstChild()) {}

XmlNode XmlCursor::Find(std::string_view tag) {
  XmlNode child = next_;
  while (child && child.Tag() != tag) child = child.NextSibling();
  if (child && child == next_) next_ = child.NextSibling();
  return child;
}

XmlDocument::XmlDocument() : impl_(std::make_unique<Impl>()) {}
XmlDocument::~XmlDocument() = default;
XmlDocument::XmlDocument(XmlDocument&&) noexcept = default;
XmlDocument& XmlDocument::operator=(XmlDocument&&) noexcept = default;
XmlDocument::XmlDocument(std::string_view rootTag) : XmlDocument() { Create(rootTag); }

XmlDocument XmlDocument::Clone() const {
  XmlDocument copy;
  copy.path_ = path_;
  copy.impl_->document.reset(impl_->document);
  return copy;
}

XmlNode XmlDocument::Create(std::string_view rootTag) {
  impl_ = std::make_unique<Impl>();
  pugi::xml_node root = impl_->document.append_child(pugi::node_element);
  root.set_name(std::string(rootTag).c_str());
  return XmlNode(root.internal_object());
}

bool XmlDocument::Load(const std::filesystem::path& path, XmlError* error) {
  path_ = path;
  FileError fileError;
  std::optional<std::string> bytes = CurrentHost().files->Read(path, kMaxBytes, &fileError);
  if (bytes) return Parse(std::move(*bytes), error);
  impl_ = std::make_unique<Impl>();
  if (error) *error = {fileError.reason, 0};
  return false;
}

bool XmlDocument::Parse(std::string text, XmlError* error) {
  impl_ = std::make_unique<Impl>();
  XmlError fault = CheckBytes(text);
  if (fault.message.empty()) {
    impl_->buffer = std::move(text);
    const pugi::xml_parse_result result =
        impl_->document.load_buffer_inplace(impl_->buffer.data(), impl_->buffer.size(), kParseFlags);
    fault =
        result ? CheckTree(impl_->document) : XmlError{result.description(), static_cast<std::size_t>(result.offset)};
  }
  if (fault.message.empty()) return true;
  impl_ = std::make_unique<Impl>();
  if (error) *error = std::move(fault);
  return false;
}

bool XmlDocument::Save() const { return CurrentHost().files->Write(path_, Text()); }

std::string XmlDocument::Text() const {
  std::string text;
  XmlWriter writer(text);
  writer.Declaration();
  if (Root()) writer.Copy(Root().Tag(), Root());
  return text;
}

XmlNode XmlDocument::Root() const { return XmlNode(SkipToElement(impl_->document.first_child()).internal_object()); }

// Here and not with the rest of the writer, because attributes and mixed text are the parser's to tell.
void XmlWriter::Attributes(const XmlNode& node) {
  for (const pugi::xml_attribute& attribute : Wrap(node.node_).attributes()) {
    out_ += ' ';
    out_ += attribute.name();
    out_ += "=\"";
    Text(attribute.value());
    out_ += '"';
  }
}

void XmlWriter::Copy(std::string_view tag, const XmlNode& node) {
  Start(tag);
  Attributes(node);
  bool text = false;
  for (const pugi::xml_node& child : Wrap(node.node_).children()) {
    if (IsText(child)) {
      CloseTag();
      Text(child.value());
      text = true;
    }
  }
  if (text && !node.FirstChild()) {
    EndInline(tag);
    return;
  }
  for (const XmlNode& child : node) Copy(child.Tag(), child);
  End(tag);
}

}  // namespace xrpt
