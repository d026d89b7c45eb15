// What a field for expressions does without its looks: choices, completion, judgements and pairs of parentheses.
#include <gmock/gmock.h>

#include "formulas/ExpressionChoices.h"
#include "formulas/ExpressionJudgement.h"
#include "formulas/HourTypes.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class ExpressionFieldTest : public HostTest {
 protected:
  ExpressionFieldTest() {
    host.WriteCfg("devices.xml",
                  "<devices><device><id>MAIN</id><name>Incomer</name><variable><id>P</id><name>Active power</name>"
                  "</variable><variable><id>PF</id><name>Power factor</name></variable></device></devices>");
    host.WriteCfg("Tariff.xdct",
                  "<main><hourTypes><hour><name>Peak hours</name></hour><hour>P2</hour><other>no</other><hour/>"
                  "</hourTypes></main>");
    host.WriteCfg("Broken.xdct", "<main><hourTypes>");
    sources.formulas = {{L"Peak", L"[MAIN.P] * 2"}, {L"maxima", L"1"}};
    sources.devices = {{L"VIRTUAL_Site"}, {L"Site"}};
    sources.goBacks = {{L"GOBACK@P1"}, {L"P1"}};
    choices = ExpressionChoices(sources);
  }
  // The names offered with the cursor at the mark "|", and what the expression becomes with the first of them.
  std::vector<std::wstring> Offered(std::wstring text, bool asked = false) {
    const std::size_t cursor = text.find(L'|');
    text.erase(cursor, 1);
    const Completion completion = CompletionAt(text, cursor, choices, asked);
    std::vector<std::wstring> names;
    for (const std::size_t choice : completion.choices) names.push_back(choices[choice].name);
    completed = text;
    if (names.empty()) return names;
    const std::size_t end = completion.begin + completion.length;
    const wchar_t next = end < text.size() ? text[end] : L'\0';
    completed.replace(completion.begin, completion.length, InsertionOf(choices[completion.choices[0]], next).text);
    return names;
  }
  std::vector<std::wstring> Found(const std::wstring& typed) {
    std::vector<std::wstring> names;
    for (const ExpressionChoice& choice : choices) {
      if (IsFoundBy(choice, typed)) names.push_back(choice.name);
    }
    return names;
  }

  ExpressionSources sources;
  std::vector<ExpressionChoice> choices;
  std::wstring completed;
};

TEST_F(ExpressionFieldTest, DefinitionFilesGiveTheirHourTypes) {
  const std::vector<HourTypes> types = ReadHourTypes();
  ASSERT_EQ(types.size(), 1u);
  EXPECT_EQ(types[0].file, L"Tariff");
  EXPECT_THAT(types[0].entries, ElementsAre(L"Peak hours", L"P2"));
  EXPECT_NE(host.logger->Text(3).find("Broken.xdct"), std::string::npos);
  EXPECT_THAT(Found(L"tariff"), ElementsAre(L"Tariff.xdct@Peak hours", L"Tariff.xdct@P2"));
}

TEST_F(ExpressionFieldTest, TheFilterGoesOverEverythingWordByWord) {
  EXPECT_THAT(Found(L"INCOMER factor"), ElementsAre(L"MAIN.PF"));
  EXPECT_THAT(Found(L"site p"), Contains(L"VIRTUAL_Site.P"));
  EXPECT_THAT(Found(L"square"), ElementsAre(L"sqrt"));
  EXPECT_THAT(Found(L"&&"), ElementsAre(L"&&"));
  EXPECT_EQ(Found(L" ").size(), choices.size());
  EXPECT_THAT(Found(L"nowhere"), IsEmpty());
}

TEST_F(ExpressionFieldTest, WhatIsTypedIsCompletedInItsPlace) {
  const struct {
    const wchar_t* typed;
    const wchar_t* completed;
  } rows[] = {
      {L"1 + pea|", L"1 + Peak"},
      {L"1 + Pe|ax * 2", L"1 + Peak * 2"},
      {L"sq|(4)", L"sqrt(4)"},
      {L"2 * sq|", L"2 * sqrt()"},
      {L"MAIN.P|", L"[MAIN.P]"},
      {L"1.5|", L"1.5"},
      {L"[MAIN.PF|", L"[MAIN.PF]"},
      {L"[ma|] + 1", L"[MAIN.P] + 1"},
      {L"[power f|", L"[MAIN.PF]"},
      {L"factor|", L"[MAIN.PF]"},
      {L"[A.B] + pe|", L"[A.B] + Peak"},
      {L"|", L""},
      {L"12|", L"12"},
      {L"Peak + |", L"Peak + "},
      {L"zzz|", L"zzz"},
  };
  for (const auto& row : rows) {
    Offered(row.typed);
    EXPECT_EQ(completed, row.completed) << ToUtf8(row.typed);
  }
  EXPECT_THAT(Offered(L"[|"), Not(Contains(L"sqrt")));
  EXPECT_THAT(Offered(L"1 + |", true), Contains(L"sqrt")) << "everything, when asked";
  EXPECT_THAT(Offered(L"max|"), ElementsAre(L"maxima", L"max")) << "formulas before functions";
}

TEST_F(ExpressionFieldTest, AGoBackVariableGoesWithVariablesAlone) {
  EXPECT_EQ(InsertedText(choices[2], L"GOBACK@P1"), L"[MAIN.P.GOBACK@P1]");
  EXPECT_EQ(InsertedText(choices[2], L""), L"[MAIN.P]");
  EXPECT_EQ(InsertedText(choices[0], L"GOBACK@P1"), L"Peak");
}

TEST_F(ExpressionFieldTest, ConditionsAreLogicalAndTheRestNumeric) {
  const struct {
    const wchar_t* text;
    const wchar_t* numeric;
    const wchar_t* logical;
  } rows[] = {
      {L" ", L"", L""},
      {L"1 + 1", L"2", L"The condition does not give a logical result."},
      {L"2 > 1", L"The expression cannot be analysed.", L"The condition holds."},
      {L"Peak < 0", L"The expression cannot be analysed.", L"The condition does not hold. *"},
      {L"Peak", nullptr, L"The condition does not give a logical result."},
      {L"what > 1", L"The expression cannot be analysed.", L"The expression is correct. Undefined variables: 1."},
  };
  for (const auto& row : rows) {
    const auto numeric = JudgeExpression(row.text, sources.formulas, ExpressionKind::Numeric);
    const auto logical = JudgeExpression(row.text, sources.formulas, ExpressionKind::Logical);
    if (row.numeric) {
      EXPECT_EQ(numeric.shown, row.numeric) << ToUtf8(row.text);
    }
    EXPECT_EQ(logical.shown, row.logical) << ToUtf8(row.text);
  }
  const auto wrong = JudgeExpression(L"1 + 2 3", sources.formulas, ExpressionKind::Numeric);
  EXPECT_FALSE(wrong.accepted);
  EXPECT_EQ(wrong.position, 7u);
  EXPECT_EQ(wrong.Line(), L"The expression cannot be analysed. · 7: " + wrong.error);
}

TEST_F(ExpressionFieldTest, ParenthesesHaveTheirPartner) {
  const std::wstring text = L"((1)+(2)) )";
  const auto tokens = host->expressions->TokenProducer().Tokens(text);
  const struct {
    std::size_t cursor, first, second;
  } rows[] = {{0, 0, 8}, {1, 1, 3}, {3, 3, 1}, {4, 3, 1}, {9, 8, 0}, {10, 10, 10}, {11, 10, 10}};
  for (const auto& row : rows) {
    const auto pair = PairAt(tokens, row.cursor);
    ASSERT_TRUE(pair) << row.cursor;
    EXPECT_EQ(pair->first, row.first) << row.cursor;
    EXPECT_EQ(pair->second, row.second) << row.cursor;
  }
  EXPECT_FALSE(PairAt(tokens, 99));
  EXPECT_FALSE(PairAt({}, 0));
}

}  // namespace
}  // namespace xrpt
