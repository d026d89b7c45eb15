// What the style dialogs decide, and what a report makes of it.
#include <gmock/gmock.h>

#include "editor/CDlgAddRemoveStyle.h"
#include "editor/RVEditControlWnd.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardLabel.h"
#include "support/AnsweringPort.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Hands final : public StylesPort {
 public:
  bool EditStyle(CDlgNewModifyStyle& dialog) override {
    write(dialog.style);
    return dialog.OnOK() == CDlgNewModifyStyle::Outcome::Saved;
  }
  Answer Ask(int textId) override {
    asked.push_back(textId);
    return answer;
  }
  void Tell(int textId) override { told.push_back(textId); }
  void TellFailure(const std::wstring& sentence) override { failures.push_back(sentence); }

  std::function<void(tagStyleCfg&)> write = [](tagStyleCfg&) {};
  Answer answer = Answer::Yes;
  std::vector<int> asked, told;
  std::vector<std::wstring> failures;
};

class StyleDialogs : public HostTest {
 protected:
  void Make(const std::wstring& name, double size = 10.0) {
    tagStyleCfg style;
    style.name = name;
    style.font.size = size;
    ASSERT_TRUE(SaveStyle(style, {}));
  }
  static std::vector<std::string> Names(const CDlgAddRemoveStyle& list) {
    std::vector<std::string> names;
    for (const tagStyleCfg& row : list.Rows()) names.push_back(ToUtf8(row.name));
    return names;
  }
  void WriteName(const std::wstring& name) {
    hands.write = [name](tagStyleCfg& style) { style.name = name; };
  }

  Hands hands;
};

TEST_F(StyleDialogs, SortByAColumnAndTurnRound) {
  Make(L"beta", 8.0);
  Make(L"Alpha", 12.0);
  Make(L"Gamma", 10.0);
  CDlgAddRemoveStyle list(hands);
  EXPECT_THAT(Names(list), ElementsAre("Alpha", "beta", "Gamma"));
  list.OrderList(StyleColumn::Size);
  EXPECT_THAT(Names(list), ElementsAre("beta", "Gamma", "Alpha"));
  list.Select({0});
  list.OrderList(StyleColumn::Size);
  EXPECT_THAT(Names(list), ElementsAre("Alpha", "Gamma", "beta"));
  EXPECT_THAT(list.Selection(), ElementsAre(2u)) << "the selection stays with its style";
}

TEST_F(StyleDialogs, MakeModifyDuplicateAndRemove) {
  CDlgAddRemoveStyle list(hands);
  EXPECT_FALSE(list.OnStyleModify());
  WriteName(L"Title");
  EXPECT_TRUE(list.OnStyleNew());
  WriteName(L"Heading");
  EXPECT_TRUE(list.OnStyleModify());
  const std::vector<StyleRenaming> renamings = list.TakeRenamings();
  ASSERT_EQ(renamings.size(), 1u);
  EXPECT_EQ(renamings[0].to, L"Heading");
  hands.write = [](tagStyleCfg& style) { EXPECT_EQ(style.name, L"Heading_1"); };
  EXPECT_TRUE(list.OnStyleDuplicate());
  EXPECT_THAT(list.TakeRenamings(), IsEmpty());
  EXPECT_THAT(Names(list), ElementsAre("Heading", "Heading_1"));

  hands.answer = Answer::No;
  EXPECT_FALSE(list.OnStyleRemove());
  hands.answer = Answer::Yes;
  list.Select({0, 1});
  EXPECT_TRUE(list.OnStyleRemove());
  EXPECT_THAT(hands.asked, ElementsAre(kAskRemoveStyles, kAskRemoveStyles));
  EXPECT_THAT(list.Rows(), IsEmpty());
}

TEST_F(StyleDialogs, AskBeforeTheyReplaceAndSayWhatIsWrong) {
  Make(L"Title");
  Make(L"Body");
  CDlgAddRemoveStyle list(hands);
  list.Select({0});
  WriteName(L"Title");
  hands.answer = Answer::No;
  EXPECT_FALSE(list.OnStyleModify());
  EXPECT_THAT(hands.asked, ElementsAre(kAskOverwriteStyle));
  hands.answer = Answer::Yes;
  EXPECT_TRUE(list.OnStyleModify());
  EXPECT_THAT(Names(list), ElementsAre("Title"));

  CDlgNewModifyStyle dialog(hands, OpenStyle(L"Title"));
  EXPECT_EQ(dialog.OnOK(), CDlgNewModifyStyle::Outcome::Cancelled) << "nothing changed";
  dialog.style.font.size = 0.0;
  EXPECT_EQ(dialog.OnOK(), CDlgNewModifyStyle::Outcome::StaysOpen);
  EXPECT_EQ(dialog.FieldToMend(), CDlgNewModifyStyle::Field::Size);
  dialog.style.name.clear();
  EXPECT_EQ(dialog.OnOK(), CDlgNewModifyStyle::Outcome::StaysOpen);
  EXPECT_EQ(dialog.FieldToMend(), CDlgNewModifyStyle::Field::Name);
  EXPECT_THAT(hands.told, ElementsAre(kStyleSizeNotPositive, kStyleNameMissing));
}

TEST_F(StyleDialogs, GoOverTheClipboard) {
  Make(L"Title");
  CDlgAddRemoveStyle list(hands);
  EXPECT_FALSE(list.CopyToClipboard()) << "nothing is selected";
  list.Select({0});
  EXPECT_TRUE(list.CopyToClipboard());
  EXPECT_TRUE(list.PasteFromClipboard());
  EXPECT_THAT(Names(list), ElementsAre("Title", "Title_1"));
  EXPECT_THAT(list.Selection(), ElementsAre(1u));
  host->clipboard->PutToClipboard({"<other/>", {}, {}});
  EXPECT_FALSE(list.PasteFromClipboard());
}

TEST_F(StyleDialogs, KeepTheCardsOfAnOpenReport) {
  Make(L"Title", 20.0);
  AnsweringPort port;
  RVEditControlWnd frame(port);
  {
    PageEdit edit = frame.CurrentPage().Edit({0, 1});
    auto label = std::make_unique<RVCardLabel>();
    label->styleName = L"Title";
    auto container = std::make_unique<RVCardConditioned>();
    container->cards.push_back(label->GetClone());
    container->conditions.push_back(L"1 < 2");
    edit.Cards().PushBack(std::move(label));
    edit.Cards().PushBack(std::move(container));
  }
  const std::size_t steps = frame.History().DoneNames().size();
  tagStyleCfg style = OpenStyle(L"Title");
  style.name = L"Heading";
  style.font.size = 24.0;
  ASSERT_TRUE(SaveStyle(style, {L"Title", false, false}));
  frame.StylesModified({{L"Title", L"Heading"}});
  const CardList& cards = frame.CurrentPage().Page().cards;
  const auto& inner = *dynamic_cast<const RVCardConditioned&>(cards[1]).cards[0];
  for (const RVCardControl* card : {&cards[0], &inner}) {
    const auto& label = dynamic_cast<const RVCardLabel&>(*card);
    EXPECT_EQ(label.styleName, L"Heading");
    EXPECT_EQ(label.font.size, 24.0);
  }
  EXPECT_EQ(frame.History().DoneNames().size(), steps + 1) << "one step";
  frame.StylesModified();
  EXPECT_EQ(frame.History().DoneNames().size(), steps + 1) << "nothing changed";
}

}  // namespace
}  // namespace xrpt
