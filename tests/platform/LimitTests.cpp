// What is written can be read again: both ask the same limits.
#include "platform/XmlWriter.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

class Limits : public HostTest {
 protected:
  // A document of so many levels.
  static XmlDocument Nested(int levels) {
    XmlDocument document("a");
    XmlNode node = document.Root();
    for (int level = 1; level < levels; ++level) node = node.NewChild("a");
    node.SetText(L"deep");
    return document;
  }
};

TEST_F(Limits, OfDepthAreTheSameForReadingAndWriting) {
  for (const int levels : {XmlDocument::kMaxDepth - 1, XmlDocument::kMaxDepth, XmlDocument::kMaxDepth + 1}) {
    XmlDocument document = Nested(levels);
    const Path file = host.WriteCfg("deep.xml", "old");
    document.SetFileName(file);
    const SaveResult saved = document.Save();
    EXPECT_EQ(static_cast<bool>(saved), levels <= XmlDocument::kMaxDepth) << levels;
    EXPECT_EQ(XmlDocument().Parse(document.Text()), static_cast<bool>(saved)) << levels;
    if (saved) continue;
    EXPECT_EQ(saved.reason, XmlDocument::kTooDeep);
    EXPECT_EQ(TestHost::ReadFile(file), "old") << "refused before a byte is written";
  }
}

TEST_F(Limits, OfElementsAndBytesRefuseWhatIsOneTooMuch) {
  std::string text = std::string(3 * XmlDocument::kMaxElements, ' ') + std::string(2 * XmlDocument::kMaxElements, '<');
  EXPECT_EQ(XmlDocument::CheckSize(text).message, "");
  text += '<';
  EXPECT_NE(XmlDocument::CheckSize(text).message, "");
  text.assign(XmlDocument::kMaxBytes, ' ');
  EXPECT_EQ(XmlDocument::CheckSize(text).message, "");
  text += ' ';
  EXPECT_NE(XmlDocument::CheckSize(text).message, "");
}

}  // namespace
}  // namespace xrpt
