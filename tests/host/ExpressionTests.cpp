// The embedded evaluator by rows: what an expression is, what it gives, and what is said of one that is wrong.
#include <gmock/gmock.h>

#include <chrono>
#include <cmath>
#include <limits>

#include "platform/SampleData.h"
#include "platform/Text.h"
#include "support/FormulaDocument.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr double kInfinite = std::numeric_limits<double>::infinity();

// Readings by name.
class FixedValues final : public ValueService {
 public:
  explicit FixedValues(std::map<std::wstring, double> readings) : readings_(std::move(readings)) {}
  std::optional<double> Reading(std::wstring_view variable) override {
    ++asked;
    const auto at = readings_.find(std::wstring(variable));
    return at == readings_.end() ? std::nullopt : std::optional<double>(at->second);
  }
  int asked = 0;

 private:
  std::map<std::wstring, double> readings_;
};

struct Outcome {
  int analysis = -1;
  int code = -1;
  int type = -1;
  double value = 0.0;
  std::vector<std::wstring> undefined;
  std::vector<std::wstring> variables;
  std::wstring error;
  std::size_t position = 0;
};

std::vector<std::wstring> TextsOf(const std::vector<RVToken>& tokens) {
  std::vector<std::wstring> texts;
  for (const RVToken& token : tokens) texts.push_back(token.GetText());
  return texts;
}

Outcome OutcomeOf(std::wstring_view text, const XmlDocument& formulas = XmlDocument("formules")) {
  const auto evaluator = CurrentHost().expressions->NewEvaluator(text);
  Outcome out;
  out.analysis = evaluator->AnalizeExpression();
  evaluator->SetFormules(formulas);
  out.code = evaluator->Evaluate(out.value, out.type);
  out.undefined = TextsOf(evaluator->GetUndefinedTokens());
  std::vector<RVToken> variables;
  evaluator->GetDeviceVariables(variables);
  out.variables = TextsOf(variables);
  out.error = evaluator->ErrorText();
  out.position = evaluator->ErrorPosition();
  return out;
}

class ExpressionTest : public HostTest {
 protected:
  FixedValues& UseReadings(std::map<std::wstring, double> readings) {
    auto values = std::make_unique<FixedValues>(std::move(readings));
    FixedValues& made = *values;
    host->values = std::move(values);
    return made;
  }
};

TEST_F(ExpressionTest, ValuesFollowTheUsualPrecedence) {
  const struct {
    const wchar_t* text;
    double value;
  } rows[] = {
      {L"1 + 2 * 3", 7},
      {L"(1 + 2) * 3", 9},
      {L"10 - 4 - 3", 3},
      {L"64 / 4 / 2", 8},
      {L"2^3^2", 512},
      {L"-2^2", -4},
      {L"2^-2", 0.25},
      {L"2^-1^2", 0.5},
      {L"- -3", 3},
      {L"--3", 3},
      {L"2*-3", -6},
      {L"+5", 5},
      {L".5 + 5.", 5.5},
      {L"1e3", 1000},
      {L"2.5E-1", 0.25},
      {L"1\t+\n1", 2},
      {L"((((7))))", 7},
      {L"1/0", kInfinite},
      {L"-1/0", -kInfinite},
      {L"1e999", kInfinite},
      {L"(2 > 1) * 3", 3},
      {L"7 - (1 == 1)", 6},
      {L"1\u00A0+ 1", 2},
      {L"if(0, 1/0, 4)", 4},
      {L"min(3, -1, 2)", -1},
      {L"max(4)", 4},
      {L"mod(-7, 3)", 2},
      {L"mod(7, -3)", -2},
      {L"round(-2.5)", -3},
      {L"round(1234, -2)", 1200},
      {L"round(0.1, 400)", 0.1},
      {L"sum(1, 2, 3) / 2", 3},
  };
  for (const auto& row : rows) {
    const Outcome out = OutcomeOf(row.text);
    EXPECT_EQ(out.analysis, kNumericExpression) << ToUtf8(row.text);
    EXPECT_EQ(out.code, kEvaluated) << ToUtf8(row.text);
    EXPECT_EQ(out.type, kNumericValue) << ToUtf8(row.text);
    EXPECT_DOUBLE_EQ(out.value, row.value) << ToUtf8(row.text);
  }
  for (const wchar_t* text : {L"0/0", L"sqrt(-1)", L"min(1, 0/0, -5)", L"max(0/0, 3)", L"mod(1, 0)", L"sign(0/0)"}) {
    EXPECT_TRUE(std::isnan(OutcomeOf(text).value)) << ToUtf8(text);
  }
}

TEST_F(ExpressionTest, ComparisonsAreLogical) {
  const struct {
    const wchar_t* text;
    double value;
  } rows[] = {
      {L"1 < 2", 1},   {L"2 <= 1", 0},     {L"2 > 1 && 1 > 2", 0},   {L"2 > 1 || 1 > 2", 1}, {L"!(1 == 1)", 0},
      {L"!0", 1},      {L"1 != 2", 1},     {L"1 + 1 >= 2", 1},       {L"1 || 1 && 0", 1},    {L"!1 == 0", 1},
      {L"(1 < 2)", 1}, {L"0/0 == 0/0", 0}, {L"if(1, 1 < 2, !1)", 1}, {L"1 < 2 == 2 < 3", 1},
  };
  for (const auto& row : rows) {
    const Outcome out = OutcomeOf(row.text);
    EXPECT_EQ(out.analysis, kLogicalExpression) << ToUtf8(row.text);
    EXPECT_EQ(out.type, kLogicalValue) << ToUtf8(row.text);
    EXPECT_EQ(out.value, row.value) << ToUtf8(row.text);
  }
  EXPECT_EQ(OutcomeOf(L"if(1 < 2, 1 < 2, 3)").analysis, kNumericExpression);
  EXPECT_EQ(OutcomeOf(L"-(1 < 2)").analysis, kNumericExpression);
}

TEST_F(ExpressionTest, MistakesAreToldWithTheirPlace) {
  const struct {
    const wchar_t* text;
    int id;
    const wchar_t* argument;
    std::size_t position;
  } rows[] = {
      {L"", 32449, L"", 0},
      {L"  ", 32449, L"", 0},
      {L"1 +", 61800, L"", 4},
      {L"* 2", 61801, L"*", 1},
      {L"1 + )", 61801, L")", 5},
      {L"1 )", 61801, L")", 3},
      {L"1 2", 61802, L"2", 3},
      {L"2abc", 61802, L"abc", 2},
      {L"1 [A.B]", 61802, L"A.B", 3},
      {L"(1 + 2", 61803, L"", 1},
      {L"1 + (2", 61803, L"", 5},
      {L"sin(1", 61803, L"", 4},
      {L"1 + [A.B", 61804, L"", 5},
      {L"[A[B]]", 61804, L"", 1},
      {L"[ ]", 61805, L"", 1},
      {L"foo(1)", 61806, L"foo", 1},
      {L"Sin(1)", 61806, L"Sin", 1},
      {L"sin + 1", 61807, L"sin(x)", 1},
      {L"sin()", 61807, L"sin(x)", 1},
      {L"1 + sin(1, 2)", 61807, L"sin(x)", 5},
      {L"1,5", 61808, L"", 2},
      {L"(1,5)", 61808, L"", 3},
      {L"A = 1", 61809, L"==", 3},
      {L"A & B", 61809, L"&&", 3},
      {L"2 × 3", 61809, L"*", 3},
      {L"− 3", 61809, L"-", 1},
      {L"1 <> 2", 61801, L">", 4},
      {L"#", 61801, L"#", 1},
      {L"a.b", 61801, L".", 2},
      {L"M::", 61801, L"M::", 1},
      {L"\u4E00 \U0001F600", 61801, L"\U0001F600", 3},
  };
  for (const auto& row : rows) {
    const Outcome out = OutcomeOf(row.text);
    EXPECT_GT(out.analysis, kLogicalExpression) << ToUtf8(row.text);
    EXPECT_EQ(out.error, FormatText(HostText(row.id), row.argument)) << ToUtf8(row.text);
    EXPECT_EQ(out.position, row.position) << ToUtf8(row.text);
    EXPECT_NE(out.code, kEvaluated);
    EXPECT_NE(out.code, kEvaluationFails);
  }
}

TEST_F(ExpressionTest, NamesStandForFormulas) {
  const XmlDocument formulas = FormulaDocument({{L"A", L"[M.P] * 2"},
                                                {L"B", L"A + A"},
                                                {L"A", L"1000"},
                                                {L"Energía_1", L"B / 4"},
                                                {L"Wrong", L"1 +"},
                                                {L"UsesWrong", L"Wrong"},
                                                {L"Gap", L"[M.Q] + Missing + Absent"},
                                                {L"Loop", L"Pool + 1"},
                                                {L"Pool", L"Loop - 1"},
                                                {L"Module", L"Billing::total(1)"}});
  FixedValues& readings = UseReadings({{L"M.P", 21.0}});
  const Outcome found = OutcomeOf(L"Energía_1 + [ M.P ]", formulas);
  EXPECT_EQ(found.code, kEvaluated);
  EXPECT_EQ(found.value, 42.0);
  EXPECT_EQ(readings.asked, 1);
  EXPECT_THAT(found.variables, ElementsAre(L"M.P"));

  const struct {
    const wchar_t* text;
    int code;
    int id;
    const wchar_t* argument;
    std::size_t position;
  } rows[] = {
      {L"1 + Missing", kUndefinedNames, 61815, L"Missing", 5},
      {L"Gap", kUndefinedNames, 61815, L"Missing", 0},
      {L"1 + UsesWrong", kEvaluationFails, 61813, L"Wrong", 5},
      {L"Loop", kEvaluationFails, 61814, L"Loop", 1},
      {L"Module", kEvaluationFails, 37540, L"", 0},
      {L"Billing::total(A, 2) + 1", kEvaluationFails, 37540, L"", 0},
      {L"Loop + pi", kUndefinedNames, 61815, L"pi", 8},
      {L"A + [X.Y]", kNoLiveValue, 61817, L"", 0},
  };
  for (const auto& row : rows) {
    const Outcome out = OutcomeOf(row.text, formulas);
    EXPECT_EQ(out.code, row.code) << ToUtf8(row.text);
    EXPECT_EQ(out.error, FormatText(HostText(row.id), row.argument)) << ToUtf8(row.text);
    EXPECT_EQ(out.position, row.position) << ToUtf8(row.text);
  }
  const Outcome gap = OutcomeOf(L"z + Gap + z", formulas);
  EXPECT_THAT(gap.undefined, ElementsAre(L"z", L"Missing", L"Absent"));
  EXPECT_THAT(gap.variables, ElementsAre(L"M.Q"));
}

TEST_F(ExpressionTest, SamplesStandInWhereThereIsNoReading) {
  const Outcome out = OutcomeOf(L"[M.P] + [M.P.GOBACK@week]");
  EXPECT_EQ(out.code, kNoLiveValue);
  EXPECT_EQ(out.value, SampleReading(L"M.P") + SampleReading(L"M.P.GOBACK@week"));
  UseReadings({{L"M.P", 5.0}});
  EXPECT_EQ(OutcomeOf(L"[M.P] > 4").code, kEvaluated);
  EXPECT_EQ(OutcomeOf(L"[M.P] > 4 || [M.Q] > 4").code, kNoLiveValue);
}

TEST_F(ExpressionTest, ModulesAreFoundOutsideBracketsOnly) {
  const ExpressionService& expressions = *host->expressions;
  EXPECT_TRUE(expressions.isThereAModuleInExpression(L"1 + Billing::total"));
  EXPECT_TRUE(expressions.isThereAModuleInExpression(L"(Billing::total("));
  EXPECT_FALSE(expressions.isThereAModuleInExpression(L"[Billing::total] + A"));
  EXPECT_EQ(OutcomeOf(L"Billing::total(1, [A.B]) < 3").analysis, kLogicalExpression);
}

TEST_F(ExpressionTest, CodesHaveTexts) {
  const ExpressionService& expressions = *host->expressions;
  EXPECT_EQ(expressions.ErrorMsg(kEvaluated), L"");
  EXPECT_EQ(expressions.ErrorMsg(kEvaluationFails), HostText(32452));
  EXPECT_EQ(expressions.ErrorMsg(kUndefinedNames), HostText(61816));
  EXPECT_EQ(expressions.ErrorMsg(kNoLiveValue), HostText(61817));
  EXPECT_EQ(expressions.ErrorMsg(99), HostText(32448));
}

// The right side of an example may be rounded to its decimals.
TEST_F(ExpressionTest, EveryFunctionHasHelpAndAnExampleThatIsTrue) {
  const RVTokenProducer& producer = host->expressions->TokenProducer();
  ASSERT_GE(producer.NumberOfFunctions(), 23);
  for (int i = 0; i < producer.NumberOfFunctions(); ++i) {
    const FunctionHelp help = producer.GetFunctionHelp(i);
    EXPECT_EQ(help.name, producer.GetFunction(i));
    EXPECT_EQ(help.use.find(help.name + L"("), 0u);
    EXPECT_NE(help.help.front(), L'#') << ToUtf8(help.name);
    const std::size_t equals = help.example.find(L" = ");
    ASSERT_NE(equals, help.example.npos) << ToUtf8(help.example);
    const std::wstring shown = help.example.substr(equals + 3);
    const std::size_t point = shown.find(L'.');
    const double rounding = std::pow(10.0, point == shown.npos ? 0.0 : -static_cast<double>(shown.size() - point - 1));
    const Outcome out = OutcomeOf(help.example.substr(0, equals));
    EXPECT_NEAR(out.value, std::stod(shown), rounding / 2) << ToUtf8(help.example);
    EXPECT_EQ(help.example.find(help.name + L"("), 0u);
  }
  EXPECT_EQ(producer.GetFunction(-1), L"");
  EXPECT_EQ(producer.GetFunction(producer.NumberOfFunctions()), L"");
}

TEST_F(ExpressionTest, TokensCoverTheTextBlanksAside) {
  const std::wstring text = L"if(A1 >= [M.P.GOBACK-3], -.5e2, M::x) && ñ$";
  const auto tokens = host->expressions->TokenProducer().Tokens(text);
  std::vector<int> types;
  std::wstring seen;
  for (const RVToken& token : tokens) {
    types.push_back(token.GetType());
    seen += text.substr(token.Position(), token.Length());
  }
  EXPECT_THAT(types, ElementsAre(kTokenFunction, kTokenOpen, kTokenName, kTokenOperator, kTokenDriverVariable,
                                 kTokenSeparator, kTokenOperator, kTokenNumber, kTokenSeparator, kTokenModule,
                                 kTokenClose, kTokenOperator, kTokenName, kTokenWrong));
  EXPECT_EQ(tokens[4].GetText(), L"M.P.GOBACK-3");
  std::wstring plain = text;
  std::erase(plain, L' ');
  EXPECT_EQ(seen, plain);
}

struct CircleRow {
  std::vector<std::wstring> names;
  std::vector<std::wstring> texts;
  int index;
  int answer;
};

TEST_F(ExpressionTest, CirclesAreFound) {
  const CircleRow rows[] = {
      {{L"A"}, {L"A + 1"}, 1, 1},
      {{L"A", L"B"}, {L"B", L"A"}, -1, 1},
      {{L"A", L"B", L"C"}, {L"B", L"C", L"1 + A"}, 3, 1},
      {{L"A", L"B", L"C"}, {L"1", L"C", L"B"}, 1, 0},
      {{L"A", L"B", L"C"}, {L"1", L"C", L"B"}, -1, 1},
      {{L"A", L"B", L"C"}, {L"B", L"C", L"B"}, 1, 1},
      {{L"A", L"B", L"C"}, {L"B + C", L"C", L"2"}, -1, 0},
      {{L"A", L"B"}, {L"[A.B] + b", L"sin(A)"}, -1, 0},
      {{L"A", L"B"}, {L"B +", L"A )"}, -1, 1},
      {{L"A", L"A"}, {L"1", L"A"}, -1, 0},
      {{L"A"}, {L"A"}, 0, 0},
      {{L"A"}, {L"A"}, 2, 0},
      {{L"A", L"B"}, {L"B"}, -1, 0},
      {{}, {}, -1, 0},
  };
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    EXPECT_EQ(host->expressions->CheckBucles(rows[i].names, rows[i].texts, rows[i].index), rows[i].answer) << i;
  }
}

std::wstring Repeated(std::wstring_view piece, std::size_t times) {
  std::wstring text;
  for (std::size_t i = 0; i < times; ++i) text += piece;
  return text;
}

// Whatever the answer, it comes within the second that a user would wait.
TEST_F(ExpressionTest, HostileTextsGetAnAnswerAtOnce) {
  const std::wstring texts[] = {Repeated(L"(", 100000),         Repeated(L"(", 20000) + L"1" + Repeated(L")", 20000),
                                Repeated(L"-", 60000) + L"1",   Repeated(L"!", 60000),
                                Repeated(L"2^", 30000) + L"2",  Repeated(L"1+", 524288) + L"1",
                                Repeated(L"sin(", 15000),       Repeated(L"[", 65000),
                                Repeated(L"\U0001F600", 65000), L"sum(" + Repeated(L"1,", 30000) + L"1)",
                                std::wstring(65000, L'9'),      std::wstring(65536, L'a'),
                                std::wstring(1000, L'\0')};
  const auto start = std::chrono::steady_clock::now();
  for (const std::wstring& text : texts) {
    const Outcome out = OutcomeOf(text);
    EXPECT_EQ(out.error.empty(), out.analysis <= kLogicalExpression && out.undefined.empty());
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3));
  EXPECT_EQ(OutcomeOf(Repeated(L"(", 250) + L"1" + Repeated(L")", 250)).value, 1.0);
  EXPECT_EQ(OutcomeOf(Repeated(L"1+", 30000) + L"1").value, 30001.0);
}

TEST_F(ExpressionTest, LongChainsAndWideFansAreComputedOnce) {
  XmlDocument formulas("formules");
  std::vector<std::wstring> names, texts;
  for (int i = 0; i < 5000; ++i) {
    names.push_back(L"F" + std::to_wstring(i));
    const std::wstring next = L"F" + std::to_wstring(i + 1);
    texts.push_back(i == 4999 ? L"1" : L"(" + next + L" + " + next + L") / 2");
    AddFormula(formulas, names.back(), texts.back());
  }
  const auto start = std::chrono::steady_clock::now();
  const Outcome out = OutcomeOf(L"F0 + F0", formulas);
  EXPECT_EQ(out.code, kEvaluated);
  EXPECT_EQ(out.value, 2.0);
  EXPECT_EQ(host->expressions->CheckBucles(names, texts, -1), 0);
  texts.back() = L"F0";
  EXPECT_EQ(host->expressions->CheckBucles(names, texts, -1), 1);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
}

}  // namespace
}  // namespace xrpt
