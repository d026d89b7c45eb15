// What a report graph shows: scales, axes, plots, labels; and that its texts keep apart and inside the card.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <set>

#include "draw/Drawing.h"
#include "model/RVCardReportGraph.h"
#include "model/draw/GraphAxes.h"
#include "platform/SampleData.h"

namespace xrpt {
namespace {

TEST(AxisScale, HasFewRoundTicks) {
  const struct {
    double low, high;
    int most;
    bool fixLow, fixHigh;
    AxisScale scale;
  } rows[] = {
      {0, 100, 6, false, false, {0, 100, 20, 0}},
      {3, 97, 6, false, false, {0, 100, 20, 0}},
      {0, 1, 6, false, false, {0, 1, 0.2, 1}},
      {0.0012, 0.0049, 5, false, false, {0.001, 0.005, 0.001, 3}},
      {-7, 4, 5, false, false, {-10, 5, 5, 0}},
      {227, 236, 8, false, false, {226, 236, 2, 0}},
      {0, 1600, 9, true, true, {0, 1600, 200, 0}},
      {-5, 45, 7, true, true, {-5, 45, 10, 0}},
      {5, 5, 6, false, false, {5, 6, 0.2, 1}},
      {10, 0, 6, false, false, {0, 10, 2, 0}},
      {std::nan(""), 10, 6, false, false, {0, 10, 2, 0}},
      {0, std::numeric_limits<double>::infinity(), 6, false, false, {0, 1, 0.2, 1}},
  };
  for (const auto& row : rows) {
    const AxisScale scale = MakeAxisScale(row.low, row.high, row.most, row.fixLow, row.fixHigh);
    EXPECT_NEAR(scale.low, row.scale.low, 1e-9) << row.low << " to " << row.high;
    EXPECT_NEAR(scale.high, row.scale.high, 1e-9) << row.low << " to " << row.high;
    EXPECT_NEAR(scale.step, row.scale.step, 1e-9) << row.low << " to " << row.high;
    EXPECT_EQ(scale.decimals, row.scale.decimals) << row.low << " to " << row.high;
  }
}

TEST(AxisScale, TicksAreMultiplesOfTheStepBetweenFixedEnds) {
  const std::vector<double> ticks = MakeAxisScale(-5, 45, 7, true, true).Ticks();
  EXPECT_EQ(ticks, (std::vector<double>{0, 10, 20, 30, 40}));
}

RC_GTEST_PROP(AxisScale, CoversEveryRangeWithinItsBudget, (double a, double b, bool fixLow, bool fixHigh)) {
  for (int most : {3, 5, 9, 20}) {
    const AxisScale scale = MakeAxisScale(a, b, most, fixLow, fixHigh);
    RC_ASSERT(scale.high > scale.low);
    RC_ASSERT(scale.Ticks().size() <= static_cast<std::size_t>(most));
    RC_ASSERT(scale.decimals >= 0 && scale.decimals <= 9);
  }
}

GraphSeries SeriesOf(double low, double high, std::optional<double> fixedLow = {}, std::optional<double> fixedHigh = {},
                     SeriesType type = SeriesType::Line) {
  GraphSeries series;
  series.values = {low, high};
  series.low = fixedLow;
  series.high = fixedHigh;
  series.type = type;
  return series;
}

TEST(GraphAxes, SeriesShareAnAxisOrHaveTheirOwn) {
  using Axes = std::vector<std::size_t>;
  const struct {
    const char* what;
    std::vector<GraphSeries> series;
    Axes axisOf;
    SizeD left;  // low and high
  } rows[] = {
      {"alike", {SeriesOf(200, 900), SeriesOf(50, 700)}, {0, 0}, {0, 1000}},
      {"of other size", {SeriesOf(1, 4), SeriesOf(227, 236)}, {0, 1}, {0, 4}},
      {"fills the fixed", {SeriesOf(100, 1500, 0, 1600), SeriesOf(300, 900)}, {0, 0}, {0, 1600}},
      {"too small for the fixed", {SeriesOf(100, 1500, 0, 1600), SeriesOf(1, 5)}, {0, 1}, {0, 1600}},
      {"same ends", {SeriesOf(1, 5, 0, 8), SeriesOf(2, 3, 0, 8)}, {0, 0}, {0, 8}},
      {"the first is left", {SeriesOf(900, 2500), SeriesOf(10, 40, -5, 45)}, {0, 1}, {0, 2500}},
      {"three", {SeriesOf(1, 5, 0, 8), SeriesOf(2, 3, 0, 4), SeriesOf(60, 90, 0, 100)}, {0, 1, 1}, {0, 8}},
      {"one end", {SeriesOf(20, 900, {}, 1200), SeriesOf(50, 700)}, {0, 0}, {0, 1200}},
      {"an end others pass", {SeriesOf(200, 900, 150), SeriesOf(50, 700)}, {0, 0}, {0, 1000}},
      {"bars stand on 0", {SeriesOf(800, 900, {}, {}, SeriesType::Bar)}, {0}, {0, 1000}},
      {"lines need not", {SeriesOf(800, 900)}, {0}, {800, 900}},
      {"none", {}, {}, {0, 1}},
  };
  for (const auto& row : rows) {
    std::vector<const GraphSeries*> series;
    for (const GraphSeries& one : row.series) series.push_back(&one);
    const GraphAxes axes = AxesOf(series, 6);
    EXPECT_EQ(axes.axisOf, row.axisOf) << row.what;
    EXPECT_NEAR(axes.scales[0].low, row.left.width, 1e-9) << row.what;
    EXPECT_NEAR(axes.scales[0].high, row.left.height, 1e-9) << row.what;
  }
}

void Add(RVCardReportGraph& card, const std::wstring& name, SeriesType type, int style = 0) {
  card.variables.push_back(name);
  card.types.push_back(type);
  card.colors.push_back(Rgb(0x20, 0x60, 0xA0));
  card.lineStyles.push_back(style);
  card.widths.push_back(1);
  card.fminBind.push_back(false);
  card.fmaxBind.push_back(false);
  card.minBind.push_back(-1);
  card.maxBind.push_back(-1);
}

struct GraphTest : HostTest {
  RVCardReportGraph Graph(double width, double height, std::initializer_list<SeriesType> types) {
    auto card = CardOf<RVCardReportGraph>(width, height);
    int i = 0;
    for (SeriesType type : types) {
      Add(card, L"LN" + std::to_wstring(i + 1) + L".AE", type, i % 8);
      ++i;
    }
    card.period = L"3600";
    card.values = 12;
    return card;
  }
};

TEST_F(GraphTest, EverySeriesHasItsPlot) {
  using T = SeriesType;
  const struct {
    std::vector<T> types;
    bool justOne;
    std::vector<std::size_t> seriesOfPlots;
    std::size_t pies;
  } rows[] = {{{T::Line, T::Bar, T::Point}, true, {3}, 0},
              {{T::Line, T::Bar, T::Point}, false, {1, 1, 1}, 0},
              {{T::CheeseVariable, T::CheeseVariable}, false, {2}, 1},
              {{T::CheesePeriod, T::CheesePeriod}, true, {1, 1}, 2},
              {{T::Line, T::CheesePeriod, T::CheeseVariable}, true, {1, 1, 1}, 2},
              {{}, true, {0}, 0}};
  for (const auto& row : rows) {
    auto card = Graph(80, 60, {});
    for (T type : row.types) Add(card, L"M.P", type);
    const std::vector<Plot> plots = PlotsOf(SeriesOf(card), row.justOne);
    std::vector<std::size_t> counts;
    std::size_t pies = 0;
    for (const Plot& plot : plots) {
      counts.push_back(plot.series.size());
      pies += plot.isPie ? 1 : 0;
    }
    EXPECT_EQ(counts, row.seriesOfPlots);
    EXPECT_EQ(pies, row.pies);
  }
}

TEST_F(GraphTest, SeriesWithShortListsAreDrawnAllTheSame) {
  auto card = Graph(80, 60, {});
  card.variables = {L"A.P", L"B.P", L"C.P"};
  card.colors = {kBlack};
  const std::vector<GraphSeries> series = SeriesOf(card);
  ASSERT_EQ(series.size(), 3u);
  EXPECT_EQ(series[0].color, kBlack);
  EXPECT_NE(series[1].color, series[2].color);
  EXPECT_EQ(series[2].values.size(), 12u);
  EXPECT_EQ(Recorded(card).Count(CallKind::Polyline), 3u);
}

TEST_F(GraphTest, SampleDataIsTheNamesAloneAndStaysInsideFixedEnds) {
  EXPECT_EQ(SampleValues(L"M.P", 20, {0, 10}), SampleValues(L"M.P", 20, {0, 10}));
  EXPECT_NE(SampleShape(L"M.P1", 3), SampleShape(L"M.P2", 3));
  auto card = Graph(80, 60, {SeriesType::Line});
  card.fminBind[0] = card.fmaxBind[0] = true;
  card.minBind[0] = 0.0;
  card.maxBind[0] = 0.5;
  const std::vector<double> values = SeriesOf(card)[0].values;
  EXPECT_GE(*std::min_element(values.begin(), values.end()), 0.0);
  EXPECT_LE(*std::max_element(values.begin(), values.end()), 0.5);
}

TEST_F(GraphTest, NamesThePeriods) {
  using Labels = std::vector<std::wstring>;
  const LocaleService& locale = *CurrentHost().locale;
  EXPECT_EQ(PeriodLabels(L"900", 3, locale), (Labels{L"00:00", L"00:15", L"00:30"}));
  EXPECT_EQ(PeriodLabels(L"AUTO", 2, locale), (Labels{L"00:00", L"01:00"}));
  EXPECT_EQ(PeriodLabels(L"86400", 2, locale), (Labels{L"1", L"2"}));
  EXPECT_EQ(PeriodLabels(L"2678400", 2, locale), (Labels{L"Jan", L"Feb"}));
  EXPECT_EQ(PeriodLabels(L"-1e99", 2, locale), (Labels{L"00:00", L"00:00"}));
}

TEST_F(GraphTest, SlicesAreShares) {
  auto card = Graph(80, 60, {SeriesType::CheesePeriod});
  const std::vector<GraphSeries> series = SeriesOf(card);
  const Plot pie = PlotsOf(series, true)[0];
  const std::vector<PieSlice> slices = SlicesOf(pie, series, PeriodLabels(L"3600", 12, *CurrentHost().locale));
  ASSERT_EQ(slices.size(), 12u);
  double whole = 0.0;
  std::set<Color> colors;
  for (const PieSlice& slice : slices) {
    whole += slice.share;
    colors.insert(slice.color);
  }
  EXPECT_NEAR(whole, 1.0, 1e-12);
  EXPECT_EQ(colors.size(), 12u);
}

TEST_F(GraphTest, ShowsWhatItsSwitchesSay) {
  auto card = Graph(120, 70, {SeriesType::Line});
  const auto has = [&card](const wchar_t* text) {
    const auto texts = Recorded(card).Texts();
    return std::count(texts.begin(), texts.end(), text) > 0;
  };
  EXPECT_TRUE(has(L"00:00"));
  EXPECT_FALSE(has(L"LN1.AE"));
  card.hideXAxisLabels = true;
  EXPECT_FALSE(has(L"00:00"));
  card.viewLegends = true;
  EXPECT_TRUE(has(L"LN1.AE"));
  const std::size_t before = Recorded(card).Texts().size();
  card.viewTexts = true;
  EXPECT_GT(Recorded(card).Texts().size(), before + 5);
  card.backgroundColor = Rgb(1, 2, 3);
  EXPECT_EQ(Recorded(card).First(CallKind::FillRect).color, Rgb(1, 2, 3));
  card.transparent = true;
  EXPECT_EQ(Recorded(card).Count(CallKind::FillRect), 0u);
}

TEST_F(GraphTest, LineStylesAndMarkersDiffer) {
  std::set<PenStyle> pens;
  for (int style = 0; style < 5; ++style) {
    auto card = Graph(80, 60, {});
    Add(card, L"M.P", SeriesType::Line, style);
    pens.insert(Recorded(card).First(CallKind::Polyline).pen.style);
  }
  EXPECT_EQ(pens.size(), 5u);
  const CallKind marks[] = {CallKind::FillEllipse, CallKind::Ellipse, CallKind::Rect, CallKind::Polygon,
                            CallKind::Line,        CallKind::Line,    CallKind::Line, CallKind::Line};
  for (int style = 0; style < 8; ++style) {
    auto card = Graph(80, 60, {});
    const std::size_t bare = Recorded(card).Count(marks[style]);
    Add(card, L"M.P", SeriesType::Point, style);
    EXPECT_GE(Recorded(card).Count(marks[style]), bare + 12) << style;
  }
}

// The ink of a text, generously: what other texts must keep out of.
RectD InkOf(const DrawCall& call) {
  return {call.rect.left, call.rect.bottom - call.pixelSize * 0.7, call.rect.right, call.rect.bottom};
}

bool Overlap(const RectD& a, const RectD& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

// Texts that are turned have a frame of their own and are left aside.
std::vector<const DrawCall*> LevelTexts(const RecordingGraphics& graphics) {
  std::vector<const DrawCall*> texts;
  bool turned = false;
  for (const DrawCall& call : graphics.calls) {
    if (call.kind == CallKind::Rotate) turned = true;
    if (call.kind == CallKind::Restore) turned = false;
    if (call.kind == CallKind::Text && !turned) texts.push_back(&call);
  }
  return texts;
}

TEST_F(GraphTest, TextsNeitherOverlapNorLeaveTheCard) {
  using T = SeriesType;
  const std::initializer_list<T> mixes[] = {{T::Line},
                                            {T::Bar, T::Bar, T::Bar},
                                            {T::Line, T::Bar, T::Point, T::Line},
                                            {T::CheeseVariable, T::CheeseVariable, T::CheeseVariable},
                                            {T::CheesePeriod},
                                            {T::Line, T::CheesePeriod, T::CheeseVariable, T::CheeseVariable}};
  int texts = 0;
  for (const auto& mix : mixes) {
    for (const SizeD size : {SizeD{40, 30}, SizeD{80, 60}, SizeD{170, 60}, SizeD{60, 120}, SizeD{250, 150}}) {
      for (bool justOne : {true, false}) {
        for (int values : {1, 6, 31, 300}) {
          auto card = Graph(size.width, size.height, mix);
          card.justOneGraph = justOne;
          card.values = values;
          card.viewLegends = card.viewTexts = true;
          const RecordingGraphics drawn = Recorded(card);
          const RectD whole(CardPixelRect(DrawAt(), card.x, card.y, card.width, card.height));
          const auto level = LevelTexts(drawn);
          texts += static_cast<int>(level.size());
          for (std::size_t i = 0; i < level.size(); ++i) {
            const RectD ink = InkOf(*level[i]);
            ASSERT_TRUE(ink.left >= whole.left - 1 && ink.right <= whole.right + 1 && ink.top >= whole.top - 1 &&
                        ink.bottom <= whole.bottom + 1)
                << ToUtf8(level[i]->text) << " leaves " << size.width << "x" << size.height << ", " << values;
            for (std::size_t j = 0; j < i; ++j) {
              ASSERT_FALSE(Overlap(ink, InkOf(*level[j])))
                  << ToUtf8(level[i]->text) << " over " << ToUtf8(level[j]->text) << " on " << size.width << "x"
                  << size.height << ", " << values << " values";
            }
          }
        }
      }
    }
  }
  EXPECT_GT(texts, 1000);
}

}  // namespace
}  // namespace xrpt
