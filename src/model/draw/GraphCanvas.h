// What the parts of a report graph are drawn with: the card's area, its font and colours, and texts that know how much
// room they take. Everything is in page points.
#pragma once

#include "model/draw/CardDrawing.h"
#include "model/draw/GraphData.h"

namespace xrpt {

struct GraphCanvas {
  GraphCanvas(Graphics& graphics, const RVCardReportGraph& card, const CardArea& area);

  Pen PenOf(Color color, double points, PenStyle style = PenStyle::Solid) const;
  double Width(std::wstring_view text) const { return fonts.Width(font, text); }
  // The number with so many decimals, as the user writes numbers.
  std::wstring Number(double value, int decimals) const;
  // A line of text of which the left end and the middle of the letters' height are given.
  void Text(std::wstring_view text, double left, double middle, Color color) const;
  void Text(std::wstring_view text, double left, double middle) const { Text(text, left, middle, card.fontColor); }

  // A line of text turned to read upwards, its middle given.
  void UpwardText(std::wstring_view text, PointD middle) const;

  Graphics& graphics;
  const RVCardReportGraph& card;
  const CardArea& area;
  FontService& fonts;
  Font font;
  double lineHeight;
  double ascent;
  Color gridColor;
  std::vector<std::wstring> periods;
};

// The sign of a point: one of the markers 0 to 7, in the size its name says and larger with the series' width.
void DrawMarker(const GraphCanvas& canvas, const GraphSeries& series, std::int32_t marker, PointD at);

// A stretch of a series' line with its sign, for the legend: `length` long from the left end.
void DrawLineKey(const GraphCanvas& canvas, const GraphSeries& series, PointD left, double length);

// Lines, bars and points against time inside the frame. Of plots one under the other the last names the periods, and
// all make as much room for their left axis.
struct TimePlotFrame {
  RectD rect;
  bool namesPeriods = true;
  double leastAxis = 0.0;
};
void DrawTimePlot(const GraphCanvas& canvas, const std::vector<const GraphSeries*>& series, const TimePlotFrame& frame);
// What its left axis takes by itself.
double LeftAxisWidth(const GraphCanvas& canvas, const std::vector<const GraphSeries*>& series,
                     const TimePlotFrame& frame);

// A pie in the middle of the frame.
void DrawPie(const GraphCanvas& canvas, const std::vector<PieSlice>& slices, const RectD& frame);

}  // namespace xrpt
