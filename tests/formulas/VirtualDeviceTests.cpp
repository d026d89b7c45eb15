// Virtual devices and go-back variables: identifiers, limits, prompts, and what refers to them.
#include <gmock/gmock.h>

#include <deque>

#include "formulas/RVDlgReportVirtualDeviceSetup.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Names = std::vector<std::wstring>;

// Types names from a list, then cancels; remembers what it was shown.
class Typist final : public VirtualSetupPort {
 public:
  std::optional<std::wstring> AskIdentification(int promptText, int, const std::wstring& initial) override {
    prompts.push_back(promptText);
    initials.push_back(initial);
    if (names.empty()) return std::nullopt;
    const std::wstring name = names.front();
    names.pop_front();
    return name;
  }
  void ShowMessage(int textId) override { messages.push_back(textId); }
  bool AskUpdateUses(const std::wstring&, const std::wstring&, std::size_t uses) override { return Answer(uses); }
  bool AskDeleteUsed(const std::wstring&, std::size_t uses) override { return Answer(uses); }

  std::deque<std::wstring> names;
  bool agrees = true;
  std::vector<int> prompts;
  Names initials;
  std::vector<int> messages;
  std::vector<std::size_t> asked;

 private:
  bool Answer(std::size_t uses) {
    asked.push_back(uses);
    return agrees;
  }
};

class VirtualDeviceTest : public HostTest {
 protected:
  Typist port;
  RVDlgReportVirtualDeviceSetup dialog{port};
};

TEST_F(VirtualDeviceTest, EachKindHasItsIdentifiersAndItsLimit) {
  for (int i = 0; i < 11; ++i) {
    port.names = {L"D" + std::to_wstring(i)};
    EXPECT_EQ(dialog.OnAdd(), i < 10);
  }
  EXPECT_THAT(port.messages, ElementsAre(36258));
  EXPECT_EQ(port.prompts, std::vector<int>(10, 36135));
  for (int i = 0; i < 11; ++i) {
    port.names = {L"P" + std::to_wstring(i)};
    EXPECT_EQ(dialog.OnGoBackAdd(), i < 10);
  }
  EXPECT_THAT(port.messages, ElementsAre(36258, 36259));
  EXPECT_EQ(port.prompts.back(), 36246);
  EXPECT_EQ(dialog.devices.ids[9], L"VIRTUAL_D9");
  EXPECT_EQ(dialog.goBacks.ids[1], L"GOBACK@P1");
  EXPECT_EQ(dialog.goBacks.names[1], L"P1");
}

TEST_F(VirtualDeviceTest, OnlyAChangeEndsWithOk) {
  EXPECT_FALSE(dialog.OnOK());
  EXPECT_FALSE(dialog.OnAdd());
  EXPECT_FALSE(dialog.OnDelete(0));
  EXPECT_FALSE(dialog.OnGoBackModify(0));
  EXPECT_FALSE(dialog.OnOK());
  port.names = {L"A"};
  dialog.OnAdd();
  EXPECT_TRUE(dialog.OnOK());
}

TEST_F(VirtualDeviceTest, ARefusedNameStandsInTheNextPrompt) {
  port.names = {L"A", L" A ", L"  ", L"a.b", L"x]", L"B"};
  dialog.OnAdd();
  EXPECT_TRUE(dialog.OnAdd());
  EXPECT_THAT(port.messages, ElementsAre(36203, 32451, 32451));
  EXPECT_THAT(port.initials, ElementsAre(L"", L"", L"A", L"", L"a.b", L"x]"));
  EXPECT_EQ(dialog.devices.names, (Names{L"A", L"B"}));
  port.names = {L"A", L"A", L"A"};
  dialog.OnGoBackAdd();
  EXPECT_FALSE(dialog.OnGoBackAdd());
  EXPECT_THAT(port.messages, ElementsAre(36203, 32451, 32451, 36248, 36248));
}

TEST_F(VirtualDeviceTest, ModifyingRenewsTheIdentifierAndOffersToCarryIt) {
  dialog.devices = {{L"VIRTUAL_A", L"VIRTUAL_B"}, {L"A", L"B"}};
  dialog.uses = {{L"VIRTUAL_A", 3}};
  port.names = {L"A"};
  EXPECT_FALSE(dialog.OnModify(0));
  EXPECT_EQ(port.initials.back(), L"A");
  port.names = {L"B", L"C"};
  EXPECT_TRUE(dialog.OnModify(0));
  EXPECT_THAT(port.messages, ElementsAre(36203));
  EXPECT_EQ(dialog.devices.ids, (Names{L"VIRTUAL_C", L"VIRTUAL_B"}));
  EXPECT_THAT(port.asked, ElementsAre(3));
  ASSERT_EQ(dialog.Renamings().size(), 1u);
  EXPECT_EQ(dialog.Renamings()[0].ids.to, L"VIRTUAL_C");

  port.agrees = false;
  port.names = {L"D"};
  EXPECT_TRUE(dialog.OnModify(0));
  EXPECT_EQ(dialog.Renamings().size(), 1u);
  EXPECT_FALSE(dialog.OnDelete(7));
  EXPECT_TRUE(dialog.OnDelete(0));
  EXPECT_EQ(dialog.devices.names, Names{L"B"});
  EXPECT_THAT(port.asked, ElementsAre(3, 3));
}

TEST_F(VirtualDeviceTest, DeletingWhatIsUsedIsAsked) {
  dialog.goBacks = {{L"GOBACK@P1"}, {L"P1"}};
  dialog.uses = {{L"GOBACK@P1", 2}};
  port.agrees = false;
  EXPECT_FALSE(dialog.OnGoBackDelete(0));
  EXPECT_FALSE(dialog.OnOK());
  port.agrees = true;
  EXPECT_TRUE(dialog.OnGoBackDelete(0));
  EXPECT_THAT(dialog.goBacks.ids, IsEmpty());
  EXPECT_THAT(port.asked, ElementsAre(2, 2));
}

TEST_F(VirtualDeviceTest, DocumentsHoldTheLists) {
  const SourceList list = {{L"VIRTUAL_A", L"VIRTUAL_<"}, {L"A", L"<"}};
  const XmlDocument document = SourcesDocument(SourceKind::VirtualDevice, list);
  EXPECT_EQ(ReadSources(SourceKind::VirtualDevice, document), list);
  EXPECT_EQ(document.Root().Tag(), "virtualDevices");
  EXPECT_EQ(ReadSources(SourceKind::GoBackVariable, document).Size(), 0u);
}

TEST_F(VirtualDeviceTest, ReferencesAreFoundAndExchanged) {
  const struct {
    SourceKind kind;
    const wchar_t* variable;
    const wchar_t* source;
    const wchar_t* renamed;  // VIRTUAL_A to VIRTUAL_Z, GOBACK@P1 to GOBACK@Z
  } rows[] = {
      {SourceKind::VirtualDevice, L"VIRTUAL_A.P", L"VIRTUAL_A", L"VIRTUAL_Z.P"},
      {SourceKind::VirtualDevice, L"[VIRTUAL_A.P.GOBACK-3]", L"VIRTUAL_A", L"[VIRTUAL_Z.P.GOBACK-3]"},
      {SourceKind::VirtualDevice, L"VIRTUAL_AB.P", L"VIRTUAL_AB", L"VIRTUAL_AB.P"},
      {SourceKind::GoBackVariable, L"M.P.GOBACK@P1", L"GOBACK@P1", L"M.P.GOBACK@Z"},
      {SourceKind::GoBackVariable, L"M.P.GOBACK@P11", L"GOBACK@P11", L"M.P.GOBACK@P11"},
      {SourceKind::GoBackVariable, L"M.P.IMG", L"", L"M.P.IMG"},
      {SourceKind::GoBackVariable, L"", L"", L""},
  };
  for (const auto& row : rows) {
    const bool device = row.kind == SourceKind::VirtualDevice;
    EXPECT_EQ(SourceIn(row.kind, row.variable), row.source);
    EXPECT_EQ(RenameSourceIn(row.kind, row.variable, device ? L"VIRTUAL_A" : L"GOBACK@P1",
                             device ? L"VIRTUAL_Z" : L"GOBACK@Z"),
              row.renamed);
  }
  const std::wstring expression = L"[VIRTUAL_A.P] + 2*[VIRTUAL_A.Q.GOBACK@P1] - VIRTUAL_A + [B.P]";
  EXPECT_THAT(SourcesInExpression(SourceKind::GoBackVariable, expression), ElementsAre(std::pair(L"GOBACK@P1", 1)));
  EXPECT_EQ(RenameSourceInExpression(SourceKind::VirtualDevice, expression, L"VIRTUAL_A", L"VIRTUAL_Longer"),
            L"[VIRTUAL_Longer.P] + 2*[VIRTUAL_Longer.Q.GOBACK@P1] - VIRTUAL_A + [B.P]");
}

}  // namespace
}  // namespace xrpt
