// The formula dialogs without their looks: names, judgements, the table, its clipboard and its renamings.
#include <gmock/gmock.h>

#include <queue>

#include "formulas/CDlgFormules.h"
#include "support/FormulaDocument.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FormulaTest : public HostTest {};

TEST_F(FormulaTest, NamesFollowTheRule) {
  const struct {
    const wchar_t* name;
    bool valid;
  } rows[] = {{L"", false},       {L"7", false},           {L"7a", false},      {L"a b", false},
              {L"a-b", false},    {L"max", false},         {L"a.b", false},     {L"[a]", false},
              {L"a#", false},     {L"¿a", false},          {L"a\u00A0", false}, {L"a\U0001F600", false},
              {L"_", true},       {L"_7", true},           {L"a_1B", true},     {L"Max", true},
              {L"Energía", true}, {L"\u4E00\u4E8C", true}, {L"maximum", true},  {L"ñ9", true}};
  for (const auto& row : rows) EXPECT_EQ(IsValidFormulaName(row.name), row.valid) << ToUtf8(row.name);
  EXPECT_TRUE(IsValidFormulaName(std::wstring(100000, L'x')));
}

struct Judged {
  const wchar_t* name;
  const wchar_t* text;
  int textId;
  const wchar_t* shown;  // of a value; null: the text of the id
  bool accepted;
};

TEST_F(FormulaTest, TheFirstFaultIsTold) {
  const FormulaTable table = {{L"A", L"2"}, {L"B", L"A + New"}, {L"C", L"New2"}, {L"M", L"Host::x"}, {L"Bad", L"1 +"}};
  const Judged rows[] = {
      {L"", L"", 32449, nullptr, false},
      {L"1", L"1 +", 32451, nullptr, false},
      {L"", L"1", 32451, nullptr, false},
      {L"A", L"1 +", 32450, nullptr, false},
      {L"Ok", L"1 +", 32446, nullptr, false},
      {L"Ok", L" ", 32446, nullptr, false},
      {L"Ok", L"1 < 2", 32446, nullptr, false},
      {L"Ok", L"Ok + 1", 32445, nullptr, false},
      {L"New", L"B", 32445, nullptr, false},
      {L"Ok", L"Bad", 32452, nullptr, false},
      {L"Ok", L"M", 32452, nullptr, false},
      {L"Ok", L"Host::x + 1", 37540, nullptr, true},
      {L"Ok", L"1234.5678 * A", 0, L"2469.136", true},
      {L"Ok", L"1/0", 0, L"#", true},
      {L"Ok", L"0/0", 0, L"#", true},
      {L"Ok", L"[X.Y] * 0 + 7", 0, L"7 *", true},
      {L"Ok", L"B", 32447, L"The expression is correct. Undefined variables: 1.", true},
      {L"Ok", L"z1 + z2 + z1 + [X.Y]", 32447, L"The expression is correct. Undefined variables: 2.", true},
  };
  for (const Judged& row : rows) {
    CDlgNewFormule dialog(table);
    dialog.name = row.name;
    dialog.text = row.text;
    EXPECT_EQ(dialog.OnOK(), row.accepted) << ToUtf8(row.text);
    EXPECT_EQ(dialog.Result().textId, row.textId) << ToUtf8(row.text);
    EXPECT_EQ(dialog.Result().shown, row.shown ? row.shown : HostText(row.textId)) << ToUtf8(row.text);
  }
}

TEST_F(FormulaTest, AModifiedFormulaIsNoDuplicateOfItself) {
  const FormulaTable table = {{L"A", L"2"}, {L"B", L"A * 3"}};
  CDlgNewFormule dialog(table, L"B");
  EXPECT_EQ(dialog.GetFormule(), (Formula{L"B", L"A * 3"}));
  EXPECT_TRUE(dialog.OnOK());
  EXPECT_EQ(dialog.Result().shown, L"6");
  dialog.name = L"A";
  EXPECT_FALSE(dialog.OnOK());
  EXPECT_EQ(dialog.Result().textId, 32450);
  EXPECT_THAT(ReadFormulas(dialog.BuildFormulesDoc()), ElementsAre(Formula{L"A", L"2"}));
  CDlgNewFormule nameless(table);
  nameless.text = L"B + abc";
  EXPECT_TRUE(nameless.EvaluateExpression().accepted);
}

// Answers prompts from a list of formulas; refuses when it is used up or the dialog does.
class Answers final : public FormulesPort {
 public:
  bool EditFormule(CDlgNewFormule& dialog) override {
    if (formulas.empty()) return false;
    dialog.name = formulas.front().name;
    dialog.text = formulas.front().text;
    formulas.pop();
    return dialog.OnOK();
  }
  bool AskUpdateUses(const std::wstring&, const std::wstring&, std::size_t uses) override {
    asked.push_back(uses);
    return agrees;
  }
  void ShowMessage(int textId) override { messages.push_back(textId); }

  std::queue<Formula> formulas;
  bool agrees = true;
  std::vector<std::size_t> asked;
  std::vector<int> messages;
};

std::vector<std::wstring> NamesOf(const CDlgFormules& dialog) {
  std::vector<std::wstring> names;
  for (const Formula& row : dialog.Rows()) names.push_back(row.name);
  return names;
}

class FormulaTableTest : public FormulaTest {
 protected:
  CDlgFormules Open(std::initializer_list<NamedFormula> formulas, UseCounts uses = {}) {
    return CDlgFormules(FormulaDocument(formulas), std::move(uses), port);
  }
  Answers port;
};

TEST_F(FormulaTableTest, AddsAtTheEndAndDeletesWhatIsSelected) {
  CDlgFormules dialog = Open({{L"A", L"1"}, {L"B", L"2"}, {L"C", L"3"}, {L"D", L"4"}});
  EXPECT_FALSE(dialog.OnXciDelete());
  port.formulas.push({L"E", L"A + B"});
  EXPECT_TRUE(dialog.OnXciAdd());
  EXPECT_THAT(dialog.Selection(), ElementsAre(4));
  port.formulas.push({L"E", L"1"});
  EXPECT_FALSE(dialog.OnXciAdd());

  dialog.Select({2, 0, 0, 99});
  EXPECT_TRUE(dialog.OnXciDelete());
  EXPECT_THAT(NamesOf(dialog), ElementsAre(L"B", L"D", L"E"));
  EXPECT_THAT(dialog.Selection(), ElementsAre(1));
  dialog.Select({2});
  EXPECT_TRUE(dialog.OnXciDelete());
  EXPECT_THAT(dialog.Selection(), ElementsAre(1));
  dialog.Select({0, 1});
  EXPECT_FALSE(dialog.UpdateButtons().modify);
  EXPECT_TRUE(dialog.OnXciDelete());
  EXPECT_THAT(dialog.Selection(), IsEmpty());
  EXPECT_FALSE(dialog.UpdateButtons().copy);
  EXPECT_THAT(ReadFormulas(*dialog.OnOK()), IsEmpty());
}

TEST_F(FormulaTableTest, ARenamingIsOfferedToAllThatUseTheName) {
  CDlgFormules dialog =
      Open({{L"A", L"1"}, {L"B", L"A + [A.A] + AA + max(A, 2)"}, {L"C", L"2"}}, {{L"A", 3}, {L"x", 9}});
  EXPECT_EQ(dialog.UsesOfRow(0), 4u);
  EXPECT_EQ(dialog.UsesOfRow(2), 0u);
  dialog.Select({0});
  port.formulas.push({L"Peak", L"1"});
  EXPECT_TRUE(dialog.OnXciModify());
  EXPECT_THAT(port.asked, ElementsAre(4));
  EXPECT_EQ(dialog.Rows()[1].text, L"Peak + [A.A] + AA + max(Peak, 2)");
  EXPECT_EQ(dialog.UsesOfRow(0), 4u);
  ASSERT_EQ(dialog.RenamingsInCards().size(), 1u);
  EXPECT_EQ(dialog.RenamingsInCards()[0].from + L">" + dialog.RenamingsInCards()[0].to, L"A>Peak");

  port.agrees = false;
  port.formulas.push({L"Top", L"1"});
  EXPECT_TRUE(dialog.OnXciModify());
  EXPECT_EQ(dialog.Rows()[1].text, L"Peak + [A.A] + AA + max(Peak, 2)");
  EXPECT_EQ(dialog.UsesOfRow(0), 0u);

  dialog.Select({2});
  port.formulas.push({L"Unused", L"2"});
  EXPECT_TRUE(dialog.OnXciModify());
  EXPECT_EQ(port.asked.size(), 2u);
  port.formulas.push({L"Unused", L"2"});
  EXPECT_FALSE(dialog.OnXciModify());
}

TEST_F(FormulaTableTest, CirclesKeepItOpen) {
  CDlgFormules dialog = Open({{L"A", L"B"}, {L"B", L"C"}, {L"C", L"1"}});
  EXPECT_TRUE(dialog.OnOK().has_value());
  dialog.Select({2});
  port.formulas.push({L"C", L"A"});
  EXPECT_FALSE(dialog.OnXciModify());
  host->clipboard->PutToClipboard(
      {"<formulesClipboard><formule><name>D</name><text>D</text></formule>"
       "</formulesClipboard>",
       {},
       {}});
  EXPECT_TRUE(dialog.PasteFromClipboard());
  EXPECT_FALSE(dialog.OnOK().has_value());
  EXPECT_THAT(port.messages, ElementsAre(32445));
}

TEST_F(FormulaTableTest, CopiesTravelAsXmlAndGetFreeNames) {
  CDlgFormules dialog = Open({{L"A", L"1 < \"2\" & 3"}, {L"B", L"2"}, {L"A_1", L"3"}});
  EXPECT_FALSE(dialog.CopyToClipboard());
  dialog.Select({2, 0});
  EXPECT_TRUE(dialog.CopyToClipboard());
  XmlDocument document;
  ASSERT_TRUE(document.Parse(host->clipboard->GetFromClipboard(1000)));
  EXPECT_EQ(document.Root().Tag(), "formulesClipboard");
  EXPECT_TRUE(dialog.PasteFromClipboard());
  EXPECT_THAT(NamesOf(dialog), ElementsAre(L"A", L"B", L"A_1", L"A_2", L"A_1_1"));
  EXPECT_EQ(dialog.Rows()[3].text, L"1 < \"2\" & 3");

  for (const char* foreign : {"", "text", "<formules><formule><name>Z</name><text>1</text></formule></formules>",
                              "<formulesClipboard", "<formulesClipboard/>",
                              "<formulesClipboard><formule><name></name><text>1</text></formule><formule><name>Z</name>"
                              "</formule><other><name>Z</name><text>1</text></other></formulesClipboard>"}) {
    host->clipboard->PutToClipboard({foreign, {}, {}});
    EXPECT_FALSE(dialog.PasteFromClipboard()) << foreign;
  }
  host->clipboard->PutToClipboard(
      {"<formulesClipboard><formule><name>B</name><text>5</text></formule>"
       "</formulesClipboard>" +
           std::string(1, '\0'),
       {},
       {}});
  EXPECT_TRUE(dialog.PasteFromClipboard());
  EXPECT_EQ(NamesOf(dialog).back(), L"B_1");
}

TEST_F(FormulaTableTest, ManyOfOneNameArePastedAtOnce) {
  std::string text = "<formulesClipboard>";
  for (int i = 0; i < 20000; ++i) text += "<formule><name>A</name><text>1</text></formule>";
  host->clipboard->PutToClipboard({text + "</formulesClipboard>", {}, {}});
  CDlgFormules dialog = Open({});
  EXPECT_TRUE(dialog.PasteFromClipboard());
  EXPECT_EQ(dialog.Rows().back().name, L"A_19999");
}

}  // namespace
}  // namespace xrpt
