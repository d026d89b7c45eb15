// Fields that the panel and the ribbon change: what an edit takes along, and what it leaves.
#include "editor/SelectedFields.h"

#include <gtest/gtest.h>

#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"
#include "editor/RVEditControlWnd.h"
#include "model/RVCardLabel.h"
#include "support/AnsweringPort.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

class FieldsOfCards : public HostTest {
 protected:
  FieldsOfCards() {
    host.WriteCfg("S1.Title.XSTY",
                  "<style><id>S1</id><name>Title</name><font><name>Courier</name><size>20.00</size></font></style>");
    PageEdit edit = frame.CurrentPage().Edit({text::kInsert, 2});
    for (int i = 0; i < 2; ++i) edit.Cards().PushBack(std::make_unique<RVCardLabel>());
  }
  const RVCardLabel& Label(std::size_t place) {
    return dynamic_cast<const RVCardLabel&>(frame.CurrentPage().Page().cards[place]);
  }
  const FieldRow& Row(const char* name) { return *fields.Find(name)->row; }

  AnsweringPort port;
  RVEditControlWnd frame{port, EditingOptions::Comfort()};
  SelectedFields fields{frame};
};

// What it says of a field would come back when the report is read again.
TEST_F(FieldsOfCards, EditingWhatAStyleGovernsLetsGoOfIt) {
  frame.CurrentPage().SelectPlaces({0, 1});
  fields.Assign(*StyleRow(Label(0)), "Title");
  EXPECT_EQ(Label(0).font.size, 20.0) << "a style is seen at once";
  fields.Assign(Row("text/textStr"), "Energy");
  EXPECT_EQ(Label(0).styleName, L"Title");
  frame.CurrentPage().SelectPlaces({1});
  fields.Assign(Row("font/size"), "20.00");
  EXPECT_EQ(Label(1).styleName, L"Title") << "that is what the style says";
  fields.Assign(Row("font/size"), "11.00");
  EXPECT_EQ(Label(1).styleName, L"");
  EXPECT_EQ(Label(1).font.face, L"Courier");
  EXPECT_EQ(Label(0).styleName, L"Title");
  ASSERT_TRUE(frame.Undo());
  EXPECT_EQ(Label(1).styleName, L"Title");
  EXPECT_EQ(Label(1).font.size, 20.0);
}

TEST_F(FieldsOfCards, APartOfAFieldChangesInEachCardForItself) {
  frame.CurrentPage().SelectPlaces({1});
  fields.Assign(Row("font/style"), "BOLD");
  frame.CurrentPage().SelectPlaces({0, 1});
  const FieldRow& style = Row("font/style");
  const auto isBold = [](const std::wstring& word) { return word.find(L"BOLD") != std::wstring::npos; };
  EXPECT_FALSE(fields.All(style, isBold));
  const std::size_t steps = frame.History().DoneNames().size();
  fields.Rewrite(style, [&](const std::wstring& word) { return isBold(word) ? "ITALICBOLD" : "ITALIC"; });
  EXPECT_EQ(frame.History().DoneNames().size(), steps + 1);
  EXPECT_EQ(Label(0).font.style, FontStyle::Italic);
  EXPECT_EQ(Label(1).font.style, FontStyle::ItalicBold);
  frame.CurrentPage().ClearSelection();
  EXPECT_FALSE(fields.All(style, [](const std::wstring&) { return true; })) << "a page has no letters";
}

}  // namespace
}  // namespace xrpt
