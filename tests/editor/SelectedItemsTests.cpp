// Series of a graph and alternatives of a conditioned card: what an edit makes of the saved text, and undo of it.
#include <gmock/gmock.h>

#include "canvas/UndoTexts.h"
#include "editor/RVEditControlWnd.h"
#include "editor/SelectedAlternatives.h"
#include "editor/SelectedItems.h"
#include "model/CardRegistry.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardImage.h"
#include "model/RVCardReportGraph.h"
#include "support/AnsweringPort.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;

class OneCard : public HostTest {
 protected:
  void Put(const char* tag, const std::string& content) {
    XmlDocument document;
    ASSERT_TRUE(document.Parse("<" + std::string(tag) +
                               "><id>C</id><x>10</x><y>10</y><width>50</width><height>40</height>" + content + "</" +
                               tag + ">"));
    std::unique_ptr<RVCardControl> card = NewPageCard(tag);
    card->GetFromXml(document.Root());
    frame.CurrentPage().Edit({text::kInsert, 1}).Cards().PushFront(std::move(card));
    frame.CurrentPage().SelectControls({L"C"});
  }
  const RVCardControl& Card() { return *frame.CurrentPage().Page().cards.Find(L"C"); }
  const RVCardReportGraph& Graph() { return dynamic_cast<const RVCardReportGraph&>(Card()); }
  const RVCardConditioned& Container() { return dynamic_cast<const RVCardConditioned&>(Card()); }
  // One step, and undo and redo of it give the texts of before and after.
  void IsOneStep(const std::function<void()>& edit) {
    const std::string before = Text();
    const std::size_t steps = frame.History().DoneNames().size();
    edit();
    frame.EndEdits();
    const std::string after = Text();
    EXPECT_EQ(frame.History().DoneNames().size(), steps + 1);
    ASSERT_TRUE(frame.Undo());
    EXPECT_EQ(Text(), before);
    ASSERT_TRUE(frame.Redo());
    EXPECT_EQ(Text(), after);
  }
  std::string Text() {
    const std::string text = frame.Report().TemplateText();
    const std::size_t revision = text.find("<revision>");
    return text.substr(0, revision) + text.substr(text.find("</revision>"));
  }

  AnsweringPort port;
  RVEditControlWnd frame{port};
};

constexpr char kTwoSeries[] =
    "<variable><id>A.P</id><color>0000FF</color><type>LINE</type><style>DOT</style><width>2</width></variable>"
    "<variable><id>B.P</id><color>00FF00</color><type>BAR</type><style>BOX5X5</style><width>3</width></variable>";

const FieldRow& RowNamed(const std::vector<FieldState>& fields, std::string_view name) {
  for (const FieldState& field : fields) {
    if (field.row->FullName() == name) return *field.row;
  }
  throw std::out_of_range("no such field");
}

TEST_F(OneCard, SeriesAreChangedSeveralAtOnce) {
  Put("reportGraph", kTwoSeries);
  SelectedItems items(frame);
  ASSERT_TRUE(items.HasList());
  EXPECT_EQ(items.Caption(1), L"B.P");
  EXPECT_EQ(items.ColorOf(0), std::optional<Color>(0xFF));
  const std::vector<FieldState> both = items.Fields({0, 1});
  const FieldRow& width = RowNamed(both, "width");
  EXPECT_FALSE(both[4].text.has_value()) << "they differ";
  IsOneStep([&] {
    items.Assign({0, 1}, width, "4");
    items.Assign({0, 1}, width, "5");
  });
  EXPECT_THAT(Graph().widths, ElementsAre(5, 5));
  EXPECT_EQ(items.Fields({0, 1})[4].text, std::optional<std::wstring>(L"5"));
  EXPECT_EQ(items.Fields({1})[3].words.data(), kMarkerWords) << "bars have markers";
}

TEST_F(OneCard, SeriesAreAddedRemovedAndReorderedWhole) {
  Put("reportGraph", kTwoSeries);
  SelectedItems items(frame);
  IsOneStep([&] { items.Add(); });
  EXPECT_EQ(items.Size(), 3u);
  EXPECT_NE(items.ColorOf(2), items.ColorOf(1));
  IsOneStep([&] { EXPECT_TRUE(items.Move(0, 2)); });
  EXPECT_THAT(Graph().variables, ElementsAre(L"B.P", L"", L"A.P"));
  EXPECT_THAT(Graph().widths, ElementsAre(3, 1, 2));
  EXPECT_FALSE(items.Move(2, 3));
  IsOneStep([&] { items.Remove({0, 1}); });
  EXPECT_THAT(Graph().variables, ElementsAre(L"A.P"));
  EXPECT_THAT(Graph().widths, ElementsAre(2)) << "its own width stays with it";
  items.Remove({0});
  EXPECT_EQ(items.Size(), 0u);
}

TEST_F(OneCard, ListsThatAFileLeftShortAreFilledUp) {
  Put("reportGraph", "<variable><id>A.P</id></variable><variable><id>B.P</id></variable>");
  SelectedItems items(frame);
  const FieldRow& color = RowNamed(items.Fields({1}), "color");
  IsOneStep([&] { items.Assign({1}, color, "0000FF"); });
  EXPECT_EQ(items.ColorOf(1), std::optional<Color>(0xFF));
}

TEST_F(OneCard, AlternativesAreEditedInPlace) {
  Put("conditioned", "");
  SelectedAlternatives alternatives(frame);
  ASSERT_TRUE(alternatives.HasList());
  EXPECT_EQ(alternatives.Shown(), -1);
  for (const CardClass* kind : SelectedAlternatives::Kinds()) IsOneStep([&] { alternatives.Add(*kind); });
  EXPECT_EQ(alternatives.Size(), 6u);
  EXPECT_EQ(alternatives.Shown(), 5);
  IsOneStep([&] {
    alternatives.SetCondition(1, L"[A.P] >");
    alternatives.SetCondition(1, L"[A.P] > 1");
  });
  EXPECT_EQ(alternatives.Condition(1), L"[A.P] > 1");
  EXPECT_TRUE(alternatives.Move(1, 0));
  EXPECT_EQ(alternatives.Condition(0), L"[A.P] > 1");
  EXPECT_EQ(alternatives.Shown(), 0);

  // The shown card's own fields; it fills its container, so its place is not among them.
  SelectedFields fields(frame, FieldsOf::Alternative);
  EXPECT_EQ(fields.Count(), 1u);
  EXPECT_EQ(fields.Find("x")->text.has_value(), true);
  for (const FieldState& field : fields.Fields()) EXPECT_NE(field.row->panel.group, FieldGroup::Geometry);
  const FieldRow& color = RowNamed(fields.Fields(), "color");
  IsOneStep([&] { fields.Assign(color, "123456"); });
  EXPECT_EQ(Container().Shown()->color, 0x123456u);
  EXPECT_NE(Container().color, 0x123456u);

  IsOneStep([&] { alternatives.Remove(0); });
  EXPECT_EQ(alternatives.Size(), 5u);
  EXPECT_EQ(alternatives.Shown(), 0);
}

TEST_F(OneCard, ThePagesBackgroundIsAPictureWithFieldsOfItsOwn) {
  SelectedFields background(frame, FieldsOf::Background);
  const FieldRow& picture = RowNamed(background.Fields(), "image");
  IsOneStep([&] { background.Assign(picture, "plants/boiler"); });
  const auto card = [&]() -> const RVCardImage& { return frame.CurrentPage().Page().properties.Background(); };
  EXPECT_EQ(card().ImageId(), L"boiler");
  EXPECT_EQ(card().ImagePath(), L"plants");
  EXPECT_EQ(background.Find("image")->text, std::optional<std::wstring>(L"plants/boiler"));
  IsOneStep([&] { background.Assign(picture, ""); });
  EXPECT_FALSE(card().HasImageData());
  Put("reportGraph", "");
  EXPECT_TRUE(background.Fields().empty()) << "a card is selected";
}

TEST_F(OneCard, AContainerHasNoListBesideItsAlternatives) {
  Put("conditioned", "<control><condition>1</condition><forceValues><id>F</id></forceValues></control>");
  EXPECT_FALSE(SelectedItems(frame).HasList()) << "a condition without a card would be lost";
  SelectedItems items(frame, FieldsOf::Alternative);
  ASSERT_TRUE(items.HasList());
  IsOneStep([&] { items.Add(); });
  EXPECT_EQ(items.Size(), 1u);
}

}  // namespace
}  // namespace xrpt
