// Report graphs: the ground, the legend, and the plots in what is left.
#include "model/RVCardReportGraph.h"
#include "model/draw/GraphLegend.h"

namespace xrpt {
namespace {

constexpr double kMargin = 4.0;
constexpr double kLegendShare = 0.34;   // of the height, at most
constexpr double kLegendBeside = 0.45;  // of the width, at most
constexpr double kPlotGap = 4.0;
constexpr double kWide = 1.25;  // a frame that is this much wider than high has its legend beside the pie

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

  // One entry a row, as high as they are together, beside the pie.
  void PaintLegendBeside(const std::vector<LegendEntry>& entries) {
    const double most = frame_.Width() * kLegendBeside;
    std::vector<Legend> rows;
    double width = 0.0;
    double height = 0.0;
    for (const LegendEntry& entry : entries) {
      Legend row(canvas_, {entry}, {most, canvas_.lineHeight * 2.0});
      if (row.IsEmpty() || height + row.Height() > frame_.Height()) break;
      width = std::max(width, row.Width());
      height += row.Height();
      rows.push_back(std::move(row));
    }
    double top = frame_.Center().y - height * 0.5;
    for (const Legend& row : rows) {
      row.Draw({frame_.right - width, top});
      top += row.Height();
    }
    if (!rows.empty()) frame_.right -= width + 2.0 * kPlotGap;
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
    const auto pies =
        static_cast<double>(std::count_if(plots_.begin(), plots_.end(), [](const Plot& p) { return p.isPie; }));
    const double rows = static_cast<double>(plots_.size()) - pies + (pies > 0.0 ? 1.0 : 0.0);
    const double height = (frame_.Height() - kPlotGap * (rows - 1.0)) / rows;
    const double width = pies > 0.0 ? frame_.Width() / pies : 0.0;
    double row = 0.0;
    double pie = 0.0;
    for (const Plot& plot : plots_) {
      const double top = frame_.top + (plot.isPie ? rows - 1.0 : row) * (height + kPlotGap);
      if (plot.isPie) {
        const double left = frame_.left + width * pie++;
        DrawPie(canvas_, SlicesOf(plot, series_, canvas_.periods), {left, top, left + width, top + height});
      } else {
        PaintTimePlot(plot, {frame_.left, top, frame_.right, top + height});
        row += 1.0;
      }
    }
  }

  void PaintTimePlot(const Plot& plot, const RectD& frame) const {
    std::vector<const GraphSeries*> shown;
    for (std::size_t i : plot.series) shown.push_back(&series_[i]);
    DrawTimePlot(canvas_, shown, frame);
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
