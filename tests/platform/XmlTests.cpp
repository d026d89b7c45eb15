// Documents: what is read back after writing, how values are looked for, and what is refused.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "platform/Text.h"
#include "platform/XmlWriter.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::HasSubstr;

XmlDocument Parsed(const std::string& text) {
  XmlDocument document;
  XmlError error;
  EXPECT_TRUE(document.Parse(text, &error)) << text << ": " << error.message;
  return document;
}

std::string Written(std::wstring_view value) {
  std::string text;
  XmlWriter out(text);
  const XmlElement root(out, "r");
  out.Value("v", value);
  return text + "</r>";
}

// All characters that XML may hold; the others are left out.
RC_GTEST_PROP(XmlProperties, TextsComeBackAsTheyWere, ()) {
  const auto code =
      rc::gen::oneOf(rc::gen::inRange<wchar_t>(0, 0x80), rc::gen::elementOf(std::wstring(L"<>&\"' ]\r\n\t")),
                     rc::gen::inRange<wchar_t>(0xA0, 0xD800), rc::gen::inRange<wchar_t>(0x10000, 0x110000));
  const auto text = *rc::gen::container<std::wstring>(code);
  std::wstring expected;
  for (const wchar_t c : text) {
    if (c >= 0x20 || c == L'\t' || c == L'\n' || c == L'\r') expected += c;
  }
  XmlDocument document;
  RC_ASSERT(document.Parse(Written(text)));
  RC_ASSERT(document.Root().Value("v") == expected);
}

TEST(Xml, ValuesAreFoundByPathAndTheFirstCounts) {
  const XmlDocument document = Parsed("<r><a>1</a><font><size>9</size><a>in</a></font><a>2</a><e/></r>");
  const XmlNode root = document.Root();
  const std::pair<const char*, const wchar_t*> rows[] = {
      {"a", L"1"},        {"/a", L"1"},         {"/font/size", L"9"},    {"font/a", L"in"},
      {"e", L""},         {"none", L"missing"}, {"/font/x", L"missing"}, {"A", L"missing"},
      {"siz", L"missing"}};
  for (const auto& [path, value] : rows) EXPECT_EQ(root.Value(path, L"missing"), value) << path;
  EXPECT_EQ(root.Size(), 4u);
  EXPECT_EQ(XmlNode().Node("a").Value("b", L"nothing"), L"nothing");
  EXPECT_EQ(XmlNode().Size(), 0u);
}

TEST(Xml, PiecesOfATextAreOne) {
  const XmlDocument document = Parsed("<r><a>one <!-- no --><![CDATA[<two>]]> three</a><b><c/>after</b></r>");
  EXPECT_EQ(document.Root().Value("a"), L"one <two> three");
  EXPECT_EQ(document.Root().Value("b"), L"after");
  EXPECT_EQ(document.Root().Node("a").RawText(), "one ");
}

// Whatever the order in which names are asked for, and however many children there are.
RC_GTEST_PROP(XmlProperties, ACursorFindsWhatLookingAnewFinds, ()) {
  const auto names = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 120));
  std::string text = "<r>";
  for (std::size_t i = 0; i < names.size(); ++i) {
    const std::string name = "name" + std::to_string(names[i]);
    text += "<" + name + ">" + std::to_string(i) + "</" + name + "> ";
  }
  XmlDocument document;
  RC_ASSERT(document.Parse(text + "</r>"));
  XmlCursor cursor(document.Root());
  for (const int asked : *rc::gen::unique<std::vector<int>>(rc::gen::inRange(0, 120))) {
    const std::string name = "name" + std::to_string(asked);
    RC_ASSERT(cursor.Find(XmlName(name)) == document.Root().Node(name));
  }
}

TEST(Xml, ACursorTellsNamesOfOneBeginningApart) {
  const XmlDocument document = Parsed("<r><size>1</size><sizes>2</sizes><siz>3</siz><si/></r>");
  XmlCursor cursor(document.Root());
  EXPECT_EQ(cursor.Find("siz").Value(), L"3");
  EXPECT_EQ(cursor.Find("sizes").Value(), L"2");
  EXPECT_EQ(cursor.Find("size").Value(), L"1");
  EXPECT_FALSE(cursor.Find("s"));
  EXPECT_FALSE(cursor.Find("sizesx"));
}

TEST(Xml, NamedValuesKeepTheirPlace) {
  XmlDocument document("r");
  XmlNode root = document.Root();
  root.SetValue("a", L"1");
  root.SetValue("b", L"2");
  root.SetValue("a", L"<3>");
  root.Append(Parsed("<x k=\"v\"><y>4</y></x>").Root());
  EXPECT_EQ(root.CreateXmlCode(), "<r>\n  <a>&lt;3&gt;</a>\n  <b>2</b>\n  <x k=\"v\">\n    <y>4</y>\n  </x>\n</r>\n");
  root.Node("x").Assign(Parsed("<other>t<z/></other>").Root());
  EXPECT_EQ(root.Node("x").CreateXmlCode(), "<x>t<z/></x>\n");
  EXPECT_TRUE(root.Remove(root.Node("b")));
  EXPECT_FALSE(root.Remove(root.Node("b")));
  const XmlDocument copy = document.Clone();
  root.Clear();
  EXPECT_EQ(root.Size(), 0u);
  EXPECT_EQ(copy.Root().Size(), 2u);
}

TEST(Xml, WhatIsNoDocumentIsRefusedWithAReasonAndAPlace) {
  const struct {
    std::string text;
    const char* reason;
  } rows[] = {{"", "o"},
              {"words", "o"},
              {"<a>", "mismatch"},
              {"<a></b>", "mismatch"},
              {"<a/><b/>", "more than one root"},
              {"<!-- only -->", "No document element"},
              {"<a>\xC3</a>", "UTF-8"}};
  for (const auto& row : rows) {
    XmlDocument document("before");
    XmlError error;
    EXPECT_FALSE(document.Parse(row.text, &error)) << row.text;
    EXPECT_THAT(error.message, HasSubstr(row.reason)) << row.text;
    EXPECT_FALSE(document.Root());
  }
  XmlError error;
  EXPECT_FALSE(XmlDocument().Parse("<a>123456789\xFF</a>", &error));
  EXPECT_EQ(error.offset, 12u);
}

std::string Nested(int depth) {
  std::string text;
  for (int i = 0; i < depth; ++i) text += "<a>";
  for (int i = 0; i < depth; ++i) text += "</a>";
  return text;
}

TEST(Xml, DepthIsBoundedToTheElement) {
  EXPECT_TRUE(XmlDocument().Parse(Nested(XmlDocument::kMaxDepth)));
  EXPECT_FALSE(XmlDocument().Parse(Nested(XmlDocument::kMaxDepth + 1)));
  EXPECT_FALSE(XmlDocument().Parse(Nested(1'000'000)));
}

// End tags that are none hide no depth, nor do many elements without an end tag make any.
TEST(Xml, DepthIsToldWhateverLooksLikeTags) {
  std::string ends;
  for (int i = 0; i < 400; ++i) ends += "</a>";
  for (const std::string& hiding :
       {"<b c=\"" + ends + "\"/>", "<b c = \t'" + ends + "'></b>", "<!--" + ends + "-->", "<![CDATA[" + ends + "]]>",
        "<?b " + ends + "?>", "x=1 == <b c=\n\"" + ends + "\"/>"}) {
    EXPECT_FALSE(XmlDocument().Parse("<r>" + hiding + Nested(XmlDocument::kMaxDepth) + "</r>")) << hiding.substr(0, 12);
    EXPECT_TRUE(XmlDocument().Parse("<r>" + hiding + Nested(XmlDocument::kMaxDepth - 1) + "</r>"))
        << hiding.substr(0, 12);
  }
  std::string empty;
  for (int i = 0; i < 1000; ++i) empty += "<b/>";
  EXPECT_TRUE(XmlDocument().Parse("<r>" + empty + Nested(XmlDocument::kMaxDepth - 1) + "</r>"));
  EXPECT_FALSE(XmlDocument().Parse("<?xml version=\"1.0\"?><r>/>/>" + Nested(XmlDocument::kMaxDepth) + "</r>"));
}

TEST(Xml, OtherEncodingsAreConverted) {
  EXPECT_EQ(Parsed("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a>caf\xE9</a>").Root().Value(), L"caf\xE9");
  std::string wide("\xFF\xFE", 2);
  for (const char c : std::string("<a>x</a>")) wide += std::string{c, '\0'};
  EXPECT_EQ(Parsed(wide).Root().Value(), L"x");
}

struct XmlFiles : HostTest {};

TEST_F(XmlFiles, AreWrittenAndReadByName) {
  XmlDocument document("style");
  document.Root().SetValue("name", L"\xD1");
  document.SetFileName(host.Cfg() / "a.xml");
  ASSERT_TRUE(document.Save());
  EXPECT_EQ(TestHost::ReadFile(host.Cfg() / "a.xml"),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<style>\n  <name>\xC3\x91</name>\n</style>\n");
  XmlDocument read;
  ASSERT_TRUE(read.Load(host.Cfg() / "a.xml"));
  EXPECT_EQ(read.FileName(), host.Cfg() / "a.xml");
  EXPECT_EQ(read.Root().Value("name"), L"\xD1");
  XmlError error;
  EXPECT_FALSE(read.Load(host.Cfg() / "none.xml", &error));
  EXPECT_NE(error.message, "");
  EXPECT_FALSE(read.Root());
}

}  // namespace
}  // namespace xrpt
