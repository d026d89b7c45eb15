// Hostile copies of the sample reports: whatever is done to them, they load in bounded time as something, and what was
// loaded can be saved and loaded again.
#include <gmock/gmock.h>

#include <random>

#include "CardSupport.h"

namespace xrpt {
namespace {

using Random = std::mt19937;

std::size_t Below(Random& random, std::size_t limit) { return limit == 0 ? 0 : random() % limit; }

// Start and end of a tag picked at random, "<...>".
std::pair<std::size_t, std::size_t> AnyTag(const std::string& xml, Random& random) {
  const std::size_t from = xml.find('<', Below(random, xml.size()));
  const std::size_t start = from == xml.npos ? xml.find('<', 1) : from;
  return {start, std::min(xml.find('>', start), xml.size() - 1) + 1};
}

void PutIntoValue(std::string& xml, Random& random, std::string_view text) {
  const auto [start, end] = AnyTag(xml, random);
  const std::size_t next = std::min(xml.find('<', end), xml.size());
  xml.replace(end, next - end, text);
}

struct Named {
  const char* name;
  void (*mutate)(std::string&, Random&);
};
void PrintTo(const Named& mutation, std::ostream* out) { *out << mutation.name; }

void Cut(std::string& xml, Random& random) { xml.resize(Below(random, xml.size())); }

void EmptyValue(std::string& xml, Random& random) { PutIntoValue(xml, random, ""); }

void StrangeValue(std::string& xml, Random& random) {
  static constexpr const char* kTexts[] = {"-1e999", "nan",      "2147483648", "99999999999999999999",
                                           "%s%n",   "../../..", "]]&gt;",     "\xF0\x9F\x98\x80"};
  PutIntoValue(xml, random, kTexts[Below(random, std::size(kTexts))]);
}

void LongValue(std::string& xml, Random& random) { PutIntoValue(xml, random, std::string(100000, '9')); }

void Entity(std::string& xml, Random& random) {
  static constexpr const char* kTexts[] = {"&lol;",          "&#0;", "&#xD800;", "&#x110000;",
                                           "&#99999999999;", "&",    "&amp",     "&#x1;"};
  PutIntoValue(xml, random, kTexts[Below(random, std::size(kTexts))]);
}

void Repeat(std::string& xml, Random& random) {
  const auto [start, end] = AnyTag(xml, random);
  const std::size_t stop = std::min(end + Below(random, 2000), xml.size());
  xml.insert(stop, xml.substr(start, stop - start));
}

void Swap(std::string& xml, Random& random) {
  const auto [start, end] = AnyTag(xml, random);
  const std::string tag = xml.substr(start, end - start);
  xml.erase(start, end - start);
  xml.insert(AnyTag(xml, random).first, tag);
}

void WrongCase(std::string& xml, Random& random) {
  const auto [start, end] = AnyTag(xml, random);
  for (std::size_t i = start; i < end; ++i) xml[i] = static_cast<char>(std::toupper(xml[i]));
}

void Attributes(std::string& xml, Random& random) {
  const auto [start, end] = AnyTag(xml, random);
  if (xml[end - 2] != '/' && xml[start + 1] != '/') xml.insert(end - 1, " id=\"1\" id='2' x=\"&lt;\"");
}

void Nest(std::string& xml, Random& random) {
  std::string deep;
  for (int i = 0; i < 10000; ++i) deep += "<control>";
  for (int i = 0; i < 10000; ++i) deep += "</control>";
  xml.insert(AnyTag(xml, random).second, deep);
}

void Doctype(std::string& xml, Random&) {
  xml.insert(xml.find("?>") + 2,
             "<!DOCTYPE a [<!ENTITY lol \"lol\"><!ENTITY lol2 \"&lol;&lol;&lol;\">"
             "<!ENTITY file SYSTEM \"file:///etc/passwd\">]>");
}

void FlipByte(std::string& xml, Random& random) {
  xml[Below(random, xml.size())] ^= static_cast<char>(1 + random() % 255);
}

class Hostile : public HostTest {
 protected:
  static std::vector<Path> Samples() { return CurrentHost().files->List(XRPT_SAMPLES, kReportEnding); }

  // Loads the bytes, and again what they were saved as.
  void LoadTwice(const std::string& bytes) {
    RVReport report;
    report.LoadFile(TestHost::WriteFile(host.Folder() / "mutant.xrpt", bytes));
    ASSERT_FALSE(report.pages.empty());
    const std::string saved = report.TemplateText();
    RVReport again;
    const LoadResult result = again.LoadFile(TestHost::WriteFile(host.Folder() / "saved.xrpt", saved));
    ASSERT_TRUE(result.loaded) << result.error.message << " at " << result.error.offset;
    ASSERT_EQ(again.pages.size(), report.pages.size());
    for (std::size_t i = 0; i < report.pages.size(); ++i) {
      ASSERT_EQ(again.pages[i]->cards.Size(), report.pages[i]->cards.Size());
    }
  }
};

class Mutations : public Hostile, public ::testing::WithParamInterface<Named> {};

TEST_P(Mutations, LoadAsSomething) {
  const std::vector<Path> samples = Samples();
  ASSERT_FALSE(samples.empty());
  for (const Path& sample : samples) {
    const std::string original = TestHost::ReadFile(sample);
    for (unsigned seed = 0; seed < 6; ++seed) {
      Random random(seed);
      std::string mutant = original;
      GetParam().mutate(mutant, random);
      SCOPED_TRACE(sample.filename().string() + ", seed " + std::to_string(seed));
      ASSERT_NO_FATAL_FAILURE(LoadTwice(mutant));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, Mutations,
                         ::testing::Values(Named{"Cut", Cut}, Named{"EmptyValue", EmptyValue},
                                           Named{"StrangeValue", StrangeValue}, Named{"LongValue", LongValue},
                                           Named{"Entity", Entity}, Named{"Repeat", Repeat}, Named{"Swap", Swap},
                                           Named{"WrongCase", WrongCase}, Named{"Attributes", Attributes},
                                           Named{"Nest", Nest}, Named{"Doctype", Doctype}, Named{"FlipByte", FlipByte}),
                         [](const auto& row) { return std::string(row.param.name); });

// The samples are what our own saver writes: they come back as they are, but for their revision.
TEST_F(Hostile, IsNotWhatOurSamplesAre) {
  const auto withoutRevision = [](std::string xml) {
    const std::size_t from = xml.find("<revision>");
    return xml.erase(from, xml.find("</revision>") - from);
  };
  for (const Path& sample : Samples()) {
    for (const Path& style : CurrentHost().files->List(XRPT_SAMPLES, L".XSTY")) {
      host.WriteCfg(style.filename().string(), TestHost::ReadFile(style));
    }
    RVReport report;
    ASSERT_TRUE(report.LoadFile(sample).loaded);
    EXPECT_EQ(withoutRevision(report.TemplateText()), withoutRevision(TestHost::ReadFile(sample))) << sample.filename();
  }
}

TEST_F(Hostile, TooDeepAndTooWideAreRefusedWithAReason) {
  struct Row {
    std::string bytes;
    const char* reason;
  };
  std::string deep;
  for (int i = 0; i < 257; ++i) deep += "<a>";
  for (int i = 0; i < 257; ++i) deep += "</a>";
  for (const Row& row : {Row{deep, "too deep"}, Row{"<a>\xC3\x28</a>", "UTF-8"}, Row{"<a/><b/>", "more than one root"},
                         Row{"", "o"}, Row{"text", "o"}}) {
    XmlDocument document;
    XmlError error;
    EXPECT_FALSE(document.Parse(row.bytes, &error));
    EXPECT_THAT(error.message, ::testing::HasSubstr(row.reason)) << row.bytes.substr(0, 20);
    EXPECT_FALSE(document.Root());
  }
}

}  // namespace
}  // namespace xrpt
