#include "model/draw/GraphLegend.h"

#include <algorithm>
#include <cmath>

namespace xrpt {
namespace {

constexpr double kLineKey = 16.0;   // a stretch of a line, or a sign
constexpr double kBlock = 7.0;      // a block of colour
constexpr double kKeyGap = 3.0;     // between key and text
constexpr double kApart = 10.0;     // between columns
constexpr double kRow = 1.15;       // of a line's height
constexpr double kShortest = 24.0;  // a text with less room says nothing

bool HasLineKey(const LegendEntry& entry) {
  return entry.series && (entry.series->type == SeriesType::Line || entry.series->type == SeriesType::Point);
}

}  // namespace

Legend::Legend(const GraphCanvas& canvas, std::vector<LegendEntry> entries, SizeD most, std::size_t mostColumns)
    : canvas_(canvas) {
  key_ = std::any_of(entries.begin(), entries.end(), HasLineKey) ? kLineKey : kBlock;
  const double rowHeight = canvas.lineHeight * kRow;
  const double room = most.width - key_ - kKeyGap;
  if (room < kShortest || entries.empty()) return;
  double column = 0.0;
  for (LegendEntry& entry : entries) {
    entry.text = FitText(canvas.fonts, canvas.font, entry.text, room);
    column = std::max(column, key_ + kKeyGap + canvas.Width(entry.text));
  }
  const double fitting = std::max(1.0, std::floor((most.width + kApart) / (column + kApart)));
  const std::size_t columns = std::min(mostColumns, static_cast<std::size_t>(fitting));
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const auto row = static_cast<double>(i / columns);
    if ((row + 1.0) * rowHeight > most.height) return;
    const double x = static_cast<double>(i % columns) * (column + kApart);
    width_ = std::max(width_, x + key_ + kKeyGap + canvas.Width(entries[i].text));
    height_ = (row + 1.0) * rowHeight;
    placed_.push_back({std::move(entries[i]), {x, (row + 0.5) * rowHeight}});
  }
}

void Legend::Draw(PointD corner) const {
  for (const Placed& placed : placed_) {
    const PointD at{corner.x + placed.at.x, corner.y + placed.at.y};
    DrawKey(placed.entry, at);
    canvas_.Text(placed.entry.text, at.x + key_ + kKeyGap, at.y);
  }
}

void Legend::DrawKey(const LegendEntry& entry, PointD at) const {
  const bool isLine = entry.series && entry.series->type == SeriesType::Line;
  const bool isPoint = entry.series && entry.series->type == SeriesType::Point;
  if (isLine) DrawLineKey(canvas_, *entry.series, at, key_);
  if (isPoint) DrawMarker(canvas_, *entry.series, entry.series->style, {at.x + key_ * 0.5, at.y});
  if (isLine || isPoint) return;
  const double left = at.x + (key_ - kBlock) * 0.5;
  const RectD block(left, at.y - kBlock * 0.5, left + kBlock, at.y + kBlock * 0.5);
  canvas_.graphics.FillRect(canvas_.area.ToDevice(block), entry.color);
}

}  // namespace xrpt
