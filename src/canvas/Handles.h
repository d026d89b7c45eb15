// The handles of a selected card: where they stand, what a press takes hold of, and how the selection stands out on
// cards of any colour. Client pixels.
#pragma once

#include <span>
#include <vector>

#include "canvas/DraggingStyle.h"
#include "platform/PixelBuffer.h"

namespace xrpt {

struct Handle {
  Point center;
  int style = kNoEdge;  // the edges it moves
};

// Corners first; a side too short for it has no handle in its middle.
std::vector<Handle> HandlesOf(const Rect& card);

// The edges a press at the point moves, on either side of the card's edge; kNoEdge where no handle is.
int VisibleHandleAt(const Rect& card, Point point);

// Cards so small are moved by a press inside; their handles lie outside.
bool IsTooSmallForBands(const Rect& card);

// More selected cards than this are outlined only.
inline constexpr std::size_t kMostWithHandles = 50;

// A ring round each card, light outside and coloured inside, and its handles. The last card is the one others align to:
// its handles are filled.
void DrawSelectionMarks(PixelBuffer& buffer, std::span<const Rect> cards, Color color);

}  // namespace xrpt
