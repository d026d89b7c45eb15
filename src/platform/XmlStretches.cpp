#include "platform/XmlStretches.h"

#include <algorithm>
#include <string>

#include "platform/Text.h"
#include "platform/XmlDepth.h"
#include "platform/XmlTree.h"

namespace xrpt {
namespace {

constexpr std::size_t kStretch = 32u << 10;
constexpr std::size_t kNowhere = std::string_view::npos;

bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

class StretchReader {
 public:
  explicit StretchReader(std::string_view text) : text_(text) {}

  bool Read(std::string_view rootTag, XmlVisitor& root) {
    if (text_.size() > XmlDocument::kMaxBytes || IsForeignEncoding(text_)) return false;
    SkipDeclaration();
    if (!Enter(rootTag) || !ReadChildren(rootTag, 1, root)) return false;
    SkipSpace();
    return at_ == text_.size();
  }

 private:
  // The end tag of the element whose children are read.
  struct EndTag {
    std::size_t start = kNowhere;
    std::size_t end = kNowhere;
  };

  bool Starts(std::string_view with) const { return text_.substr(at_, with.size()) == with; }

  void SkipSpace() {
    while (at_ < text_.size() && IsSpace(text_[at_])) ++at_;
  }

  void SkipDeclaration() {
    for (const std::string_view start :
         {"\xEF\xBB\xBF", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>", "<?xml version=\"1.0\"?>"}) {
      if (Starts(start)) at_ += start.size();
    }
    SkipSpace();
  }

  // Steps over "<tag>".
  bool Enter(std::string_view tag) {
    const std::size_t end = at_ + 1 + tag.size();
    if (!Starts("<") || text_.substr(at_ + 1, tag.size()) != tag || text_.substr(end, 1) != ">") return false;
    at_ = end + 1;
    return true;
  }

  bool ReadChildren(std::string_view tag, int level, XmlVisitor& to) {
    EndTag endTag;
    for (std::size_t size = kStretch;;) {
      if (!ReadEntered(level, to)) return false;
      if (endTag.start < at_) endTag = {};  // it was inside what has just been read
      const std::size_t stop = std::min({text_.size(), at_ + size, endTag.start});
      const bool isShallow = IsSurelyShallow(text_.substr(at_, stop - at_), level);
      const bool isWhole = Parse(stop);
      if (!isShallow && IsTooDeep(tree_, level)) return false;
      if (isWhole && stop == endTag.start) {
        VisitUpTo({}, to);
        to.End();
        return Take(stop) && Take(endTag.end);
      }
      const bool foundEnd = !isWhole && endTag.start == kNowhere && FindEndTag(tag, endTag);
      const pugi::xml_node last = LastElement();
      const std::size_t start = last ? at_ + static_cast<std::size_t>(last.offset_debug()) - 1 : at_;
      VisitUpTo(last, to);
      const bool isFurther = start > at_;
      if (!Take(start)) return false;
      if (isFurther) size = kStretch;
      if (isFurther || foundEnd) continue;
      if (at_ + size >= text_.size()) return false;
      if (stop == endTag.start) endTag = {};  // of a child, which the stretch had cut
      size *= 2;
    }
  }

  // Every child here that is not wanted whole.
  bool ReadEntered(int level, XmlVisitor& to) {
    for (;;) {
      const std::size_t before = at_;
      SkipSpace();
      const std::size_t end = text_.substr(at_, 40).find('>');
      const std::string_view tag = Starts("<") && end != kNowhere ? text_.substr(at_ + 1, end - 1) : "";
      XmlVisitor* inside = tag.empty() ? nullptr : to.Inside(tag);
      if (!inside) {
        at_ = before;
        return true;
      }
      Enter(tag);
      if (!ReadChildren(tag, level + 1, *inside)) return false;
    }
  }

  // The tree of what stands here, as far as it goes. Whether the text up to `stop` is a sequence of whole elements.
  bool Parse(std::size_t stop) {
    stretch_.assign(text_, at_, stop - at_);
    result_ = tree_.load_buffer_inplace(stretch_.data(), stretch_.size(), kParseFlags | pugi::parse_fragment,
                                        pugi::encoding_utf8);
    return static_cast<bool>(result_);
  }

  // Whether the parser stopped at what may be the end tag of the element whose children these are. It may be a child's:
  // then the children are not whole, as the next stretch, which ends here, will show.
  bool FindEndTag(std::string_view tag, EndTag& found) const {
    if (result_.status != pugi::status_end_element_mismatch || result_.offset < 2) return false;
    const std::size_t name = at_ + static_cast<std::size_t>(result_.offset);
    if (text_.substr(name - 2, 2) != "</" || text_.substr(name, tag.size()) != tag) return false;
    std::size_t close = name + tag.size();
    while (close < text_.size() && IsSpace(text_[close])) ++close;
    if (text_.substr(close, 1) != ">") return false;
    found = {name - 2, close + 1};
    return true;
  }

  pugi::xml_node LastElement() const {
    pugi::xml_node last = tree_.last_child();
    while (last && !IsElement(last)) last = last.previous_sibling();
    return last;
  }

  void VisitUpTo(const pugi::xml_node& end, XmlVisitor& to) const {
    for (pugi::xml_node child = tree_.first_child(); child && child != end; child = child.next_sibling()) {
      if (IsElement(child)) to.Child(HandleOf(child));
    }
  }

  // The text up to there is done with.
  bool Take(std::size_t end) {
    const std::string_view taken = text_.substr(at_, end - at_);
    at_ = end;
    if (text_.size() / 4 > XmlDocument::kMaxElements) brackets_ += CountBrackets(taken);
    return brackets_ <= 2 * XmlDocument::kMaxElements && FindInvalidUtf8(taken) == kNowhere;
  }

  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t brackets_ = 0;
  std::string stretch_;  // the parser works in place; the tree points into it
  pugi::xml_document tree_;
  pugi::xml_parse_result result_;
};

}  // namespace

bool VisitStretches(std::string_view text, std::string_view rootTag, XmlVisitor& root) {
  return StretchReader(text).Read(rootTag, root);
}

}  // namespace xrpt
