// Cards lay their content out in page points (1/72 inch of the page) and only then go to the device, so that a text
// breaks and a graph's labels stand alike on every device and at every zoom.
#pragma once

#include "model/RVCardControl.h"
#include "model/tagDraw.h"
#include "platform/Fonts.h"
#include "platform/Geometry.h"

namespace xrpt {

inline constexpr double kPointsPerMm = 72.0 / 25.4;
// What animations and real-size pictures count in: a pixel of the usual screen.
inline constexpr double kPointsPerPixel = 72.0 / 96.0;

struct DrawScale {
  double x = 1.0;  // device units a page point
  double y = 1.0;
  double font = 1.0;  // page points a point of a font

  // Whole device units, never thinner than one: crisp on a screen, and too fine to notice on paper.
  double PenWidth(double points) const { return std::max(1.0, std::round(points * y)); }
};

// A report keeps its texts in proportion to its cards whatever the screen: the font factor is the device's dots per
// inch over those the report was laid out on, and a font's point is 96/72 dots of the latter.
DrawScale ScaleOf(const tagDraw& draw);

// A font as it is measured and placed, its size in page points: within bounds, and the usual size for one that no text
// can have.
Font PageFont(const Font& font, const DrawScale& scale);

// Where a card draws.
struct CardArea {
  RectD device;  // device units
  SizeD points;  // page points
  DrawScale scale;
  FontService* fonts = nullptr;  // what measures its texts
  bool editing = true;           // whether what helps the editor's user only is drawn

  bool IsEmpty() const { return !(device.Width() > 0.0 && device.Height() > 0.0); }
  // Page points from the card's corner to device units.
  PointD ToDevice(PointD p) const { return {device.left + p.x * scale.x, device.top + p.y * scale.y}; }
  RectD ToDevice(const RectD& r) const;
  RectD Box() const { return {0.0, 0.0, points.width, points.height}; }
};

CardArea AreaOf(const RVCardControl& card, const tagDraw& draw);

}  // namespace xrpt
