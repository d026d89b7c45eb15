// The search hooks: which texts of each kind of card are searched, stepping and replacing.
#include <gmock/gmock.h>

#include "CardSupport.h"
#include "model/CardTexts.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardForceValues.h"
#include "model/RVCardLabel.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;
using CardSearchTest = HostTest;

std::vector<std::string> SearchedFields(const RVCardControl& card) {
  std::vector<std::string> fields;
  ForEachText(card, [&](const CardText& text) {
    if (IsSearched(text.row.role)) fields.emplace_back(text.row.name);
  });
  return fields;
}

// From the file to the search and back: each kind's texts are found and replaced, and the file says so.
TEST_F(CardSearchTest, EveryKindIsSearchedWhereItHasTexts) {
  const std::pair<const char*, std::vector<std::string>> kinds[] = {
      {"<label><text><textStr>Q</textStr></text></label>", {"textStr"}},
      {"<date><pattern>Q</pattern><value>x</value></date>", {"textStr", "pattern"}},
      {"<formule><value>Q</value></formule>", {"textStr", "value"}},
      {"<reportGraph><variable><id>Q</id></variable><variable><id>aQ</id></variable></reportGraph>", {"id", "id"}},
      {"<analogBar><variable>Q</variable><alarmMinValue>2Q</alarmMinValue></analogBar>",
       {"variable", "maxValue", "minValue", "preMaxValue", "alarmMaxValue", "preMinValue", "alarmMinValue"}},
      {"<conditioned><control><condition>Q</condition><forceValues><variable><id>Q</id><value>Q</value></variable>"
       "<visualization>TEXT</visualization><text><textStr>Q</textStr></text></forceValues></control></conditioned>",
       {"condition", "text", "id", "value"}},
      {"<primitive/>", {}},
      {"<staticImage/>", {}}};
  for (const auto& [xml, fields] : kinds) {
    XmlDocument document;
    ASSERT_TRUE(document.Parse(xml)) << xml;
    const std::unique_ptr<RVCardControl> card = NewPageCard(document.Root().Tag());
    card->GetFromXml(document.Root());
    card->field = L"Q";
    EXPECT_EQ(SearchedFields(*card), fields) << xml;
    const std::string before = XmlOf(*card);
    const bool any = before.find(">Q<") != before.rfind(">Q<");
    EXPECT_EQ(card->ReplaceAll(L"q", L"MAIN.P", false), any) << xml;
    std::string wanted = before;
    const std::size_t field = wanted.find("<field>Q<");
    for (std::size_t at = wanted.find('Q'); at != wanted.npos; at = wanted.find('Q', at + 1)) {
      if (at != field + 7) wanted.replace(at, 1, "MAIN.P");
    }
    EXPECT_EQ(XmlOf(*card), wanted);
  }
}

TEST_F(CardSearchTest, StepsAndReplacesAndShiftsWhatFollows) {
  RVCardLabel card;
  card.text = L"aaaa aa";
  EXPECT_FALSE(card.CreateSearchInfo(L"", true));
  EXPECT_FALSE(card.NextSearch());
  EXPECT_TRUE(card.CreateSearchInfo(L"AA", false));
  EXPECT_FALSE(card.Replace(L"AA", L"x", -1)) << "no match is the current one yet";
  EXPECT_TRUE(card.NextSearch());
  EXPECT_TRUE(card.Replace(L"AA", L"long", -1));
  EXPECT_EQ(card.text, L"longaa aa");
  EXPECT_FALSE(card.Replace(L"AA", L"x", 0)) << "it is replaced";
  EXPECT_FALSE(card.Replace(L"AA", L"x", 3));
  EXPECT_TRUE(card.Replace(L"AA", L"", 2));
  EXPECT_EQ(card.text, L"longaa ");
  EXPECT_TRUE(card.NextSearch());
  EXPECT_TRUE(card.Replace(L"AA", L"b", -1));
  EXPECT_EQ(card.text, L"longb ");
  EXPECT_FALSE(card.NextSearch());
  EXPECT_FALSE(card.NextSearch()) << "replaced matches do not come again";
}

TEST_F(CardSearchTest, AMatchWhoseTextChangedIsNotReplaced) {
  RVCardLabel card;
  card.text = L"some text";
  ASSERT_TRUE(card.CreateSearchInfo(L"text", true));
  ASSERT_TRUE(card.NextSearch());
  card.text = L"so";
  EXPECT_FALSE(card.Replace(L"text", L"x", -1));
  card.text = L"some TEXT";
  EXPECT_FALSE(card.Replace(L"text", L"x", -1));
  EXPECT_EQ(card.text, L"some TEXT");
}

TEST_F(CardSearchTest, WhatWasFoundIsNoPartOfTheCard) {
  RVCardLabel card;
  card.text = L"aa";
  ASSERT_TRUE(card.CreateSearchInfo(L"a", true));
  ASSERT_TRUE(card.NextSearch());
  const std::unique_ptr<RVCardControl> clone = card.GetClone();
  EXPECT_TRUE(*clone == card && clone->HasSameRows(card));
  EXPECT_FALSE(clone->NextSearch());
  card.ResetSearchInfo();
  EXPECT_FALSE(card.NextSearch());
  EXPECT_TRUE(card.CreateSearchInfo(card.text, L"a", true)) << "one text alone";
  EXPECT_TRUE(card.NextSearch());
}

}  // namespace
}  // namespace xrpt
