// Aligning, distributing, centring and sizing rectangles on a page, in millimetres. Pure; the last rectangle is the
// reference, the one selected last.
#pragma once

#include <vector>

#include "canvas/Placement.h"

namespace xrpt {

// Edges and centres an alignment works on; any other value moves nothing.
enum AlignMode : int {
  kAlignLeftEdges = 1,
  kAlignRightEdges = 2,
  kAlignTopEdges = 4,
  kAlignBottomEdges = 8,
  kAlignHorizontalCenters = 32,
  kAlignVerticalCenters = 64,
};

// The page the rectangles stay on: its size, and one pixel, which a card keeps from the far edges.
struct ArrangePage {
  double width = 0.0;
  double height = 0.0;
  double pixelX = 0.0;
  double pixelY = 0.0;
};

using Rects = std::vector<CardRect>;

// To the reference, which stays.
void AlignToLast(Rects& rects, int mode, const ArrangePage& page);
// To the rectangle round all of them.
void AlignToAll(Rects& rects, int mode, const ArrangePage& page);
// Equal gaps between neighbours from the first to the last along the axis.
void Distribute(Rects& rects, bool vertical, const ArrangePage& page);
// Each by itself, or all as one block. Nothing keeps them on the page.
void CenterEach(Rects& rects, bool vertical, const ArrangePage& page);
void CenterAsGroup(Rects& rects, bool vertical, const ArrangePage& page);
// The order of `count` stacked cards, the top first, after the chosen ones went up or down by one: where each of the
// new places stood before. Chosen neighbours move as one, and those at the end already stay.
std::vector<std::size_t> OrderAfterRaising(std::size_t count, const std::vector<std::size_t>& chosen);
std::vector<std::size_t> OrderAfterLowering(std::size_t count, const std::vector<std::size_t>& chosen);
// Or were put over the one at a place; the count puts them lowest.
std::vector<std::size_t> OrderAfterMoving(std::size_t count, const std::vector<std::size_t>& chosen,
                                          std::size_t before);
// The reference's width and height; `resizable` says for each whether it may be resized. Only the far edges are kept on
// the page, and a card is never pushed back to 0: unlike the alignments, on purpose.
void SameSize(Rects& rects, const std::vector<bool>& resizable, bool width, bool height, const ArrangePage& page);

}  // namespace xrpt
