// Report graphs: the ground, the legend, and the plots in what is left.
#include <algorithm>

#include "model/RVCardReportGraph.h"
#include "model/draw/GraphLegend.h"

namespace xrpt {
namespace {

constexpr double kMargin = 4.0;
constexpr double kLegendShare = 0.34;   // of the height, at most
constexpr double kLegendBeside = 0.45;  // of the width, at most
constexpr double kPlotGap = 4.0;
constexpr double kLowest = 3.4;      // lines of text high, a plot can be read
constexpr double kNarrowest = 12.0;  // and so many wide
constexpr double kWide = 1.25;       // a frame that is this much wider than high has its legend beside the pie

class GraphPainter {
 public:
  GraphPainter(const GraphCanvas& canvas)
      : canvas_(canvas),
        series_(SeriesOf(canvas.card)),
        plots_(PlotsOf(series_, canvas.card.justOneGraph)),
        frame_(kMargin, kMargin, canvas.area.points.width - kMargin, canvas.area.points.height - kMargin) {}

  void Paint() {
    if (plots_.size() == 1 && plots_[0].isPie) return PaintOnePie();
    if (canvas_.card.viewLegends) PaintLegendBelow(EntriesOfSeries());
    PaintPlots();
  }

 private:
  std::vector<LegendEntry> EntriesOfSeries() const {
    std::vector<LegendEntry> entries;
    for (const GraphSeries& series : series_) entries.push_back({series.name, series.color, &series});
    return entries;
  }
  // Small slices have no room for their share, so the legend says it.
  std::vector<LegendEntry> EntriesOfSlices(const std::vector<PieSlice>& slices) const {
    std::vector<LegendEntry> entries;
    for (const PieSlice& slice : slices) {
      std::wstring text = slice.name;
      if (canvas_.card.viewTexts) text += L"  " + canvas_.Number(slice.value, slice.value < 100.0 ? 1 : 0);
      entries.push_back({text, slice.color, nullptr});
    }
    return entries;
  }

  void PaintLegendBelow(std::vector<LegendEntry> entries) {
    const Legend legend(canvas_, std::move(entries), {frame_.Width(), frame_.Height() * kLegendShare});
    if (legend.IsEmpty()) return;
    legend.Draw({frame_.left + (frame_.Width() - legend.Width()) * 0.5, frame_.bottom - legend.Height()});
    frame_.bottom -= legend.Height() + kPlotGap;
  }

  // Beside the pie, in one column if all fit under each other, else in a second or third.
  void PaintLegendBeside(const std::vector<LegendEntry>& entries) {
    constexpr std::size_t kMostColumns = 3;
    const SizeD most{frame_.Width() * kLegendBeside, frame_.Height()};
    for (std::size_t columns = 1; columns <= kMostColumns; ++columns) {
      const Legend legend(canvas_, entries, most, columns);
      if (legend.IsEmpty()) return;
      if (legend.Count() < entries.size() && columns < kMostColumns) continue;
      legend.Draw({frame_.right - legend.Width(), frame_.Center().y - legend.Height() * 0.5});
      frame_.right -= legend.Width() + 2.0 * kPlotGap;
      return;
    }
  }

  void PaintOnePie() {
    const std::vector<PieSlice> slices = SlicesOf(plots_[0], series_, canvas_.periods);
    if (canvas_.card.viewLegends) {
      if (frame_.Width() > frame_.Height() * kWide) {
        PaintLegendBeside(EntriesOfSlices(slices));
      } else {
        PaintLegendBelow(EntriesOfSlices(slices));
      }
    }
    DrawPie(canvas_, slices, frame_);
  }

  // Plots against time one under the other, pies side by side in a row below them.
  void PaintPlots() {
    const auto pies = static_cast<std::size_t>(
        std::count_if(plots_.begin(), plots_.end(), [](const Plot& plot) { return plot.isPie; }));
    const std::size_t timePlots = plots_.size() - pies;
    const double rows = static_cast<double>(timePlots) + (pies > 0 ? 1.0 : 0.0);
    RectD timeFrame = frame_;
    timeFrame.bottom -= pies > 0 ? (frame_.Height() + kPlotGap) / rows : 0.0;
    if (timePlots > 0) PaintTimePlots(timeFrame, timePlots);
    if (pies > 0) {
      PaintPies(
          {frame_.left, frame_.bottom - (frame_.Height() + kPlotGap) / rows + kPlotGap, frame_.right, frame_.bottom},
          pies);
    }
  }

  // Plots too low to be read go into columns, as long as they stay wide enough.
  std::size_t ColumnsFor(const RectD& frame, std::size_t count) const {
    std::size_t columns = 1;
    const auto rows = [count](std::size_t n) { return static_cast<double>((count + n - 1) / n); };
    while (columns < count && frame.Height() / rows(columns) < kLowest * canvas_.lineHeight &&
           frame.Width() / static_cast<double>(columns + 1) > kNarrowest * canvas_.lineHeight) {
      ++columns;
    }
    return columns;
  }

  // The names of the periods stand once, under the last plot of a column, which is so much higher.
  std::vector<TimePlotFrame> TimeFrames(const RectD& frame, std::size_t count) const {
    const std::size_t columns = ColumnsFor(frame, count);
    const std::size_t rows = (count + columns - 1) / columns;
    const double names = canvas_.card.hideXAxisLabels ? 0.0 : canvas_.lineHeight;
    const double height = (frame.Height() - names + kPlotGap) / static_cast<double>(rows);
    const double width = (frame.Width() + kPlotGap) / static_cast<double>(columns);
    std::vector<TimePlotFrame> frames;
    for (std::size_t i = 0; i < count; ++i) {
      const double left = frame.left + static_cast<double>(i / rows) * width;
      const double top = frame.top + static_cast<double>(i % rows) * height;
      const bool last = (i + 1) % rows == 0 || i + 1 == count;
      const double bottom = top + height - kPlotGap + (last ? names : 0.0);
      frames.push_back({{left, top, left + width - kPlotGap, bottom}, last, 0.0});
    }
    return frames;
  }

  void PaintTimePlots(const RectD& frame, std::size_t count) const {
    std::vector<TimePlotFrame> frames = TimeFrames(frame, count);
    std::vector<std::vector<const GraphSeries*>> series;
    double axis = 0.0;
    for (const Plot& plot : plots_) {
      if (plot.isPie) continue;
      series.push_back(SeriesIn(plot));
      axis = std::max(axis, LeftAxisWidth(canvas_, series.back(), frames[series.size() - 1]));
    }
    for (std::size_t i = 0; i < frames.size(); ++i) {
      frames[i].leastAxis = axis;
      DrawTimePlot(canvas_, series[i], frames[i]);
    }
  }

  std::vector<const GraphSeries*> SeriesIn(const Plot& plot) const {
    std::vector<const GraphSeries*> shown;
    for (std::size_t i : plot.series) shown.push_back(&series_[i]);
    return shown;
  }

  void PaintPies(const RectD& frame, std::size_t count) const {
    const double width = frame.Width() / static_cast<double>(count);
    double left = frame.left;
    for (const Plot& plot : plots_) {
      if (!plot.isPie) continue;
      DrawPie(canvas_, SlicesOf(plot, series_, canvas_.periods), {left, frame.top, left + width, frame.bottom});
      left += width;
    }
  }

  const GraphCanvas& canvas_;
  std::vector<GraphSeries> series_;
  std::vector<Plot> plots_;
  RectD frame_;
};

}  // namespace

void RVCardReportGraph::Draw(Graphics& graphics, const tagDraw& draw) const {
  const CardArea area = AreaOf(*this, draw);
  if (area.IsEmpty()) return;
  const GraphicsState state(graphics);
  graphics.ClipRect(area.device);
  DrawGround(graphics, area, backcolor);
  if (!transparent) DrawGround(graphics, area, backgroundColor);
  GraphPainter(GraphCanvas(graphics, *this, area)).Paint();
}

}  // namespace xrpt
