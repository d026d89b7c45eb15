// What lies over the page image: the frames of the cards and the outline of what is dragged, pixel by pixel, from plain
// values.
#pragma once

#include <span>

#include "platform/PixelBuffer.h"

namespace xrpt {

// The page with its rounded corners, as a set of pixels.
struct RoundRegion {
  Rect rect;
  int radiusX = 0;
  int radiusY = 0;

  bool Contains(Point p) const;
  // The pixels of row y, or of column x, that belong to it: from first up to, not including, second. Empty outside.
  std::pair<int, int> Row(int y) const;
  std::pair<int, int> Column(int x) const;
};

struct CardFrame {
  Rect rect;  // right and bottom edge are drawn too
  Color color = kBlack;
  bool hovered = false;  // 3 pixels thick instead of 1
  bool selected = false;
  bool lastSelected = false;
  bool picked = false;  // blinks red dots
};

inline constexpr int kFramePhases = 6;

// One card's frame, inside its rectangle. `phase` runs from 0 to 5 and makes dashes march and dots blink.
void DrawBorder(PixelBuffer& buffer, const RoundRegion& clip, const CardFrame& frame, int phase);
// All frames, the first of them the top card's.
void DrawFrames(PixelBuffer& buffer, const RoundRegion& clip, std::span<const CardFrame> frames, int phase);

// The dotted outline of a rectangle, by exclusive or: drawing it again takes it away.
void DrawDraggingBox(PixelBuffer& buffer, const Rect& rect);

}  // namespace xrpt
