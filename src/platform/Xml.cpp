// Parsing adds what the parser lacks: bounds on size, elements and depth, the UTF-8 check, and a single root.
#include "platform/Xml.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <utility>

#include "platform/Host.h"
#include "platform/Text.h"
#include "platform/XmlDepth.h"
#include "platform/XmlTree.h"
#include "platform/XmlWriter.h"

namespace xrpt {
namespace {

// Walks without recursion, and stops at the first node that is too deep.
class DepthCheck final : public pugi::xml_tree_walker {
 public:
  explicit DepthCheck(int level) : level_(level) {}
  bool for_each(pugi::xml_node& node) override { return level_ + depth() < XmlDocument::kMaxDepth || !IsElement(node); }

 private:
  int level_;
};

// A UTF-16 or UTF-32 byte order mark; the parser converts such texts itself.
bool HasWideMark(std::string_view text) {
  return text.size() > 1 && (text.substr(0, 2) == "\xFF\xFE" || text.substr(0, 2) == "\xFE\xFF");
}

bool DeclaresLatin1(std::string_view text) {
  const std::string_view head = text.substr(0, std::min<std::size_t>(text.size(), 200));
  return head.find("iso-8859-1") != head.npos || head.find("ISO-8859-1") != head.npos;
}

bool IsText(const pugi::xml_node& node) { return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata; }

// The parser's calls are all out of line, so what is asked for every node is asked once.
pugi::xml_node SkipToElement(pugi::xml_node node) {
  for (;;) {
    const pugi::xml_node_type type = node.type();
    if (type == pugi::node_element || type == pugi::node_null) return node;
    node = node.next_sibling();
  }
}

// Most names differ in their first letter. Only elements have one.
bool HasName(const pugi::xml_node& node, std::string_view tag) {
  const char* name = node.name();
  if (tag.empty() || *name != tag.front()) return false;
  return std::strncmp(name, tag.data(), tag.size()) == 0 && name[tag.size()] == '\0';
}

pugi::xml_node ElementNamed(const pugi::xml_node& parent, std::string_view tag) {
  pugi::xml_node child = parent.first_child();
  while (Unwrap(child) && !HasName(child, tag)) child = child.next_sibling();
  return child;
}

// An element takes four bytes at least, so that most texts need not be counted.
bool HasTooManyElements(std::string_view text) {
  return text.size() / 4 > XmlDocument::kMaxElements && CountBrackets(text) > 2 * XmlDocument::kMaxElements;
}

XmlError CheckBytes(std::string_view text) {
  if (XmlError tooMuch = XmlDocument::CheckSize(text); !tooMuch.message.empty()) return tooMuch;
  if (IsForeignEncoding(text)) return {};
  const std::size_t bad = FindInvalidUtf8(text);
  return bad == std::string_view::npos ? XmlError{} : XmlError{"a byte that is not UTF-8", bad};
}

XmlError CheckRoots(pugi::xml_document& document) {
  int roots = 0;
  for (const pugi::xml_node& node : document.children()) roots += IsElement(node) ? 1 : 0;
  if (roots == 0) return {"no root element", 0};
  if (roots > 1) return {"more than one root element", 0};
  return {};
}

// Up to four bytes of a name, the rest zero.
std::uint32_t HeadOf(const char* name) {
  std::uint32_t head = 0;
  for (std::size_t i = 0; i < 4 && name[i] != '\0'; ++i) {
    head |= static_cast<std::uint32_t>(static_cast<unsigned char>(name[i])) << (8 * i);
  }
  return head;
}

}  // namespace

// Eight bytes at a time.
std::size_t CountBrackets(std::string_view text) {
  constexpr std::uint64_t kLow = 0x7F7F7F7F7F7F7F7Full;
  constexpr std::uint64_t kBrackets = 0x3C3C3C3C3C3C3C3Cull;
  std::size_t count = 0;
  std::size_t at = 0;
  for (; at + 8 <= text.size(); at += 8) {
    std::uint64_t word = 0;
    std::memcpy(&word, text.data() + at, 8);
    word ^= kBrackets;
    const std::uint64_t zeros = ~(((word & kLow) + kLow) | word | kLow);  // the top bit of each byte that was one
    count += static_cast<std::size_t>(std::popcount(zeros));
  }
  return count + static_cast<std::size_t>(std::count(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(), '<'));
}

bool IsTooDeep(pugi::xml_document& tree, int level) {
  DepthCheck check(level);
  return !tree.traverse(check);
}

bool IsForeignEncoding(std::string_view text) { return HasWideMark(text) || DeclaresLatin1(text); }

// The parser frees a deep tree without recursion only as a whole, which is what dropping the document does.
struct XmlDocument::Impl {
  std::string buffer;  // the parser works in place; the tree points into it
  pugi::xml_document document;
};

XmlNode XmlNode::FirstChild() const { return XmlNode(Unwrap(SkipToElement(Wrap(node_).first_child()))); }

XmlNode XmlNode::NextSibling() const { return XmlNode(Unwrap(SkipToElement(Wrap(node_).next_sibling()))); }

std::string_view XmlNode::Tag() const { return Wrap(node_).name(); }

XmlNode XmlNode::Node(std::string_view path) const {
  pugi::xml_node node = Wrap(node_);
  while (node && !path.empty()) {
    if (path.front() == '/') path.remove_prefix(1);
    const std::size_t cut = std::min(path.find('/'), path.size());
    node = ElementNamed(node, path.substr(0, cut));
    path.remove_prefix(cut);
  }
  return XmlNode(Unwrap(node));
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
  const pugi::xml_node node = Wrap(node_);
  const char* own = node.value();
  const pugi::xml_node first = node.first_child();
  if (!Unwrap(first)) return own;
  if (*own == '\0' && IsText(first) && !first.next_sibling()) return first.value();
  joined = own;
  for (pugi::xml_node piece = first; piece; piece = piece.next_sibling()) {
    if (IsText(piece)) joined += piece.value();
  }
  return joined;
}

std::optional<std::size_t> XmlNode::SourceOffset() const {
  const std::ptrdiff_t offset = Wrap(node_).offset_debug();
  return offset < 0 ? std::nullopt : std::optional<std::size_t>(static_cast<std::size_t>(offset));
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
  if (!text.empty() || *node.value() != '\0') node.text().set(ToUtf8(text).c_str());
}

XmlNode XmlNode::NewChild(std::string_view tag) {
  pugi::xml_node child = Wrap(node_).append_child(pugi::node_element);
  child.set_name(std::string(tag).c_str());
  return XmlNode(Unwrap(child));
}

bool XmlNode::Remove(XmlNode child) { return Wrap(node_).remove_child(Wrap(child.node_)); }

void XmlNode::Clear() {
  SetText({});
  while (Wrap(node_).remove_child(Wrap(node_).first_child())) {
  }
}

void XmlNode::Assign(const XmlNode& other) {
  Clear();
  pugi::xml_node node = Wrap(node_);
  node.remove_attributes();
  for (const pugi::xml_attribute& attribute : Wrap(other.node_).attributes()) node.append_copy(attribute);
  if (const char* own = Wrap(other.node_).value(); *own != '\0') node.text().set(own);
  for (const pugi::xml_node& child : Wrap(other.node_).children()) node.append_copy(child);
}

XmlNode XmlNode::Append(const XmlNode& other) { return XmlNode(Unwrap(Wrap(node_).append_copy(Wrap(other.node_)))); }

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

// Only elements have a name. What lies beyond `count_` is left unset.
XmlCursor::XmlCursor(const XmlNode& parent) {
  pugi::xml_node child = Wrap(parent.node_).first_child();
  for (; Unwrap(child) && count_ < kAtHand; child = child.next_sibling()) {
    const char* name = child.name();
    if (*name != '\0') children_[count_++] = {HeadOf(name), name, Unwrap(child)};
  }
  rest_ = XmlNode(Unwrap(SkipToElement(child)));
}

XmlNode XmlCursor::Find(const XmlName& tag) {
  for (std::size_t i = next_; i < count_; ++i) {
    if (!tag.Is(children_[i].name, children_[i].head)) continue;
    if (i == next_) ++next_;
    return XmlNode(children_[i].node);
  }
  return rest_ ? FindInRest(tag) : XmlNode();
}

XmlNode XmlCursor::FindInRest(const XmlName& tag) const {
  XmlNode child = rest_;
  while (child && !HasName(Wrap(child.node_), tag.text)) child = child.NextSibling();
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
  return XmlNode(Unwrap(root));
}

bool XmlDocument::Load(const std::filesystem::path& path, XmlError* error) {
  return Load(*CurrentHost().files, path, error);
}

bool XmlDocument::Load(FileService& files, const std::filesystem::path& path, XmlError* error) {
  path_ = path;
  FileError fileError;
  std::optional<std::string> bytes = files.Read(path, kMaxBytes, &fileError);
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
    const bool isShallow = IsSurelyShallow(impl_->buffer);
    const pugi::xml_parse_result result =
        impl_->document.load_buffer_inplace(impl_->buffer.data(), impl_->buffer.size(), kParseFlags);
    fault =
        result ? CheckRoots(impl_->document) : XmlError{result.description(), static_cast<std::size_t>(result.offset)};
    if (fault.message.empty() && !isShallow && IsTooDeep(impl_->document)) fault = {kTooDeep, 0};
  }
  if (fault.message.empty()) return true;
  impl_ = std::make_unique<Impl>();
  if (error) *error = std::move(fault);
  return false;
}

XmlError XmlDocument::CheckSize(std::string_view text) {
  if (text.size() > kMaxBytes) return {"the document is too large", kMaxBytes};
  if (HasTooManyElements(text)) return {"the document has too many elements", 0};
  return {};
}

SaveResult XmlDocument::Save() const {
  std::string text;
  XmlWriter writer(text);
  Write(writer);
  return SaveText(path_, writer);
}

std::string XmlDocument::Text() const {
  std::string text;
  XmlWriter writer(text);
  Write(writer);
  return text;
}

void XmlDocument::Write(XmlWriter& writer) const {
  writer.Declaration();
  if (Root()) writer.Copy(Root().Tag(), Root());
}

XmlNode XmlDocument::Root() const { return XmlNode(Unwrap(SkipToElement(impl_->document.first_child()))); }

SaveResult SaveText(const Path& file, const XmlWriter& writer, const FileVersion* expected) {
  const XmlError fault = writer.Check();
  if (!fault.message.empty()) return {SaveOutcome::Failed, file, fault.message, {}};
  return CurrentHost().files->Write(file, writer.Written(), expected);
}

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
  std::string joined;
  const std::string_view text = node.WholeText(joined);
  if (!text.empty()) {
    CloseTag();
    Text(text);
  }
  const XmlNode first = node.FirstChild();
  if (!text.empty() && !first) return EndInline(tag);
  const bool outer = std::exchange(compact_, compact_ || !text.empty());
  for (XmlNode child = first; child; child = child.NextSibling()) Copy(child.Tag(), child);
  compact_ = outer;
  if (text.empty()) return End(tag);
  EndInline(tag);
}

}  // namespace xrpt
