// What each kind of card draws, and that no value a file can hold makes it fail.
#include <chrono>

#include "draw/Drawing.h"
#include "model/CardRegistry.h"
#include "model/DateFormat.h"
#include "model/NumberFormat.h"
#include "model/RVAnalogBar.h"
#include "model/RVCardButton.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardDate.h"
#include "model/RVCardDynamicImage.h"
#include "model/RVCardFormule.h"
#include "model/RVCardImage.h"
#include "model/RVCardPrimitive.h"
#include "model/RVCardReportGraph.h"
#include "model/RVReport.h"
#include "model/draw/AnalogScale.h"

namespace xrpt {
namespace {

using Texts = std::vector<std::wstring>;

struct CardDrawTest : HostTest {};

TEST_F(CardDrawTest, ReadsMomentsAsPeopleWriteThem) {
  const struct {
    const wchar_t* text;
    const wchar_t* shown;
  } rows[] = {
      {L"2026-10-01 07:08:09", L"01/10/2026 07:08:09"},
      {L"01/10/2026 00:00:00", L"01/10/2026 00:00:00"},
      {L"26-10-01", L"01/10/2026 00:00:00"},
      {L"1 October 2026 7:08", L"01/10/2026 07:08:00"},
      {L"Oct 1, 2026 7:08 PM", L"01/10/2026 19:08:00"},
      {L"2026/10/1 12:30 am", L"01/10/2026 00:30:00"},
      {L"2026-02-30", L"-"},
      {L"2026-13-01", L"-"},
      {L"2026-10-01 25:00", L"-"},
      {L"soon", L"-"},
      {L"", L"-"},
      {L"999999999999 1 1", L"-"},
  };
  for (const auto& row : rows) {
    RVDateTime moment{};
    const bool isMoment = host->dates->String2DateTime(row.text, moment);
    const std::wstring shown = isMoment ? ParseDate(L"dd/MM/yyyy HH:mm:ss", moment, *host->locale) : L"-";
    EXPECT_EQ(shown, row.shown) << ToUtf8(row.text);
  }
}

TEST_F(CardDrawTest, DatesFollowTheirPattern) {
  auto card = CardOf<RVCardDate>(60, 10);
  card.value = L"2026-10-01 07:08:09";
  card.pattern = L"EEEE d MMMM yy, HH'h'";
  EXPECT_EQ(Recorded(card).Texts(), Texts{L"Thursday 1 October 26, 07h"});
  card.value = L"not a date";
  card.pattern = L"yyyy";
  EXPECT_GE(ReadWholeNumber(Recorded(card).Texts().at(0)).value_or(0), 2024.0);
}

TEST_F(CardDrawTest, FormulasShowNumbersByTheirFormatAndAllElseAsItStands) {
  const struct {
    const wchar_t* value;
    const wchar_t* shown;
  } rows[] = {{L"1234.5", L"1.234,50"}, {L" -0.5 ", L"-0,50"},      {L"+2e3", L"2.000,00"}, {L"[MAIN.P]", L"[MAIN.P]"},
              {L"12 kW", L"12 kW"},     {L"1.2.3", L"1.2.3"},       {L"0x10", L"0x10"},     {L"inf", L"inf"},
              {L"1e999", L"#"},         {L"Demand/2", L"Demand/2"}, {L".", L"."},           {L"", L""}};
  host.locale->decimal = L",";
  host.locale->thousands = L".";
  RVCardFormule card;
  card.decimals = 2;
  card.thousandSeparator = card.rightPadding = true;
  for (const auto& row : rows) {
    card.value = row.value;
    EXPECT_EQ(card.ShownText(), row.shown) << ToUtf8(row.value);
  }
}

TEST_F(CardDrawTest, LabelsDrawTheirGroundAndStayInside) {
  auto card = CardOf<RVCardLabel>(20, 5);
  card.text = L"A text far too long for its card";
  card.color = Rgb(9, 8, 7);
  RecordingGraphics drawn = Recorded(card);
  EXPECT_EQ(drawn.Count(CallKind::FillRect), 0u);
  EXPECT_EQ(drawn.First(CallKind::Text).color, Rgb(9, 8, 7));
  EXPECT_EQ(drawn.First(CallKind::ClipRect).rect, RectD(38, 38, 114, 57));
  card.backcolor = Rgb(1, 2, 3);
  EXPECT_EQ(Recorded(card).First(CallKind::FillRect).rect, RectD(38, 38, 114, 57));
  card.text = L"fits";
  EXPECT_EQ(Recorded(card).Count(CallKind::ClipRect), 0u);
}

TEST_F(CardDrawTest, TurnedTextsTurnAboutTheCardsCentre) {
  auto card = CardOf<RVCardLabel>(10, 60);
  card.text = L"upwards";
  card.orientation = 90.0;
  const RecordingGraphics drawn = Recorded(card);
  EXPECT_EQ(drawn.First(CallKind::Rotate).first, 90.0);
  EXPECT_EQ(drawn.First(CallKind::Translate).first, 57.0);
  const RectD text = drawn.First(CallKind::Text).rect;
  EXPECT_NEAR(text.left + text.right, 0.0, 0.01);
}

TEST_F(CardDrawTest, MovingTextsMoveWithTimeAndRestAtZero) {
  auto card = CardOf<RVCardLabel>(30, 6);
  card.text = L"news";
  tagDraw draw = DrawAt();
  const double rest = Recorded(card, draw).First(CallKind::Text).rect.left;
  card.animation = {Behavior::Scroll, Direction::Right, 2, 10};
  EXPECT_EQ(Recorded(card, draw).First(CallKind::Text).rect.left, rest);
  draw.animationTime = 100;
  EXPECT_NEAR(Recorded(card, draw).First(CallKind::Text).rect.left, rest + 20.0, 0.01);
}

TEST_F(CardDrawTest, PicturesThatAreMissingLeaveACrossedFrameWithTheirName) {
  auto card = CardOf<RVCardImage>(60, 30);
  card.LoadOriginalImage(L"no-such-picture", L"./");
  const RecordingGraphics drawn = Recorded(card);
  EXPECT_EQ(drawn.Texts(), Texts{L"no-such-picture"});
  EXPECT_EQ(drawn.Count(CallKind::Line), 2u);
  EXPECT_EQ(drawn.Count(CallKind::Rect), 1u);
  card.width = 4.0;
  EXPECT_EQ(Recorded(card).Texts(), Texts{});
}

TEST_F(CardDrawTest, ConditionedCardsDrawTheirAlternativeInTheirOwnRectangle) {
  auto card = CardOf<RVCardConditioned>(40, 10);
  for (const wchar_t* text : {L"first", L"second"}) {
    auto label = std::make_unique<RVCardLabel>();
    label->text = text;
    label->backcolor = kWhite;
    label->x = 150;
    card.cards.push_back(std::move(label));
  }
  tagDraw draw = DrawAt();
  EXPECT_EQ(Recorded(card, draw).Texts(), Texts{});
  card.current = 1;
  const RecordingGraphics drawn = Recorded(card, draw);
  EXPECT_EQ(drawn.Texts(), Texts{L"second"});
  EXPECT_EQ(drawn.First(CallKind::FillRect).rect, RectD(38, 38, 189, 76));
  EXPECT_EQ(drawn.Count(CallKind::FillPolygon), 1u);
  EXPECT_EQ(card.cards[1]->x, 150.0);
  draw.flag1 = 0;
  EXPECT_EQ(Recorded(card, draw).Count(CallKind::FillPolygon), 0u);
}

TEST_F(CardDrawTest, PicturesStandOnTheGroundTheyAreGiven) {
  auto card = CardOf<RVCardImage>(20, 10);
  for (const Color ground : {Rgb(0xFF, 0xFF, 0x00), kWhite, kBlack}) {
    card.backcolor = ground;
    EXPECT_EQ(Recorded(card).First(CallKind::FillRect).color, ground);
  }
  card.backcolor = kNoColor;
  tagDraw paper = DrawAt();
  paper.flag1 = 0;
  EXPECT_EQ(Recorded(card, paper).calls.size(), 0u);
}

TEST_F(CardDrawTest, ShapesKeepTheirContourInside) {
  auto card = CardOf<RVCardPrimitive>(20, 10);
  card.type = PrimitiveType::Box;
  card.size = 1.0;  // millimetre: 4 pixels
  card.contourType = ContourType::DashDot;
  RecordingGraphics drawn = Recorded(card);
  EXPECT_EQ(drawn.First(CallKind::Rect).pen.width, 4.0);
  EXPECT_EQ(drawn.First(CallKind::Rect).pen.style, PenStyle::DashDot);
  EXPECT_EQ(drawn.First(CallKind::Rect).rect, RectD(39.5, 39.5, 111.5, 73.5));
  EXPECT_EQ(drawn.First(CallKind::FillRect).color, kWhite);
  card.isBackTransparent = true;
  card.size = 0.0;
  drawn = Recorded(card);
  EXPECT_EQ(drawn.First(CallKind::FillRect).color, kNoColor);
  EXPECT_EQ(drawn.First(CallKind::Rect).rect, RectD(38, 38, 113, 75));
  card.type = PrimitiveType::Ellipse;
  card.orientation = 30.0;
  EXPECT_EQ(Recorded(card).First(CallKind::Rotate).first, 30.0);
}

TEST_F(CardDrawTest, ButtonsLookLikeWhatTheyAre) {
  RVCardButton card = CardOf<RVCardButton>(40, 15);
  card.text = L"Stop";
  EXPECT_EQ(Recorded(card).Texts(), Texts{});
  card.visualization = Visualization::Button;
  EXPECT_EQ(Recorded(card).Count(CallKind::FillPolygon), 4u);
  EXPECT_EQ(Recorded(card).Texts(), Texts{L"Stop"});
  card.visualization = Visualization::Text;
  card.orientation = 15.0;
  EXPECT_EQ(Recorded(card).First(CallKind::Rotate).first, 15.0);
  card.visualization = Visualization::Image;
  card.imageId = L"gone";
  EXPECT_EQ(Recorded(card).Texts(), Texts{L"gone"});
}

struct AnalogRow {
  const char* what;
  BarBands type;
  VariableKind kind;
  std::vector<std::wstring> numbers;  // min, max, preMin, alarmMin, preMax, alarmMax
  std::vector<double> ends;           // of the bands, from the low end
  std::vector<BandLevel> levels;
};

TEST_F(CardDrawTest, AnalogBarsHaveTheBandsOfTheirThresholds) {
  using L = BandLevel;
  const AnalogRow rows[] = {
      {"both",
       BarBands::MaxMin,
       VariableKind::Normal,
       {L"0", L"100", L"20", L"10", L"80", L"90"},
       {0.1, 0.2, 0.8, 0.9, 1},
       {L::Alarm, L::PreAlarm, L::Normal, L::PreAlarm, L::Alarm}},
      {"upper",
       BarBands::Max,
       VariableKind::Normal,
       {L"0", L"100", L"20", L"10", L"80", L"90"},
       {0.8, 0.9, 1},
       {L::Normal, L::PreAlarm, L::Alarm}},
      {"lower",
       BarBands::Min,
       VariableKind::Normal,
       {L"0", L"100", L"20", L"10", L"80", L"90"},
       {0.1, 0.2, 1},
       {L::Alarm, L::PreAlarm, L::Normal}},
      {"alarm only",
       BarBands::Max,
       VariableKind::Normal,
       {L"0", L"10", L"", L"", L"", L"9"},
       {0.9, 1},
       {L::Normal, L::Alarm}},
      {"expressions",
       BarBands::Max,
       VariableKind::Normal,
       {L"[A.B]", L"[C.D]", L"", L"", L"x*2", L"x*3"},
       {0.8, 0.9, 1},
       {L::Normal, L::PreAlarm, L::Alarm}},
      {"wrong order",
       BarBands::Max,
       VariableKind::Normal,
       {L"0", L"100", L"", L"", L"90", L"80"},
       {0.9, 1},
       {L::Normal, L::Alarm}},
      {"beyond the scale",
       BarBands::Max,
       VariableKind::Normal,
       {L"0", L"100", L"", L"", L"500", L"1e300"},
       {1},
       {L::Normal}},
      {"ends swapped",
       BarBands::Max,
       VariableKind::Normal,
       {L"100", L"0", L"", L"", L"80", L"90"},
       {0.8, 0.9, 1},
       {L::Normal, L::PreAlarm, L::Alarm}},
      {"power factor, lower",
       BarBands::Min,
       VariableKind::Pf,
       {L"0.8", L"1", L"0.95", L"0.9", L"", L""},
       {0.25, 0.375, 0.625, 0.75, 1},
       {L::Alarm, L::PreAlarm, L::Normal, L::PreAlarm, L::Alarm}},
      {"power factor, both",
       BarBands::MaxMin,
       VariableKind::Pf,
       {L"0.5", L"0.8", L"", L"0.75", L"", L"0.9"},
       {0.25, 0.75, 1},
       {L::Alarm, L::Normal, L::Alarm}},
      {"nothing", BarBands::MaxMin, VariableKind::Normal, {L"", L"", L"", L"", L"", L""}, {1}, {L::Normal}},
  };
  for (const AnalogRow& row : rows) {
    RVAnalogBar card;
    card.type = row.type;
    card.typeVar = row.kind;
    std::wstring* const texts[] = {&card.minValue,      &card.maxValue,    &card.preMinValue,
                                   &card.alarmMinValue, &card.preMaxValue, &card.alarmMaxValue};
    for (std::size_t i = 0; i < 6; ++i) *texts[i] = row.numbers[i];
    const AnalogScale scale = ScaleOf(card, {});
    ASSERT_EQ(scale.bands.size(), row.ends.size()) << row.what;
    for (std::size_t i = 0; i < row.ends.size(); ++i) {
      EXPECT_NEAR(scale.bands[i].to, row.ends[i], 1e-9) << row.what << ' ' << i;
      EXPECT_EQ(scale.bands[i].level, row.levels[i]) << row.what << ' ' << i;
    }
    EXPECT_EQ(LevelAt(scale, scale.value), BandLevel::Normal) << row.what;
  }
}

TEST_F(CardDrawTest, AnalogBarsWriteTheValueOnTheSideAskedFor) {
  RVAnalogBar card = CardOf<RVAnalogBar>(80, 15);
  card.minValue = L"0";
  card.maxValue = L"100";
  card.decimals = 1;
  const auto textSide = [&card](bool vertical) {
    const RecordingGraphics drawn = Recorded(card);
    const RectD text = drawn.First(CallKind::Text).rect;
    const RectD track = drawn.First(CallKind::Rect).rect;
    return vertical ? text.right < track.left + 1 : text.bottom < track.top + 1;
  };
  EXPECT_TRUE(textSide(false));
  card.positionValue = ValuePosition::After;
  EXPECT_FALSE(textSide(false));
  card.showAnnotation = true;
  EXPECT_EQ(Recorded(card).Texts(), (Texts{Recorded(card).Texts()[0], L"0", L"100"}));
  card.showAnnotation = false;
  card.orientation = BarOrientation::Vertical;
  std::swap(card.width, card.height);
  EXPECT_FALSE(textSide(true));
  card.positionValue = ValuePosition::Before;
  EXPECT_TRUE(textSide(true));
}

TEST_F(CardDrawTest, AnalogBarsLeaveOutMarksThatWouldTouchOthers) {
  RVAnalogBar card = CardOf<RVAnalogBar>(80, 20);
  card.minValue = L"0";
  card.maxValue = L"100";
  card.preMaxValue = L"97.5";
  card.alarmMaxValue = L"98.5";
  card.preMinValue = L"40";
  card.alarmMinValue = L"39.9";
  card.showAnnotation = true;
  const Texts texts = Recorded(card).Texts();
  EXPECT_EQ(Texts(texts.begin() + 1, texts.end()), (Texts{L"0", L"100", L"39.9"}));
}

// Every kind, filled so that all its branches have something to draw.
std::vector<std::unique_ptr<RVCardControl>> OneOfEach() {
  std::vector<std::unique_ptr<RVCardControl>> cards;
  for (const RegistryRow& row : CardRegistry()) cards.push_back(row.kind().Create());
  for (const auto& card : cards) {
    if (auto* label = dynamic_cast<RVCardLabel*>(card.get())) label->text = L"Some text of two lines\nor three";
    if (auto* formule = dynamic_cast<RVCardFormule*>(card.get())) formule->value = L"1e308";
    if (auto* button = dynamic_cast<RVCardButton*>(card.get())) button->visualization = Visualization::Button;
    if (auto* graph = dynamic_cast<RVCardReportGraph*>(card.get())) {
      graph->variables = {L"A.P", L"B.P", L"C.P", L"D.P"};
      graph->types = {SeriesType::Line, SeriesType::Bar, SeriesType::Point, SeriesType::CheesePeriod};
      graph->viewLegends = graph->viewTexts = true;
    }
    if (auto* conditioned = dynamic_cast<RVCardConditioned*>(card.get())) {
      conditioned->cards.push_back(std::make_unique<RVCardLabel>());
      conditioned->current = 0;
    }
  }
  return cards;
}

// A report with one of each kind, read, painted and written.
std::string WorkOn(Host& services, const Path& file, RecordingGraphics& graphics) {
  RVReport report(services);
  EXPECT_TRUE(report.LoadFile(file).loaded);
  const RVReportPage& page = *report.pages.front();
  PaintPage(graphics, page, DrawAt());
  for (std::size_t i = 0; i < page.cards.Size(); ++i) page.cards[i].Draw(graphics, DrawAt());
  return report.TemplateText();
}

TEST_F(CardDrawTest, APageNeedsNoInstalledHost) {
  RVReport made;
  RVCardConditioned container;
  for (auto& card : OneOfEach()) {
    if (NewPageCard(card->GetRuntimeClass().tag)) {
      made.pages.front()->cards.PushBack(std::move(card));
    } else {
      container.cards.push_back(std::move(card));
    }
  }
  made.pages.front()->cards.PushBack(container.GetClone());
  const Path file = TestHost::WriteFile(host.Folder() / "all.xrpt", made.TemplateText());
  RecordingGraphics installed;
  RecordingGraphics handed;
  const int before = host.guids->count;
  const std::string expected = WorkOn(*host, file, installed);
  Host* const kept = InstallHost(nullptr);
  host.guids->count = before;
  EXPECT_EQ(WorkOn(*kept, file, handed), expected);
  InstallHost(kept);
  EXPECT_GT(installed.calls.size(), 100u);
  EXPECT_EQ(handed.calls.size(), installed.calls.size());
  EXPECT_EQ(handed.Texts(), installed.Texts());
}

const double kHostile[] = {0.0,
                           -5.0,
                           0.001,
                           1e9,
                           1e300,
                           -1e300,
                           std::nan(""),
                           std::numeric_limits<double>::infinity(),
                           -std::numeric_limits<double>::infinity()};
constexpr std::size_t kMostCalls = 60'000;

TEST_F(CardDrawTest, HostilePlacesAndSizesAreDrawnInBoundedSteps) {
  for (const auto& card : OneOfEach()) {
    for (double value : kHostile) {
      for (double* member : {&card->x, &card->y, &card->width, &card->height}) {
        const double kept = *member;
        *member = value;
        EXPECT_LT(Recorded(*card).calls.size(), kMostCalls) << card->GetRuntimeClass().tag << ' ' << value;
        *member = kept;
      }
      card->width = card->height = value;
      EXPECT_LT(Recorded(*card).calls.size(), kMostCalls) << card->GetRuntimeClass().tag << ' ' << value;
      card->width = card->height = 40.0;
      for (double tagDraw::*member :
           std::initializer_list<double tagDraw::*>{&tagDraw::zoom, &tagDraw::fontFactor, &tagDraw::pixelsPerMmY,
                                                    &tagDraw::pageWidthPx, &tagDraw::pageHeight, &tagDraw::offsetX}) {
        tagDraw draw = DrawAt();
        draw.*member = value;
        EXPECT_LT(Recorded(*card, draw).calls.size(), kMostCalls) << card->GetRuntimeClass().tag << ' ' << value;
      }
    }
  }
}

TEST_F(CardDrawTest, HostileFieldsAreDrawnInBoundedSteps) {
  const auto began = std::chrono::steady_clock::now();
  auto label = CardOf<RVCardLabel>(40, 40);
  auto primitive = CardOf<RVCardPrimitive>(40, 40);
  auto graph = CardOf<RVCardReportGraph>(100, 80);
  label.text = std::wstring(1'000'000, L'w');
  graph.variables.assign(100'000, std::wstring(500, L'v'));
  graph.values = 2'000'000'000;
  graph.viewLegends = graph.viewTexts = true;
  graph.fminBind.assign(4, true);
  graph.fmaxBind.assign(4, true);
  for (double value : kHostile) {
    label.font.size = label.orientation = value;
    EXPECT_LT(Recorded(label).calls.size(), kMostCalls) << value;
    for (PrimitiveType type : {PrimitiveType::Line, PrimitiveType::Box, PrimitiveType::Ellipse}) {
      primitive.type = type;
      primitive.size = primitive.orientation = value;
      EXPECT_LT(Recorded(primitive).calls.size(), 20u) << value;
    }
    graph.font.size = value;
    graph.minBind = {value, 0, -value, value};
    graph.maxBind = {value, value, value, 0};
    EXPECT_LT(Recorded(graph).calls.size(), kMostCalls) << value;
  }
  EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(20));
}

}  // namespace
}  // namespace xrpt
