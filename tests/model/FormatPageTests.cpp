// What is written about the files stays true: the schema takes every value of every row, the format page speaks of
// each.
#include <cstdlib>

#include "CardSupport.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardImage.h"

namespace xrpt {
namespace {

class FormatPage : public HostTest {
 protected:
  FormatPage() {
    host.WriteCfg("S1.Title.XSTY", "<style><id>S1</id><name>Title</name><font><name>Times</name></font></style>");
  }
};

// The card with the text of that turn in each row, from the last row to the first and so what others hang on last; and
// so many items in each list.
void FillTurn(RVCardControl& card, std::size_t turn) {
  const auto textOf = [turn](const FieldRow& row, std::span<const Word> words) {
    const std::vector<std::string> texts = OrdinaryTexts(row, words);
    return texts[turn % texts.size()];
  };
  ForEachField(card.GetRuntimeClass().table, [&](const CardRow& row) {
    if (row.assign) row.assign(card, textOf(row, row.WordsFor(card)));
    for (std::size_t item = 0; row.list && item < turn % 3; ++item) {
      for (const auto& entry : row.list().rows) entry.append(card, textOf(entry, entry.words));
    }
  });
  if (auto* image = dynamic_cast<RVCardImage*>(&card)) image->LoadOriginalImage(L"logo", L"./");
}

// A page with a card of each kind, or one inside a container.
void AddKinds(RVReportPage& page, std::size_t turn) {
  RVCardConditioned container;
  container.SetParent(&page);
  for (const RegistryRow& row : CardRegistry()) {
    std::unique_ptr<RVCardControl> card = row.kind().Create();
    FillTurn(*card, turn);
    if (row.inConditioned) {
      container.cards.push_back(card->GetClone());
      container.conditions.emplace_back(L"[A.B] < 1");
    }
    if (row.onPage) page.cards.PushBack(std::move(card));
  }
  page.cards.PushBack(container.GetClone());
}

// Longer than any list of words.
constexpr std::size_t kTurns = 12;

TEST_F(FormatPage, TheSchemaTakesEveryValueOfEveryRow) {
  RVReport report;
  for (std::size_t turn = 0; turn < kTurns; ++turn) AddKinds(report.AddPage(), turn);
  report.pages[1]->properties.Background().LoadOriginalImage(L"logo", L"./");
  const Path file = TestHost::WriteFile(host.Folder() / "all.xrpt", report.TemplateText());
  const std::string check = "xmllint --nonet --noout --relaxng " XRPT_DOCS "/xrpt.rng " + file.string() + " 2>&1";
  FILE* pipe = ::popen(check.c_str(), "r");
  ASSERT_TRUE(pipe);
  std::string said;
  for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) said += static_cast<char>(c);
  EXPECT_EQ(::pclose(pipe), 0) << "what docs/xrpt.rng lacks, or xmllint (package libxml2-utils):\n"
                               << said.substr(0, 1000);
}

// The part of the page between the heading that names the element and the next one.
std::string Section(const std::string& page, const std::string& element) {
  for (std::size_t at = page.find("\n#"); at != page.npos; at = page.find("\n#", at + 1)) {
    const std::string heading = page.substr(at, page.find('\n', at + 1) - at);
    if (heading.find("`" + element + "`") != heading.npos) return page.substr(at, page.find("\n#", at + 1) - at);
  }
  return {};
}

// What a section leaves out of the names, one a line.
template <class Rows>
std::string Unspoken(const std::string& section, const Rows& rows) {
  std::string missing;
  for (const auto& row : rows) {
    const bool spoken = !row.name || section.find("`" + std::string(row.name) + "`") != section.npos;
    if (!spoken) missing += row.FullName() + "\n";
  }
  return missing;
}

TEST_F(FormatPage, SpeaksOfEveryRowWhereItsCardIsTold) {
  const std::string page = TestHost::ReadFile(XRPT_DOCS "/format.md");
  for (const RegistryRow& kind : CardRegistry()) {
    const CardTable& table = kind.kind().table;
    const std::string section = Section(page, kind.kind().tag);
    ASSERT_NE(section, "") << "docs/format.md has no section `" << kind.kind().tag << "`";
    EXPECT_EQ(Unspoken(section, table.rows), "") << "docs/format.md, section `" << kind.kind().tag << "`";
    for (const CardRow& row : table.rows) {
      if (!row.list) continue;
      EXPECT_EQ(Unspoken(section, row.list().rows), "") << "series of `" << kind.kind().tag << "`";
    }
  }
  EXPECT_EQ(Unspoken(page.substr(page.find("\n## Page")), RVGlobalProperties::Table().rows), "");
  EXPECT_EQ(Unspoken(page.substr(page.find("every card begins")), RVCardControl::Class().table.rows), "");
}

}  // namespace
}  // namespace xrpt
