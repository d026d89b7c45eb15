#include "model/draw/GraphLegend.h"

#include "model/draw/TextLayout.h"

namespace xrpt {
namespace {

constexpr double kKey = 16.0;       // a key's length
constexpr double kBlock = 7.0;      // a block of colour
constexpr double kKeyGap = 3.0;     // between key and text
constexpr double kApart = 10.0;     // between entries of a row
constexpr double kRow = 1.15;       // of a line's height
constexpr double kShortest = 24.0;  // a text with less room says nothing

}  // namespace

Legend::Legend(const GraphCanvas& canvas, std::vector<LegendEntry> entries, SizeD most) : canvas_(canvas) {
  const double rowHeight = canvas.lineHeight * kRow;
  const double room = most.width - kKey - kKeyGap;
  if (room < kShortest) return;
  double x = 0.0;
  double row = 0.0;
  for (LegendEntry& entry : entries) {
    entry.text = FitText(canvas.fonts, canvas.font, entry.text, room);
    const double width = kKey + kKeyGap + canvas.Width(entry.text);
    if (x > 0.0 && x + width > most.width) {
      x = 0.0;
      row += 1.0;
    }
    if ((row + 1.0) * rowHeight > most.height) return;
    placed_.push_back({std::move(entry), {x, (row + 0.5) * rowHeight}});
    width_ = std::max(width_, x + width);
    height_ = (row + 1.0) * rowHeight;
    x += width + kApart;
  }
}

void Legend::Draw(PointD corner) const {
  for (const Placed& placed : placed_) {
    const PointD at{corner.x + placed.at.x, corner.y + placed.at.y};
    DrawKey(placed.entry, at);
    canvas_.Text(placed.entry.text, at.x + kKey + kKeyGap, at.y);
  }
}

void Legend::DrawKey(const LegendEntry& entry, PointD at) const {
  const bool isLine = entry.series && entry.series->type == SeriesType::Line;
  const bool isPoint = entry.series && entry.series->type == SeriesType::Point;
  if (isLine) DrawLineKey(canvas_, *entry.series, at, kKey);
  if (isPoint) DrawMarker(canvas_, *entry.series, entry.series->style, {at.x + kKey * 0.5, at.y});
  if (isLine || isPoint) return;
  const double left = at.x + (kKey - kBlock) * 0.5;
  const RectD block(left, at.y - kBlock * 0.5, left + kBlock, at.y + kBlock * 0.5);
  canvas_.graphics.FillRect(canvas_.area.ToDevice(block), entry.color);
}

}  // namespace xrpt
