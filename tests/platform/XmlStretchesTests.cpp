// Documents read in stretches: the same elements as of the whole tree, wherever the stretches end, and nothing of a
// faulty text.
#include <gtest/gtest.h>

#include <memory>
#include <random>

#include "platform/XmlStretches.h"

namespace xrpt {
namespace {

std::string PageOf(const XmlNode& page) {
  std::string seen = "[page]";
  for (const XmlNode& card : page) seen += card.CreateXmlCode();
  return seen + "[end]";
}

std::string ChildOf(const XmlNode& child) { return child.Tag() == "page" ? PageOf(child) : child.CreateXmlCode(); }

// Writes down all that it is told.
class Recorder final : public XmlVisitor {
 public:
  explicit Recorder(std::string& seen, bool isRoot = true) : seen_(seen), isRoot_(isRoot) {}
  void Child(const XmlNode& element) override { seen_ += isRoot_ ? ChildOf(element) : element.CreateXmlCode(); }
  XmlVisitor* Inside(std::string_view tag) override {
    if (tag != "page" || !isRoot_) return nullptr;
    seen_ += "[page]";
    inner_ = std::make_unique<Recorder>(seen_, false);
    return inner_.get();
  }
  void End() override { seen_ += "[end]"; }

 private:
  std::string& seen_;
  const bool isRoot_;
  std::unique_ptr<Recorder> inner_;
};

std::string InStretches(const std::string& text) {
  std::string seen;
  Recorder root(seen);
  return VisitStretches(text, "r", root) ? seen : "refused";
}

std::string AsTree(const std::string& text) {
  XmlDocument document;
  if (!document.Parse(text)) return "refused";
  std::string seen;
  for (const XmlNode& child : document.Root()) seen += ChildOf(child);
  return seen + "[end]";
}

class Texts {
 public:
  explicit Texts(unsigned seed) : random_(seed) {}

  std::size_t Below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_); }

  std::string Document() {
    std::string text = Below(2) == 0 ? "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<r>" : "<r>";
    for (std::size_t parts = Below(5); parts > 0; --parts) {
      text += Below(3) == 0 ? Element(0) : "\n  <page>" + Elements(Below(120), 0) + "</page>";
    }
    return text + "\n</r>\n";
  }

 private:
  std::string Elements(std::size_t count, int depth) {
    std::string text;
    while (count-- > 0) text += (Below(2) == 0 ? "\n    " : "") + Element(depth);
    return text;
  }

  std::string Element(int depth) {
    static const char* const kTags[] = {"label", "page", "r", "a", "control"};
    const std::string tag = kTags[Below(std::size(kTags))];
    if (Below(8) == 0) return "<" + tag + "/>";
    const bool isInner = depth < 4 && Below(3) == 0;
    const std::string attribute = Below(20) == 0 ? " x='>'" : "";
    return "<" + tag + attribute + ">" + (isInner ? Elements(Below(4), depth + 1) : Text()) + "</" + tag + ">";
  }

  std::string Text() {
    static const char* const kPieces[] = {"ñ", "&lt;/page&gt;", "<!-- </page> -->", "<![CDATA[</label>]]>", " ", "x>"};
    std::string text = std::string(Below(4) == 0 ? Below(3000) : Below(40), 'm');
    if (Below(4) == 0) text += kPieces[Below(std::size(kPieces))];
    return text;
  }

  std::mt19937 random_;
};

TEST(XmlStretches, AreTheSameElementsAsTheTrees) {
  int read = 0;
  for (unsigned seed = 0; seed < 150; ++seed) {
    const std::string text = Texts(seed).Document();
    const std::string seen = InStretches(text);
    EXPECT_TRUE(seen == AsTree(text)) << seed;
    read += text.size() > 40'000 ? 1 : 0;
  }
  EXPECT_GT(read, 20);  // of several stretches
}

TEST(XmlStretches, RefuseWhatTheTreeRefuses) {
  int refused = 0;
  for (unsigned seed = 0; seed < 300; ++seed) {
    Texts texts(seed);
    std::string text = texts.Document();
    const std::size_t at = texts.Below(text.size());
    const char bytes[] = {'<', '>', '/', '&', '\xFF', 'p', ' ', '!'};
    text[at] = bytes[texts.Below(std::size(bytes))];
    const std::string seen = InStretches(text);
    EXPECT_TRUE(seen == "refused" || seen == AsTree(text)) << seed << " at " << at;
    refused += seen == "refused" ? 1 : 0;
  }
  EXPECT_GT(refused, 50);
}

TEST(XmlStretches, OfUnusualTextsAreRefusedOrRight) {
  const std::string deep = [] {
    std::string text;
    for (int i = 0; i < XmlDocument::kMaxDepth; ++i) text = "<a>" + text + "</a>";
    return "<r><page>" + text + "</page></r>";
  }();
  const std::string large = "<r><page><a>" + std::string(500'000, 'x') + "</a></page></r>";
  for (const std::string& text :
       {std::string("<r><page><label><label></label></page></r>"), std::string("<r><page><label></page></label></r>"),
        std::string("<r><page></page>"), std::string("<r></page></r>"), std::string("<r/><r/>"),
        std::string("<r></r>x"), std::string(), std::string("<r>"), std::string("<r></r><r></r>"), deep,
        "<other></other>" + large}) {
    EXPECT_EQ(InStretches(text), "refused") << text.substr(0, 60);
  }
  for (const std::string& text :
       {large, std::string("<r><page ></page ></r >"), std::string("\xEF\xBB\xBF<r><page>text</page></r>"),
        std::string("<r><page><!-- </page> --><a/></page></r>")}) {
    EXPECT_TRUE(InStretches(text) == AsTree(text)) << text.substr(0, 60);
  }
}

}  // namespace
}  // namespace xrpt
