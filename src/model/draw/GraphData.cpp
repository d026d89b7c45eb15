#include "model/draw/GraphData.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "model/NumberFormat.h"
#include "model/draw/AxisScale.h"
#include "model/draw/Shades.h"
#include "platform/SampleData.h"

namespace xrpt {
namespace {

constexpr double kHour = 3600.0;
constexpr double kDay = 86400.0;
constexpr double kMonth = 2678400.0;

constexpr Color kPalette[] = {Rgb(0x1F, 0x7A, 0x8C), Rgb(0xE0, 0x9F, 0x3E), Rgb(0x54, 0x6A, 0x7B),
                              Rgb(0xB2, 0x3A, 0x48), Rgb(0x6A, 0x99, 0x4E), Rgb(0x7B, 0x5E, 0xA7),
                              Rgb(0x3D, 0x5A, 0x80), Rgb(0xC9, 0x7B, 0x63)};

template <class List>
auto EntryOr(const List& list, std::size_t index, typename List::value_type otherwise) {
  return index < list.size() ? static_cast<typename List::value_type>(list[index]) : otherwise;
}

void TakeEnds(GraphSeries& series, const RVCardReportGraph& card, std::size_t i) {
  series.low = UsableEnd(EntryOr(card.fminBind, i, false), EntryOr(card.minBind, i, -1.0));
  series.high = UsableEnd(EntryOr(card.fmaxBind, i, false), EntryOr(card.maxBind, i, -1.0));
  if (series.low && series.high && *series.low >= *series.high) series.low = series.high = std::nullopt;
}

// The variable's usual range, moved inside the ends that are fixed.
SampleRange RangeOf(const GraphSeries& series) {
  SampleRange range = SampleRangeOf(series.name);
  const double width = range.high - range.low;
  const bool inside = (!series.low || range.low >= *series.low) && (!series.high || range.high <= *series.high);
  if (inside) return range;
  const double low = series.low.value_or(series.high.value_or(0.0) - width);
  const double high = series.high.value_or(low + width);
  return {low + (high - low) * 0.15, low + (high - low) * 0.9};
}

GraphSeries SeriesAt(const RVCardReportGraph& card, std::size_t i) {
  GraphSeries series;
  series.name = card.variables[i];
  series.color = EntryOr(card.colors, i, kPalette[i % std::size(kPalette)]);
  series.type = card.TypeOf(i);
  series.style = EntryOr(card.lineStyles, i, 0);
  series.width = std::clamp(EntryOr(card.widths, i, 1), 1, 20);
  TakeEnds(series, card, i);
  series.values = SampleValues(series.name, PeriodCount(card), RangeOf(series));
  return series;
}

std::wstring TwoDigits(int number) { return (number < 10 ? L"0" : L"") + std::to_wstring(number); }

std::wstring PeriodLabel(double seconds, std::size_t index, const LocaleService& locale) {
  const auto i = static_cast<double>(index);
  if (seconds >= kMonth) return locale.MonthName(static_cast<int>(index % 12) + 1).substr(0, 3);
  if (seconds >= kDay) return std::to_wstring(static_cast<int>(std::fmod(i * std::floor(seconds / kDay), 31.0)) + 1);
  const int minutes = static_cast<int>(std::fmod(i * seconds, kDay) / 60.0);
  return TwoDigits(minutes / 60) + L":" + TwoDigits(minutes % 60);
}

void AddPies(std::vector<Plot>& plots, const std::vector<GraphSeries>& series) {
  Plot byVariable{true, {}};
  for (std::size_t i = 0; i < series.size(); ++i) {
    if (series[i].type == SeriesType::CheeseVariable) byVariable.series.push_back(i);
    if (series[i].type == SeriesType::CheesePeriod) plots.push_back({true, {i}});
  }
  if (!byVariable.series.empty()) plots.push_back(byVariable);
}

// One variable's periods are told apart by shades of its colour, going round from dark to pale.
std::vector<PieSlice> PeriodSlices(const GraphSeries& series, const std::vector<std::wstring>& periods) {
  std::vector<PieSlice> slices;
  const auto count = static_cast<double>(series.values.size());
  for (std::size_t i = 0; i < series.values.size(); ++i) {
    const double paleness = count > 1.0 ? 0.7 * static_cast<double>(i) / (count - 1.0) : 0.0;
    slices.push_back({EntryOr(periods, i, {}), Mix(series.color, kWhite, paleness), std::abs(series.values[i]), 0.0});
  }
  return slices;
}

}  // namespace

std::size_t PeriodCount(const RVCardReportGraph& card) {
  return static_cast<std::size_t>(std::clamp<std::int32_t>(card.values, 1, static_cast<std::int32_t>(kMostPeriods)));
}

std::vector<GraphSeries> SeriesOf(const RVCardReportGraph& card) {
  std::vector<GraphSeries> series;
  for (std::size_t i = 0; i < std::min(card.variables.size(), kMostSeries); ++i) series.push_back(SeriesAt(card, i));
  return series;
}

std::vector<Plot> PlotsOf(const std::vector<GraphSeries>& series, bool justOneGraph) {
  std::vector<Plot> plots;
  for (std::size_t i = 0; i < series.size(); ++i) {
    if (series[i].IsPie()) continue;
    if (plots.empty() || !justOneGraph) plots.push_back({});
    plots.back().series.push_back(i);
  }
  AddPies(plots, series);
  if (plots.empty()) plots.push_back({});
  return plots;
}

std::vector<std::wstring> PeriodLabels(std::wstring_view period, std::size_t count, const LocaleService& locale) {
  const double seconds = std::clamp(ReadWholeNumber(period).value_or(kHour), 1.0, kMonth);
  std::vector<std::wstring> labels;
  for (std::size_t i = 0; i < count; ++i) labels.push_back(PeriodLabel(seconds, i, locale));
  return labels;
}

std::vector<PieSlice> SlicesOf(const Plot& pie, const std::vector<GraphSeries>& series,
                               const std::vector<std::wstring>& periods) {
  std::vector<PieSlice> slices;
  if (pie.series.size() == 1 && series[pie.series[0]].type == SeriesType::CheesePeriod) {
    slices = PeriodSlices(series[pie.series[0]], periods);
  } else {
    for (std::size_t i : pie.series) {
      const double sum = std::accumulate(series[i].values.begin(), series[i].values.end(), 0.0);
      slices.push_back({series[i].name, series[i].color, std::abs(sum), 0.0});
    }
  }
  double whole = 0.0;
  for (const PieSlice& slice : slices) whole += slice.value;
  for (PieSlice& slice : slices) slice.share = whole > 0.0 ? slice.value / whole : 0.0;
  return slices;
}

}  // namespace xrpt
