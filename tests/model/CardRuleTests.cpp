// The rules of the format that no property states: one row each, what is read and what is written then.
#include "CardSupport.h"
#include "model/RVAnalogBar.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardDynamicImage.h"
#include "model/RVCardForceValues.h"
#include "model/RVCardImage.h"
#include "model/RVCardLabel.h"
#include "model/RVCardReportGraph.h"

namespace xrpt {
namespace {

// A card of `tag` that read `in` is written with `out` in it; "!" before `out`: without.
struct Rule {
  const char* tag;
  const char* in;
  const char* out;
};

class Rules : public HostTest, public ::testing::WithParamInterface<Rule> {};

std::unique_ptr<RVCardControl> NewAnyCard(std::string_view tag) {
  if (tag == "button") return std::make_unique<RVCardButton>();
  std::unique_ptr<RVCardControl> card = NewPageCard(tag);
  return card ? std::move(card) : NewInnerCard(tag);
}

TEST_P(Rules, WhatIsReadIsWrittenSo) {
  const std::unique_ptr<RVCardControl> card = NewAnyCard(GetParam().tag);
  XmlDocument document;
  ASSERT_TRUE(document.Parse("<card>" + std::string(GetParam().in) + "</card>")) << GetParam().in;
  card->GetFromXml(document.Root());
  std::string out = GetParam().out;
  const bool absent = out.front() == '!';
  if (absent) out.erase(0, 1);
  const std::string values = ValuesOf(*card);
  EXPECT_EQ(values.find(out) == values.npos, absent) << GetParam().in << "\n" << out << "\n" << values;
}

INSTANTIATE_TEST_SUITE_P(
    Common, Rules,
    ::testing::Values(Rule{"label", "<x>1</x>", "!<id>"}, Rule{"label", "<id/>", "!<id>"},
                      Rule{"label", "<x>12.346</x>", "<x>12.35</x>"}, Rule{"label", "<x>4mm</x>", "<x>4.00</x>"},
                      Rule{"label", "<x>mm</x>", "<x>0.00</x>"}, Rule{"label", "<x>1</x><x>2</x>", "<x>1.00</x>"},
                      Rule{"label", "<width>3</width>", "<height>10.00</height>"},
                      Rule{"label", "<backcolor>00FFFFFF</backcolor>", "<backcolor>FFFFFF</backcolor>"},
                      Rule{"label", "<backcolor>FFFFFFFF</backcolor>", "!backcolor"},
                      Rule{"label", "<backcolor>ffffffffff</backcolor>", "!backcolor"},
                      Rule{"label", "<color>12</color>", "<color>000012</color>"}, Rule{"label", "<field/>", "!field"},
                      Rule{"label", "<unknown><x>5</x></unknown>", "<x>0.00</x>"}));

INSTANTIATE_TEST_SUITE_P(
    Texts, Rules,
    ::testing::Values(
        Rule{"label", "<horizontalAlign>center</horizontalAlign>", "<horizontalAlign>CENTER<"},
        Rule{"label", "<verticalAlign>TOP</verticalAlign>", "<verticalAlign>TOP<"},
        Rule{"label", "<behavior>BEHAVIOR_NONE</behavior><scrolldelay>9</scrolldelay>", "!scroll"},
        Rule{"label", "<behavior>BEHAVIOR_SCROLL</behavior><scrollamount>0</scrollamount>",
             "<scrollamount>1</scrollamount> <scrolldelay>50</scrolldelay>"},
        Rule{"label", "<behavior>BEHAVIOR_SCROLL</behavior><direction>UP</direction>", "<direction>DIRECTION_LEFT<"},
        Rule{"label", "<font><name>A</name></font>",
             "<font> <name>A</name> <style>NORMAL</style> <orientation>0.00</orientation> <size>0.00</size>"},
        Rule{"label", "", "<size>10.00</size>"}, Rule{"label", "<text/>", "!<text"},
        Rule{"label", "<font><color>0000FF</color></font><color>00FF00</color>", "<color>0000FF</color>"},
        Rule{"label", "<style>nobody</style>", "!<style>nobody"},
        Rule{"formule", "<integers>4</integers><leftPadding>T</leftPadding>", "!leftPadding"},
        Rule{"formule", "<integers>4</integers><leftPadding>1</leftPadding>", "<leftPadding>4</leftPadding>"},
        Rule{"formule", "<decimals>2</decimals><rightPadding>2</rightPadding>", "<rightPadding>2</rightPadding>"},
        Rule{"formule", "", "<integers>-1</integers> <decimals>3</decimals>"},
        Rule{"formule", "<enableVariableDefaultValue>t</enableVariableDefaultValue>", "!enableVariable"},
        Rule{"date", "<value/>", "!<value"}, Rule{"date", "<pattern/>", "<pattern/>"}));

INSTANTIATE_TEST_SUITE_P(
    Pictures, Rules,
    ::testing::Values(Rule{"staticImage", "<image><imageId>a</imageId></image>",
                           "<image> <imageId>a</imageId> <imagePath/> </image>"},
                      Rule{"staticImage", "<image><imagePath>p</imagePath></image>", "!<image"},
                      Rule{"staticImage", "", "<color>C06060</color> <backcolor>00FFFF</backcolor>"},
                      Rule{"dynamicImage", "<variable><id>CAM.SHOT.IMG</id></variable>", "<id>CAM.SHOT.IMG</id>"},
                      Rule{"dynamicImage", "<variable><id>CAM.SHOT</id></variable>", "<id>CAM.SHOT.IMG</id>"},
                      Rule{"dynamicImage", "<variable><id>CAM.SHOT.GOBACK12</id></variable>", "<id>CAM.SHOT.IMG</id>"},
                      Rule{"dynamicImage", "", "<color>C0C0C0</color> <variable>"}));

INSTANTIATE_TEST_SUITE_P(
    GraphBarShape, Rules,
    ::testing::Values(
        Rule{"reportGraph", "<font><orientation>45</orientation></font>", "<orientation>0.00</orientation>"},
        Rule{"reportGraph", "<variable><id>A</id></variable>", "<variable> <id>A</id> </variable>"},
        Rule{"reportGraph", "<variable><id>A</id><width>2</width></variable>",
             "<width>2</width> <ybounds> <fminbind>F</fminbind> <fmaxbind>F</fmaxbind> <minbind>-1</minbind> "
             "<maxbind>-1</maxbind> </ybounds>"},
        Rule{"reportGraph", "<variable><id>A</id><ybounds><minbind>2</minbind></ybounds></variable>", "!ybounds"},
        Rule{"reportGraph", "<variable><id>A</id><width>1</width><ybounds><minbind>0.1</minbind></ybounds></variable>",
             "<minbind>0.1</minbind> <maxbind>-1</maxbind>"},
        Rule{"reportGraph", "<variable><id>A</id><type>PIE</type><style>CIRCLE5X5</style></variable>",
             "<type>LINE</type> <style>DASH</style>"},
        Rule{"reportGraph", "<variable><id>A</id><type>BAR</type><style>DASH</style></variable>",
             "<type>BAR</type> <style>CIRCLE5X5</style>"},
        Rule{"reportGraph", "<variable><id>A</id><style>ZIGZAG</style></variable>", "<style>SOLID</style>"},
        Rule{"reportGraph", "<variable><color>0000FF</color></variable><variable><id>B</id></variable>",
             "<variable> <id>B</id> <color>0000FF</color> </variable>"},
        Rule{"analogBar", "<type>min</type>", "<type>MAX</type>"}, Rule{"analogBar", "", "<type>MAX</type>"},
        Rule{"analogBar", "<type>MIN</type>", "<type>MIN</type>"},
        Rule{"analogBar", "<orientation>V</orientation><positionValue>BOTTOM</positionValue>",
             "<positionValue>LEFT</positionValue>"},
        Rule{"analogBar", "<positionValue>RIGHT</positionValue><orientation>V</orientation>",
             "<positionValue>RIGHT</positionValue>"},
        Rule{"analogBar", "<decimals>2.9</decimals>", "<decimals>2</decimals>"},
        Rule{"analogBar", "<decimals>1e99</decimals>", "<decimals>0</decimals>"},
        Rule{"analogBar", "", "<decimals>3</decimals> <showAnnotation>F</showAnnotation>"},
        Rule{"primitive", "", "<size>0.00</size>"}, Rule{"primitive", "<type>ELLIPSE</type>", "<type>LINE</type>"},
        Rule{"primitive", "<contourType>DOT</contourType>", "<contourType>DOT</contourType> <type>LINE</type>"}));

INSTANTIATE_TEST_SUITE_P(
    ButtonsAndContainers, Rules,
    ::testing::Values(
        Rule{"button", "<text><textStr>x</textStr></text>", "!textStr"},
        Rule{"button", "<visualization>BUTTON</visualization>",
             "<visualization>BUTTON</visualization> <button>T</button>"},
        Rule{"button", "<visualization>BUTTON</visualization><font><orientation>9</orientation></font>",
             "!orientation"},
        Rule{"button", "<visualization>TEXT</visualization><font><orientation>9</orientation></font>",
             "<orientation>9.00</orientation> </font>"},
        Rule{"button", "<visualization>IMAGE</visualization><image><imageId>i</imageId></image>",
             "<visualization>IMAGE</visualization> <image> <imageId>i</imageId> <imagePath/> </image> "
             "<horizontalAlign>"},
        Rule{"forceValues", "<variable><id>[A]</id></variable>", "<id>[A]</id>"},
        Rule{"forceValues", "<variable><id/></variable><variable><value>1</value></variable>", "!<variable"},
        Rule{"forceValues", "<x>1</x><variable><id>A</id><type>user</type></variable>",
             "<variable> <id>A</id> <value/> <type>DIRECT</type> <decimals>0</decimals> </variable> <x>1.00</x>"},
        Rule{"conditioned", "<control><condition>a</condition></control>", "!control"},
        Rule{"conditioned", "<control><label/></control>", "<control> <condition/> <label>"},
        Rule{"conditioned", "<control><reportGraph/><primitive/></control>", "!control"},
        Rule{"conditioned", "<x>7</x><width>8</width><control><label><x>1</x><width>2</width></label></control>",
             "<label> <x>7.00</x> <y>0.00</y> <width>8.00</width>"}));

class Cards : public HostTest {};

RVCardReportGraph ThreeSeries() {
  std::string series;
  for (const char* name : {"A", "B", "C"}) {
    series += "<variable><id>" + std::string(name) +
              "</id><color>1</color><type>BAR</type><style>DOT</style><width>3</width></variable>";
  }
  return Read<RVCardReportGraph>(series);
}

TEST_F(Cards, RemovingASeriesLeavesLineStylesAndWidths) {
  RVCardReportGraph graph = ThreeSeries();
  graph.widths = {1, 2, 3};
  for (const int none : {-1, 3}) EXPECT_FALSE(graph.DeleteVariable(none));
  EXPECT_TRUE(graph.DeleteVariable(0));
  EXPECT_EQ(graph.variables, (std::vector<std::wstring>{L"B", L"C"}));
  EXPECT_EQ(graph.widths, (std::vector<std::int32_t>{1, 2, 3}));
  EXPECT_EQ(graph.lineStyles.size(), 3u);
  for (const std::size_t size : {graph.colors.size(), graph.types.size(), graph.minBind.size(), graph.maxBind.size(),
                                 graph.fminBind.size(), graph.fmaxBind.size()}) {
    EXPECT_EQ(size, 2u);
  }
  graph.Clear();
  EXPECT_TRUE(graph.variables.empty() && graph.widths.empty() && graph.lineStyles.empty());
}

TEST_F(Cards, GraphsCompareNamesColoursAndTypesOfTheirSeries) {
  const RVCardReportGraph graph = ThreeSeries();
  RVCardReportGraph other = graph;
  other.widths[0] = 9;
  other.lineStyles.clear();
  other.maxBind[1] = 5.0;
  other.font.size = 30.0;
  EXPECT_TRUE(other == graph);
  other.types[2] = SeriesType::Line;
  EXPECT_FALSE(other == graph);
  EXPECT_TRUE(other != graph);
}

RVCardConditioned ThreeAlternatives() {
  return Read<RVCardConditioned>(
      "<id>C</id><control><condition>a</condition><label><id>1</id></label></control>"
      "<control><condition>b</condition><date><id>2</id></date></control>"
      "<control><condition>c</condition><staticImage><id>3</id></staticImage></control>");
}

TEST_F(Cards, RemovingAnAlternativeKeepsTheShownOneValid) {
  RVCardConditioned card = ThreeAlternatives();
  EXPECT_EQ(card.current, 0);
  card.current = 2;
  EXPECT_FALSE(card.DeleteCondition(3));
  EXPECT_FALSE(card.DeleteCondition(-1));
  EXPECT_TRUE(card.DeleteCondition(2));
  EXPECT_EQ(card.current, 1);
  EXPECT_TRUE(card.DeleteCondition(0));
  EXPECT_EQ(card.current, 0);
  EXPECT_EQ(card.conditions, std::vector<std::wstring>{L"b"});
  EXPECT_TRUE(card.DeleteCondition(0));
  EXPECT_EQ(card.current, -1);
  EXPECT_EQ(card.Shown(), nullptr);
}

TEST_F(Cards, ContainersCloneDeepAndCompareDeep) {
  const RVCardConditioned card = ThreeAlternatives();
  RVCardConditioned copy;
  copy.conditions.push_back(L"gone");
  copy = card;
  EXPECT_TRUE(copy == card);
  EXPECT_NE(copy.cards[0].get(), card.cards[0].get());
  static_cast<RVCardLabel&>(*copy.cards[0]).text = L"other";
  EXPECT_FALSE(copy == card);
  copy = card;
  copy.conditions.push_back(L"without a card");
  EXPECT_FALSE(copy == card);
  const std::unique_ptr<RVCardControl> clone = copy.GetClone();
  EXPECT_TRUE(*clone == copy) << "each list has its own length";
}

TEST_F(Cards, ContainersHandOnTheirPage) {
  RVReportPage page;
  RVCardConditioned card = ThreeAlternatives();
  EXPECT_THROW(card.cards[0]->GetParent(), std::logic_error);
  card.SetParent(&page);
  EXPECT_EQ(card.cards[2]->GetParent(), &page);
}

TEST_F(Cards, StylesReachInnerCardsAndKeepTheOrientation) {
  const auto write = [this](const char* face) {
    host.WriteCfg("S1.Title.XSTY", "<style><id>S1</id><name>Title</name><font><name>" + std::string(face) +
                                       "</name><size>14</size><orientation>30</orientation></font></style>");
    host->identifiers->invalidateGuid(GuidKind::Styles, true);
  };
  write("Times");
  RVCardConditioned card = Read<RVCardConditioned>(
      "<control><label><color>0000FF</color><style>S1</style></label></control>"
      "<control><forceValues><visualization>TEXT</visualization><style>S1</style></forceValues></control>");
  const auto& label = static_cast<const RVCardLabel&>(*card.cards[0]);
  const auto& button = static_cast<const RVCardButton&>(*card.cards[1]);
  EXPECT_EQ(label.font.face, L"Times");
  EXPECT_EQ(label.orientation, 0.0);
  EXPECT_EQ(label.color, 0xFFu) << "a style without a colour leaves the card's";
  write("Courier");
  card.UpdateStyleFromFile();
  EXPECT_EQ(label.font.face + button.font.face, L"CourierCourier");
  std::filesystem::remove(host.Cfg() / "S1.Title.XSTY");
  host->identifiers->invalidateGuid(GuidKind::Styles, true);
  card.UpdateStyleFromFile();
  EXPECT_EQ(label.font.face + label.styleName, L"CourierTitle") << "a lost style leaves the last font and the name";
}

TEST_F(Cards, ForcedVariablesAreHeldInBracketsAndRemovedTogether) {
  RVCardForceValues card = Read<RVCardForceValues>("<variable><id>A.B</id></variable><variable><id>C</id></variable>");
  EXPECT_EQ(card.variables, (std::vector<std::wstring>{L"[A.B]", L"[C]"}));
  EXPECT_EQ(card.current, 0);
  card.current = 1;
  EXPECT_TRUE(card.DeleteVariable(1));
  EXPECT_EQ(card.current, 0);
  EXPECT_EQ(card.values.size() + card.direct.size() + card.decimals.size(), 3u);
  EXPECT_FALSE(card.DeleteVariable(1));
  card.GetFromXml(XmlDocument("card").Root());
  EXPECT_TRUE(card.variables.empty()) << "reading starts anew";
}

TEST_F(Cards, FlagsAreOneBitOfThirtyFour) {
  RVCardLabel card;
  EXPECT_EQ(card.GetFlags().to_ullong(), 1u << 5);
  EXPECT_TRUE(card.SetFlags(0));
  EXPECT_EQ(card.GetFlags().to_ullong(), 1u);
  for (const int outside : {34, -1}) {
    EXPECT_THROW(card.SetFlags(outside), std::out_of_range);
    EXPECT_TRUE(card.GetFlags().none());
  }
  RVCardLabel other = card;
  other.SetFlags(33);
  EXPECT_FALSE(other == card);
}

}  // namespace
}  // namespace xrpt
