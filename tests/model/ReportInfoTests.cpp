// What the tables tell those who walk them: counts of a report, texts for people.
#include <set>

#include "CardSupport.h"
#include "host/TextCatalogue.h"
#include "model/ReportInfo.h"

namespace xrpt {
namespace {

class Info : public HostTest {};

TEST_F(Info, CountsCardsBindingsStylesAndPictures) {
  host.WriteCfg("S1.Title.XSTY", "<style><id>S1</id><name>Title</name><font/></style>");
  const Path file = host.WriteCfg(
      "A.x.xrpt",
      "<r><id>A</id><name>x</name><version>2</version><page><name>P</name>"
      "<backgroundImage><image><imageId>back</imageId><imagePath>sub</imagePath></image></backgroundImage>"
      "<label><field>M.P</field><style>S1</style></label><label><field>M.P</field></label>"
      "<analogBar><variable>M.Q</variable></analogBar>"
      "<reportGraph><variable><id>M.P</id></variable><variable><id>M.E</id></variable></reportGraph>"
      "<conditioned><control><forceValues><variable><id>M.S</id></variable></forceValues></control>"
      "<control><staticImage><image><imageId>logo</imageId><imagePath>./</imagePath></image></staticImage></control>"
      "</conditioned></page><page/><formules><formule><name>F1</name></formule><other/></formules></r>");
  RVReport report;
  ASSERT_TRUE(report.LoadFile(file).loaded);
  const ReportInfo info = InfoOf(report);
  EXPECT_EQ(info.cards, (CountByName{{L"label", 2},
                                     {L"analogBar", 1},
                                     {L"reportGraph", 1},
                                     {L"conditioned", 1},
                                     {L"forceValues", 1},
                                     {L"staticImage", 1}}));
  EXPECT_EQ(info.variables, (CountByName{{L"M.P", 3}, {L"M.Q", 1}, {L"M.E", 1}, {L"M.S", 1}}));
  EXPECT_EQ(info.styles, (CountByName{{L"Title", 1}}));
  EXPECT_EQ(info.pictures, (CountByName{{L"sub/back", 1}, {L"logo", 1}}));
  EXPECT_EQ(info.formulas, std::vector<std::wstring>{L"F1"});
  ASSERT_EQ(info.pages.size(), 2u);
  EXPECT_TRUE(info.pages[1].cards.empty());
  EXPECT_NE(info.AsText().find("P  210 x 297 mm: 1 analogBar, 1 conditioned"), std::string::npos) << info.AsText();
  EXPECT_NE(info.AsJson().find("\"M.P\": 3"), std::string::npos) << info.AsJson();
}

// Every label, word and name of a card that a panel may show, in every language.
TEST_F(Info, EveryFieldHasItsTexts) {
  std::set<int> ids;
  const auto addWords = [&ids](std::span<const Word> words) {
    for (const Word& word : words) ids.insert(word.textId);
  };
  for (const auto& card : OneOfEachKind()) {
    ids.insert(card->GetRuntimeClass().textId);
    ForEachField(card->GetRuntimeClass().table, [&](const CardRow& row) {
      ids.insert(row.panel.textId);
      addWords(row.WordsFor(*card));
      if (!row.list) return;
      for (const auto& entry : row.list().rows) {
        ids.insert(entry.panel.textId);
        addWords(entry.words);
      }
    });
  }
  ForEachField(RVGlobalProperties::Table(), [&ids](const FieldRow& row) { ids.insert(row.panel.textId); });
  ids.erase(0);
  ASSERT_GT(ids.size(), 80u);
  for (const Language language : {Language::English, Language::Spanish}) {
    const TextCatalogue texts(language);
    for (const int id : ids) EXPECT_NE(texts.Text(id).substr(0, 1), L"#") << id;
  }
}

}  // namespace
}  // namespace xrpt
