// Drawing one card on a page of round numbers: 210 by 297 mm at so many dots per inch and a zoom.
#pragma once

#include "canvas/PagePainter.h"
#include "support/RecordingGraphics.h"
#include "support/TestHost.h"

namespace xrpt {

inline tagDraw DrawAt(double dpi = 96.0, double zoom = 1.0) {
  tagDraw draw;
  const double pixelsPerMm = dpi / 25.4;
  draw.pixelsPerMmX = draw.pixelsPerMmY = pixelsPerMm;
  draw.pageWidthPx = draw.pageWidth * pixelsPerMm * std::abs(zoom);
  draw.pageHeightPx = draw.pageHeight * pixelsPerMm * std::abs(zoom);
  draw.zoom = zoom;
  draw.fontFactor = dpi / 96.0;
  draw.clip = {0, 0, roundi(draw.pageWidthPx), roundi(draw.pageHeightPx)};
  return draw;
}

inline RecordingGraphics Recorded(const RVCardControl& card, const tagDraw& draw = DrawAt()) {
  RecordingGraphics graphics;
  card.Draw(graphics, draw);
  EXPECT_EQ(graphics.depth, 0);
  return graphics;
}

template <class Card>
Card CardOf(double width, double height) {
  Card card;
  card.x = 10.0;
  card.y = 10.0;
  card.width = width;
  card.height = height;
  return card;
}

}  // namespace xrpt
