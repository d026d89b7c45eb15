// What a report graph shows, made ready for drawing: complete series on sample data, the plots they share, the labels
// of the periods. Pure rules over the card's fields.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/RVCardReportGraph.h"
#include "platform/Host.h"

namespace xrpt {

struct GraphSeries {
  std::wstring name;
  Color color = kBlack;
  SeriesType type = SeriesType::Line;
  std::int32_t style = 0;  // pen of a line, marker of everything else
  double width = 1.0;      // screen pixels
  std::vector<double> values;
  std::optional<double> low;  // fixed ends of its axis
  std::optional<double> high;

  bool IsPie() const { return type == SeriesType::CheeseVariable || type == SeriesType::CheesePeriod; }
};

// Of a file's thousands, as many as a graph can show.
inline constexpr std::size_t kMostSeries = 40;
inline constexpr std::size_t kMostPeriods = 400;

// How many periods the card shows, at least one.
std::size_t PeriodCount(const RVCardReportGraph& card);
// Series with every gap of the card's lists filled. Values lie inside ends that are fixed.
std::vector<GraphSeries> SeriesOf(const RVCardReportGraph& card);

// One frame of the graph: series against time, or one pie.
struct Plot {
  bool isPie = false;
  std::vector<std::size_t> series;
};

// All lines, bars and points in one plot, or each in its own; one pie for all variables shown by variable, and one for
// each variable shown by period. At least one plot.
std::vector<Plot> PlotsOf(const std::vector<GraphSeries>& series, bool justOneGraph);

// Times of day, days of the month or months, by the length of a period. A period that is no number counts as an hour.
std::vector<std::wstring> PeriodLabels(std::wstring_view period, std::size_t count, const LocaleService& locale);

// The slices of a pie.
struct PieSlice {
  std::wstring name;
  Color color = kBlack;
  double value = 0.0;
  double share = 0.0;  // of the whole
};
std::vector<PieSlice> SlicesOf(const Plot& pie, const std::vector<GraphSeries>& series,
                               const std::vector<std::wstring>& periods);

}  // namespace xrpt
