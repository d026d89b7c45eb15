// Texts at the edge: UTF-8, names fit for files, what files hold instead of bytes, and JSON.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "platform/Base64.h"
#include "platform/Json.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

RC_GTEST_PROP(Utf8, EveryTextComesBack, ()) {
  const auto code = rc::gen::oneOf(rc::gen::inRange<wchar_t>(0, 0x100), rc::gen::inRange<wchar_t>(0, 0xD800),
                                   rc::gen::inRange<wchar_t>(0xE000, 0x110000));
  const auto text = *rc::gen::container<std::wstring>(code);
  const std::string utf8 = ToUtf8(text);
  RC_ASSERT(FindInvalidUtf8(utf8) == std::string::npos);
  RC_ASSERT(FromUtf8(utf8) == text);
}

// The first fault is found, and everything but the faults survives.
TEST(Utf8, WhatIsNoneIsReplacedAndFound) {
  const struct {
    const char* bytes;
    std::size_t fault;
    const wchar_t* read;
  } rows[] = {
      {"abc\xFF", 3, L"abc\xFFFD"},       {"12345678\x80z", 8, L"12345678\xFFFDz"},
      {"a\xC3", 1, L"a\xFFFD"},           {"\xC0\xAF", 0, L"\xFFFD"},  // a slash in two bytes
      {"\xE0\x80\x80", 0, L"\xFFFD"},                                  // and a zero in three
      {"\xED\xA0\x80", 0, L"\xFFFD"},                                  // half of a pair
      {"\xF4\x90\x80\x80", 0, L"\xFFFD"},                              // beyond the last
      {"\xF0\x9F\x98", 0, L"\xFFFD"},                                  // cut
      {"\xE2\x82zz", 0, L"\xFFFDzz"},     {"caf\xC3\xA9 \xF0\x9F\x98\x80", std::string::npos, L"caf\xE9 \x1F600"}};
  for (const auto& row : rows) {
    EXPECT_EQ(FindInvalidUtf8(row.bytes), row.fault) << row.bytes;
    for (const std::size_t before : {61u, 64u, 130u}) {
      const std::size_t fault = row.fault == std::string::npos ? row.fault : row.fault + before;
      EXPECT_EQ(FindInvalidUtf8(std::string(before, 'a') + row.bytes), fault) << row.bytes;
    }
    EXPECT_EQ(FromUtf8(row.bytes), row.read) << row.bytes;
  }
  EXPECT_EQ(ToUtf8(std::wstring{L'a', static_cast<wchar_t>(0xD800), static_cast<wchar_t>(0x110000)}),
            "a\xEF\xBF\xBD\xEF\xBF\xBD");
  std::wstring used = L"something long that was here before";
  AssignUtf8(used, "ab");
  EXPECT_EQ(used, L"ab");
}

TEST(Names, StayOnePlainFileInTheirFolder) {
  for (const wchar_t* name : {L"a", L"report 1", L"a.b", L"..a", L"...",
                              L"\xF1"
                              L"and\xFA",
                              L"~", L" "}) {
    EXPECT_TRUE(IsSafeFileName(name)) << name;
  }
  for (const wchar_t* name : {L"", L".", L"..", L"a/b", L"/a", L"a\\b", L"C:a", L"a\nb", L"a\x7F", L"a\x1F"}) {
    EXPECT_FALSE(IsSafeFileName(name)) << name;
  }
  for (const wchar_t* path : {L"", L"./", L"a", L"a/", L"a/b/", L"a//b", L"./a/./b", L"..."}) {
    EXPECT_TRUE(IsSafeSubPath(path)) << path;
  }
  for (const wchar_t* path :
       {L"/", L"/a", L"..", L"../", L"a/..", L"a/../b", L"a/b/../..", L"a\\b", L"C:", L"a/\x01/b"}) {
    EXPECT_FALSE(IsSafeSubPath(path)) << path;
  }
}

TEST(Texts, TakeArguments) {
  const std::pair<const wchar_t*, const wchar_t*> rows[] = {
      {L"Page %d", L"Page 7"}, {L"%s", L"7"},         {L"%s and %d", L"7 and %d"}, {L"none", L"none"},
      {L"100 %", L"100 %"},    {L"50% %d", L"50% 7"}, {L"%n%d", L"%n7"},           {L"", L""}};
  for (const auto& [pattern, text] : rows) EXPECT_EQ(FormatText(pattern, L"7"), text) << pattern;
  EXPECT_EQ(FormatText(L"<%s>", L"%s%d"), L"<%s%d>");
  EXPECT_EQ(FillIn(L"%s: %d of %d", {L"a%d", L"3"}), L"a%d: 3 of %d");
}

RC_GTEST_PROP(Base64Properties, BytesComeBackWhateverSpaceIsBetween, (const std::string& bytes)) {
  std::string text = EncodeBase64(bytes);
  RC_ASSERT(DecodeBase64(text) == bytes);
  text.insert(*rc::gen::inRange<std::size_t>(0, text.size() + 1), " \r\n\t");
  RC_ASSERT(DecodeBase64(text) == bytes);
}

TEST(Base64Texts, AreRefusedOrUnescaped) {
  for (const char* text : {"TW!u", "TWFu*", "TW-u", "TW_u", "\xFF"}) EXPECT_FALSE(DecodeBase64(text)) << text;
  EXPECT_EQ(DecodeBase64("TWE=trailing!"), "Ma");
  const std::pair<const char*, const char*> rows[] = {{"a&lt;b&gt;&amp;&quot;&apos;", "a<b>&\"'"},
                                                      {"&#61;&#x3D;", "=="},
                                                      {"&none;&", "&none;&"},
                                                      {"&amp;lt;", "&lt;"},
                                                      {"&#200;", "&#200;"},
                                                      {"&#0;", "&#0;"}};
  for (const auto& [escaped, text] : rows) EXPECT_EQ(Xml2Text(escaped), text) << escaped;
}

TEST(Json, EscapesWhatWouldEndATextOrCommandATerminal) {
  JsonWriter out;
  out.BeginObject();
  out.Key("a \"key\"");
  out.String(L"q\" b\\ n\n r\r t\t \x01 \x1F \x7F \xE9 </script>");
  out.EndObject();
  EXPECT_EQ(out.Text(),
            "{\"a \\\"key\\\"\":\"q\\\" b\\\\ n\\n r\\r t\\t \\u0001 \\u001f \\u007f \xC3\xA9 </script>\"}");
}

TEST(Json, CommasStandBetweenAndNowhereElse) {
  const auto write = [](int indent) {
    JsonWriter out(indent);
    out.BeginArray();
    out.Int(-1);
    out.Number(0.1);
    out.Number(std::numeric_limits<double>::infinity());
    out.BeginObject();
    out.EndObject();
    out.BeginObject();
    out.Key("x");
    out.Bool(true);
    out.Key("y");
    out.BeginArray();
    out.EndArray();
    out.EndObject();
    out.EndArray();
    return out.Text();
  };
  EXPECT_EQ(write(0), R"([-1,0.1,null,{},{"x":true,"y":[]}])");
  EXPECT_EQ(write(2), "[\n  -1,\n  0.1,\n  null,\n  {},\n  {\n    \"x\": true,\n    \"y\": []\n  }\n]");
}

}  // namespace
}  // namespace xrpt
