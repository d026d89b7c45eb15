// Which property panel shows what, what the panels offer, and the rules of single ones.
#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "canvas/PageEdit.h"
#include "editor/CProperties.h"
#include "editor/RVEditControlWnd.h"
#include "editor/SelectedFields.h"
#include "editor/UsedColors.h"
#include "model/RVAnalogBar.h"
#include "model/RVCardButton.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardDate.h"
#include "model/RVCardFormule.h"
#include "model/RVCardImage.h"
#include "model/RVCardLabel.h"
#include "model/RVCardPrimitive.h"
#include "model/RVCardReportGraph.h"
#include "support/AnsweringPort.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

class Properties : public HostTest {
 protected:
  std::wstring Add(std::unique_ptr<RVCardControl> card) {
    std::wstring id = card->id;
    PageEdit edit = frame.CurrentPage().Edit({0, 1});
    edit.Cards().PushBack(std::move(card));
    return id;
  }
  const FieldState* FieldOf(const std::vector<FieldState>& fields, std::string_view name) {
    for (const FieldState& field : fields) {
      if (field.row->FullName() == name) return &field;
    }
    return nullptr;
  }

  AnsweringPort port;
  RVEditControlWnd frame{port};
};

TEST_F(Properties, EachKindHasItsPanelAndTheLastStaysForAKindWithout) {
  CProperties panels;
  const RVGlobalProperties page;
  EXPECT_EQ(panels.ShownSlot(), 0);
  const std::pair<std::unique_ptr<RVCardControl>, int> rows[] = {
      {std::make_unique<RVCardDate>(), 252},        {std::make_unique<RVCardFormule>(), 255},
      {std::make_unique<RVCardLabel>(), 251},       {std::make_unique<RVCardImage>(), 253},
      {std::make_unique<RVCardConditioned>(), 256}, {std::make_unique<RVCardReportGraph>(), 257},
      {std::make_unique<RVAnalogBar>(), 258},       {std::make_unique<RVCardPrimitive>(), 259}};
  for (const auto& [card, id] : rows) {
    panels.SetControl(card.get(), &page, true);
    EXPECT_EQ(panels.Shown().childId, id);
    EXPECT_EQ(panels.Card(), card.get());
    EXPECT_TRUE(panels.Flag());
  }
  EXPECT_EQ(panels.Shown().windowName, std::wstring(L"PrimitiveProperties"));
  const RVCardButton button;
  panels.SetControl(&button, &page);
  EXPECT_EQ(panels.ShownSlot(), 8) << "stays";
  EXPECT_FALSE(panels.InvalidatePropertiesCtrl(&button));
  panels.SetControl(nullptr, &page);
  EXPECT_EQ(panels.ShownSlot(), 0);
  EXPECT_EQ(panels.Page(), &page);
}

TEST_F(Properties, SlotsAndIdsAreAllDifferent) {
  std::set<int> slots, ids;
  for (const PropertyPanelRow& row : PropertyPanels()) {
    slots.insert(row.slot);
    ids.insert(row.childId);
  }
  EXPECT_EQ(slots.size(), static_cast<std::size_t>(CProperties::kSlotCount));
  EXPECT_EQ(ids.size(), slots.size());
}

TEST_F(Properties, TheBarKeepsItsSizesInASectionOfItsOwn) {
  CProperties panels(250);
  panels.sizes = {301, 302, 303, 304};
  panels.SaveState(L"ReportRibbonBars");
  EXPECT_EQ(host->settings->ProfileInt(L"ReportRibbonBars-SCBar-250", L"sizeFloatCX", 0), 303);
  CProperties other(250);
  other.LoadState(L"ReportRibbonBars");
  EXPECT_EQ(other.sizes, panels.sizes);
  CProperties elsewhere(251);
  const PropertyBarSizes before = elsewhere.sizes;
  elsewhere.LoadState(L"ReportRibbonBars");
  EXPECT_EQ(elsewhere.sizes, before) << "what is not there stays";
}

TEST_F(Properties, FollowTheSelectionOfThePage) {
  const std::wstring id = Add(std::make_unique<RVCardDate>());
  EXPECT_EQ(frame.Properties().ShownSlot(), 0);
  frame.SelectControlById(id);
  EXPECT_EQ(frame.Properties().ShownSlot(), 2);
  EXPECT_EQ(frame.Properties().Card()->id, id);
}

TEST_F(Properties, DatesAreChosenByNameAndOtherCardsChooseVariables) {
  Add(std::make_unique<RVCardDate>());
  Add(std::make_unique<RVCardLabel>());
  SelectedFields fields(frame);
  frame.CurrentPage().SelectPlaces({0});
  std::vector<FieldState> states = fields.Fields();
  ASSERT_NE(FieldOf(states, "field"), nullptr);
  ASSERT_EQ(FieldOf(states, "field")->names.size(), 3u);
  fields.Assign(*FieldOf(states, "field")->row, "END_DATE");
  EXPECT_EQ(frame.CurrentPage().Page().cards[0].field, L"END_DATE");
  XmlDocument own("fields");
  own.Root().NewChild("field").SetValue("id", L"SHIFT");
  own.Root().NewChild("field");
  own.Root().NewChild("other").SetValue("id", L"NO");
  frame.Properties().SetDatabaseFields(own);
  states = fields.Fields();
  ASSERT_EQ(FieldOf(states, "field")->names.size(), 1u);
  EXPECT_EQ(FieldOf(states, "field")->names[0].name, L"SHIFT");
  frame.CurrentPage().SelectPlaces({0, 1});
  states = fields.Fields();
  EXPECT_TRUE(FieldOf(states, "field")->names.empty()) << "not all of them are dates";
}

TEST_F(Properties, ThresholdsTakeNumbersOnly) {
  const std::pair<const wchar_t*, const wchar_t*> rows[] = {{L"12.5", L"12.5"},  {L"-3", L"-3"},     {L"3-4", L"34"},
                                                            {L"1.2.3", L"1.23"}, {L"a1b,2 ", L"12"}, {L"", L""},
                                                            {L"--1", L"-1"},     {L"x-1", L"1"}};
  for (const auto& [typed, valid] : rows) EXPECT_EQ(CheckValidValue(typed), valid) << typed;
  EXPECT_EQ(CheckValidValue(std::wstring(300, L'7')).size(), 256u);
}

TEST_F(Properties, PeriodsAreWrittenAsWordsOrSeconds) {
  const std::pair<int, const wchar_t*> rows[] = {{300, L"300"}, {2678400, L"2678400"}, {-2, L"DEFAULT"}, {-3, L"FILE"},
                                                 {0, L"AUTO"},  {301, L"AUTO"},        {86400, L"86400"}};
  for (const auto& [item, text] : rows) EXPECT_EQ(PeriodText(item), text) << item;
  std::set<std::wstring> names;
  for (const Word& item : PeriodItems()) names.insert(NameOf(item));
  EXPECT_EQ(names.size(), PeriodItems().size()) << "each by a name of its own";
  EXPECT_EQ(NameOf(*WordOf(PeriodItems(), 1200)), L"20 minutes");
}

TEST_F(Properties, ControlsOfAGraphHangOnItsSeries) {
  RVCardReportGraph graph;
  EXPECT_FALSE(IsControlEnabled(graph, kPieControl));
  EXPECT_FALSE(IsControlEnabled(graph, kAxisControl));
  graph.types = {SeriesType::Bar};
  EXPECT_FALSE(IsControlEnabled(graph, kPieControl));
  EXPECT_TRUE(IsControlEnabled(graph, kAxisControl));
  graph.types.push_back(SeriesType::CheesePeriod);
  EXPECT_TRUE(IsControlEnabled(graph, kPieControl));
  graph.types = {SeriesType::CheeseVariable};
  EXPECT_FALSE(IsControlEnabled(graph, kAxisControl));
}

TEST_F(Properties, ColoursOfThePageComeBeforeThoseOfOtherPages) {
  const auto label = [](Color color) {
    auto card = std::make_unique<RVCardLabel>();
    card->color = color;
    card->backcolor = kNoColor;
    return card;
  };
  Add(label(Rgb(9, 9, 9)));
  Add(label(Rgb(9, 9, 9)));
  frame.AddPage();
  Add(label(Rgb(1, 2, 3)));
  const std::vector<Color> colors = UsedColors(frame);
  ASSERT_GE(colors.size(), 2u);
  const auto own = std::find(colors.begin(), colors.end(), Rgb(1, 2, 3));
  const auto other = std::find(colors.begin(), colors.end(), Rgb(9, 9, 9));
  ASSERT_NE(other, colors.end());
  EXPECT_LT(own, other);
  EXPECT_EQ(std::count(colors.begin(), colors.end(), kNoColor), 0);
  EXPECT_EQ(UsedColors(frame, 1).size(), 1u);
}

}  // namespace
}  // namespace xrpt
