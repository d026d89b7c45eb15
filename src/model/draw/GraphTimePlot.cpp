// Lines, bars and points against time, with axes, grid lines, labels and value texts that keep out of each other's way.
#include <algorithm>

#include "model/draw/GraphAxes.h"
#include "model/draw/GraphCanvas.h"

namespace xrpt {
namespace {

constexpr double kTick = 3.0;
constexpr double kGap = 3.0;
constexpr double kBarShare = 0.76;  // of a period's room, for all its bars together
constexpr std::size_t kMostTexts = 400;
constexpr std::size_t kMostPointMarks = 120;  // lines over more periods go without

PenStyle LineStyleOf(std::int32_t style) {
  switch (style) {
    case 1:
      return PenStyle::Dash;
    case 2:
      return PenStyle::Dot;
    case 3:
      return PenStyle::DashDot;
    case 4:
      return PenStyle::DashDotDot;
    default:
      return PenStyle::Solid;
  }
}

bool Overlap(const RectD& a, const RectD& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

class TimePlot {
 public:
  TimePlot(const GraphCanvas& canvas, const std::vector<const GraphSeries*>& series, const TimePlotFrame& frame)
      : canvas_(canvas),
        series_(series),
        frame_(frame.rect),
        leastAxis_(frame.leastAxis),
        namesPeriods_(frame.namesPeriods && !canvas.card.hideXAxisLabels),
        count_(canvas.periods.size()) {
    PlaceRows();
    axes_ = AxesOf(series, static_cast<int>(plot_.Height() / (canvas.lineHeight * 2.1)) + 1);
    PlaceColumns();
  }

  void Draw() {
    DrawGrid();
    for (std::size_t axis = 0; axis < axes_.scales.size(); ++axis) DrawAxisLabels(axis);
    if (namesPeriods_) DrawPeriodLabels();
    {
      const GraphicsState state(canvas_.graphics);
      canvas_.graphics.ClipRect(canvas_.area.ToDevice(
          RectD{plot_.left - kTick, plot_.top - kTick, plot_.right + kTick, plot_.bottom + kTick}));
      DrawBars();
      for (std::size_t i = 0; i < series_.size(); ++i) DrawSeries(i);
    }
    DrawAxisLines();
    if (canvas_.card.viewTexts) DrawTexts();
  }

 private:
  // Room above and below: half a label of the topmost tick, value texts, the periods.
  void PlaceRows() {
    const double periods = namesPeriods_ ? canvas_.lineHeight : 0.0;
    const bool small = frame_.Height() < canvas_.lineHeight * 1.8 + periods;
    labelled_ = !small && frame_.Width() > canvas_.lineHeight * 5.0;
    plot_ = frame_;
    plot_.top += canvas_.card.viewTexts ? canvas_.lineHeight : canvas_.lineHeight * 0.5;
    plot_.bottom -= labelled_ && namesPeriods_ ? canvas_.lineHeight + kTick + 1.0 : kTick;
    if (labelled_) plot_.bottom = std::min(plot_.bottom, frame_.bottom - canvas_.lineHeight * 0.5);
    plot_.bottom = std::max(plot_.bottom, plot_.top + 1.0);
  }

  void PlaceColumns() {
    plot_.left += std::max(AxisWidth(0), leastAxis_);
    plot_.right -= axes_.scales.size() > 1 ? AxisWidth(1) : kGap;
    const bool squeezed = plot_.Width() < frame_.Width() * 0.4;
    if (!squeezed) return;
    labelled_ = false;
    plot_.left = frame_.left + kTick;
    plot_.right = std::max(frame_.right - kTick, plot_.left + 1.0);
  }

 public:
  double AxisWidth(std::size_t axis) const {
    if (!labelled_) return kTick;
    double width = 0.0;
    for (double tick : axes_.scales[axis].Ticks()) width = std::max(width, canvas_.Width(TickText(axis, tick)));
    return width + kTick + kGap;
  }

 private:
  std::wstring TickText(std::size_t axis, double tick) const {
    return canvas_.Number(tick, axes_.scales[axis].decimals);
  }

  double Slot() const { return plot_.Width() / static_cast<double>(count_); }
  double X(std::size_t period) const { return plot_.left + (static_cast<double>(period) + 0.5) * Slot(); }
  double Y(std::size_t axis, double value) const {
    return plot_.bottom - std::clamp(axes_.scales[axis].Share(value), -1.0, 2.0) * plot_.Height();
  }
  PointD At(std::size_t series, std::size_t period) const {
    return {X(period), Y(axes_.axisOf[series], series_[series]->values[period])};
  }
  PointD Device(double x, double y) const { return canvas_.area.ToDevice(PointD{x, y}); }
  void Line(double x1, double y1, double x2, double y2, const Pen& pen) const {
    canvas_.graphics.DrawLine(Device(x1, y1), Device(x2, y2), pen);
  }

  void DrawGrid() const {
    const Pen pen = canvas_.PenOf(canvas_.gridColor, 0.5);
    for (double tick : axes_.scales[0].Ticks()) {
      const double y = Y(0, tick);
      Line(plot_.left, y, plot_.right, y, pen);
    }
  }

  void DrawAxisLines() const {
    const Pen pen = canvas_.PenOf(canvas_.card.foregroundColor, 0.5);
    Line(plot_.left, plot_.top, plot_.left, plot_.bottom, pen);
    Line(plot_.left, plot_.bottom, plot_.right, plot_.bottom, pen);
    if (axes_.scales.size() > 1) Line(plot_.right, plot_.top, plot_.right, plot_.bottom, pen);
    const AxisScale& scale = axes_.scales[0];
    if (scale.low < 0.0 && scale.high > 0.0) Line(plot_.left, Y(0, 0.0), plot_.right, Y(0, 0.0), pen);
  }

  // Beside its ticks; in its series' colour when it serves one series of several.
  void DrawAxisLabels(std::size_t axis) const {
    const Pen pen = canvas_.PenOf(canvas_.card.foregroundColor, 0.5);
    const double edge = axis == 0 ? plot_.left : plot_.right;
    const double out = axis == 0 ? -1.0 : 1.0;
    double free = frame_.bottom + 1.0;  // above it nothing is written yet
    for (double tick : axes_.scales[axis].Ticks()) {
      const double y = Y(axis, tick);
      Line(std::min(edge, edge + out * kTick), y, std::max(edge, edge + out * kTick), y, pen);
      if (!labelled_ || y + canvas_.lineHeight * 0.45 > free) continue;
      free = y - canvas_.lineHeight * 0.45;
      const std::wstring text = TickText(axis, tick);
      const double width = axis == 0 ? canvas_.Width(text) : 0.0;
      canvas_.Text(text, edge + out * (kTick + 1.0) - width, y, AxisColor(axis));
    }
  }
  Color AxisColor(std::size_t axis) const {
    const auto served = std::count(axes_.axisOf.begin(), axes_.axisOf.end(), axis);
    if (axes_.scales.size() < 2 || served != 1) return canvas_.card.fontColor;
    const auto found = std::find(axes_.axisOf.begin(), axes_.axisOf.end(), axis);
    return series_[static_cast<std::size_t>(found - axes_.axisOf.begin())]->color;
  }

  // Every so many periods, so that neighbours keep apart.
  void DrawPeriodLabels() const {
    double widest = 0.0;
    for (const std::wstring& label : canvas_.periods) widest = std::max(widest, canvas_.Width(label));
    const auto stride = static_cast<std::size_t>(std::max(1.0, std::ceil((widest + 2.0 * kGap) / Slot())));
    const Pen pen = canvas_.PenOf(canvas_.card.foregroundColor, 0.5);
    double free = frame_.left;  // left of it something is written
    for (std::size_t i = 0; i < count_; i += stride) {
      Line(X(i), plot_.bottom, X(i), plot_.bottom + kTick, pen);
      const double width = canvas_.Width(canvas_.periods[i]);
      const double left = std::max(frame_.left, std::min(X(i) - width * 0.5, frame_.right - width));
      if (!labelled_ || left < free) continue;
      free = left + width + kGap;
      canvas_.Text(canvas_.periods[i], left, plot_.bottom + kTick + 1.0 + canvas_.lineHeight * 0.5);
    }
  }

  std::size_t BarCount() const {
    return static_cast<std::size_t>(std::count_if(
        series_.begin(), series_.end(), [](const GraphSeries* series) { return series->type == SeriesType::Bar; }));
  }
  // Left edge and width of a bar, the `order`-th of its period.
  double BarWidth() const { return Slot() * kBarShare / static_cast<double>(BarCount()); }
  double BarLeft(std::size_t order, std::size_t period) const {
    return X(period) - Slot() * kBarShare * 0.5 + static_cast<double>(order) * BarWidth();
  }

  // Bars stand on 0, or on the end of the axis nearest to it.
  void DrawBars() const {
    std::size_t order = 0;
    for (std::size_t i = 0; i < series_.size(); ++i) {
      if (series_[i]->type != SeriesType::Bar) continue;
      const AxisScale& scale = axes_.scales[axes_.axisOf[i]];
      const double ground = Y(axes_.axisOf[i], std::clamp(0.0, scale.low, scale.high));
      for (std::size_t period = 0; period < count_; ++period) {
        const double left = BarLeft(order, period);
        const double top = At(i, period).y;
        canvas_.graphics.FillRect(
            canvas_.area.ToDevice(RectD{left, std::min(top, ground), left + BarWidth() * 0.92, std::max(top, ground)}),
            series_[i]->color);
      }
      ++order;
    }
  }

  void DrawSeries(std::size_t i) const {
    const GraphSeries& series = *series_[i];
    if (series.type == SeriesType::Line) {
      DrawLineSeries(i);
    } else if (series.type == SeriesType::Point) {
      DrawMarkers(i, series.style);
    }
  }
  // The last three line styles are signs on a solid line.
  void DrawLineSeries(std::size_t i) const {
    const GraphSeries& series = *series_[i];
    std::vector<PointD> points;
    for (std::size_t period = 0; period < count_; ++period) points.push_back(canvas_.area.ToDevice(At(i, period)));
    const Pen pen = canvas_.PenOf(series.color, series.width * kPointsPerPixel, LineStyleOf(series.style));
    if (points.size() > 1) canvas_.graphics.DrawPolyline(points, pen);
    if (series.style >= 5 && count_ <= kMostPointMarks) DrawMarkers(i, series.style);
    if (points.size() == 1) DrawMarkers(i, 0);
  }
  void DrawMarkers(std::size_t i, std::int32_t marker) const {
    for (std::size_t period = 0; period < count_; ++period) DrawMarker(canvas_, *series_[i], marker, At(i, period));
  }

  // Above each point, and never over another value's text. Bars too narrow for theirs have them written upwards.
  void DrawTexts() const {
    std::vector<RectD> placed;
    std::size_t order = 0;
    for (std::size_t i = 0; i < series_.size(); ++i) {
      const bool bar = series_[i]->type == SeriesType::Bar;
      for (std::size_t period = 0; period < count_ && placed.size() < kMostTexts; ++period) {
        const PointD at = bar ? PointD{BarLeft(order, period) + BarWidth() * 0.46, At(i, period).y} : At(i, period);
        DrawValueText(ValueText(i, period), at, bar, placed);
      }
      if (bar) ++order;
    }
  }
  std::wstring ValueText(std::size_t i, std::size_t period) const {
    const int decimals = axes_.scales[axes_.axisOf[i]].decimals + (series_[i]->values[0] < 100.0 ? 1 : 0);
    return canvas_.Number(series_[i]->values[period], decimals);
  }
  void DrawValueText(const std::wstring& text, PointD at, bool bar, std::vector<RectD>& placed) const {
    const double width = canvas_.Width(text);
    const bool upwards = bar && width > BarWidth();
    if (at.y > plot_.bottom || (upwards && BarWidth() < canvas_.lineHeight * 0.7)) return;
    const SizeD size = upwards ? SizeD{canvas_.lineHeight * 0.8, width} : SizeD{width, canvas_.lineHeight};
    // Beside the axes stand their own labels.
    at.x = std::max(plot_.left + size.width * 0.5 + 1.0, std::min(at.x, plot_.right - size.width * 0.5 - 1.0));
    const double bottom = std::max(at.y, plot_.top) - 2.0;
    const RectD box(at.x - size.width * 0.5, bottom - size.height, at.x + size.width * 0.5, bottom);
    if (box.right > plot_.right || box.top < frame_.top) return;
    if (std::any_of(placed.begin(), placed.end(), [&box](const RectD& other) { return Overlap(other, box); })) return;
    placed.push_back(box);
    if (upwards) {
      canvas_.UpwardText(text, box.Center());
    } else {
      canvas_.Text(text, box.left, box.Center().y);
    }
  }

  const GraphCanvas& canvas_;
  const std::vector<const GraphSeries*>& series_;
  RectD frame_;
  RectD plot_;
  double leastAxis_;
  bool namesPeriods_;
  std::size_t count_;
  GraphAxes axes_;
  bool labelled_ = true;
};

}  // namespace

void DrawLineKey(const GraphCanvas& canvas, const GraphSeries& series, PointD left, double length) {
  const Pen pen = canvas.PenOf(series.color, series.width * kPointsPerPixel, LineStyleOf(series.style));
  canvas.graphics.DrawLine(canvas.area.ToDevice(left), canvas.area.ToDevice(PointD{left.x + length, left.y}), pen);
  if (series.style >= 5) DrawMarker(canvas, series, series.style, {left.x + length * 0.5, left.y});
}

void DrawTimePlot(const GraphCanvas& canvas, const std::vector<const GraphSeries*>& series,
                  const TimePlotFrame& frame) {
  if (frame.rect.Width() > 4.0 && frame.rect.Height() > 4.0) TimePlot(canvas, series, frame).Draw();
}

double LeftAxisWidth(const GraphCanvas& canvas, const std::vector<const GraphSeries*>& series,
                     const TimePlotFrame& frame) {
  return TimePlot(canvas, series, frame).AxisWidth(0);
}

}  // namespace xrpt
