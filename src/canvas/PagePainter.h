// The full pass over a page: what stands behind it, the page, its background picture, the grid and the cards, of which
// nothing is seen beyond the page. Screen,
// PNG, SVG, PDF and print all come through here.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "canvas/Placement.h"
#include "model/RVReportPage.h"
#include "model/tagDraw.h"
#include "platform/Graphics.h"
#include "platform/PixelBuffer.h"

namespace xrpt {

// A place of the page that is painted by itself, and the cards of the list that meet it, top first.
struct PagePart {
  Rect rect;  // canvas pixels
  std::vector<std::size_t> cards;
};

struct PagePaint {
  bool surround = true;  // fill what lies round the page: with the page's back colour, or with this one
  std::optional<Color> surroundColor;
  PixelBuffer* grid = nullptr;  // where the grid dots go, by exclusive or; the same pixels `Graphics` paints into
  bool gridWhenOff = false;     // the grid is shown though nothing snaps to it
  // Whether a card is painted; all are without it.
  std::function<bool(const RVCardControl& card)> shows;
  const PagePart* part = nullptr;  // what is painted, over what was there; null: the whole page
};

void PaintPage(Graphics& graphics, const RVReportPage& page, const tagDraw& draw, const PagePaint& how = {});

// The cards alone, back to front; those outside the clip are skipped. One that fails to draw leaves a marked box.
void PaintCards(Graphics& graphics, const CardList& cards, const tagDraw& draw);
void PaintCard(Graphics& graphics, const RVCardControl& card, const tagDraw& draw);

// Calls `visit` for each card that is painted that way, the lowest first.
void ForEachShown(const CardList& cards, const PagePaint& how, const std::function<void(const RVCardControl&)>& visit);

// True for rectangles that meet, be it at an edge.
bool Touches(const Rect& a, const Rect& b);

// White dots at the grid's crossings, by exclusive or; none unless both steps are active. A grid finer than a pixel is
// no grid to look at and is left out.
void DrawGrid(PixelBuffer& buffer, const GridSteps& steps, const tagDraw& draw);
inline void DrawGrid(PixelBuffer& buffer, const RVGlobalProperties& page, const tagDraw& draw) {
  DrawGrid(buffer, GridOf(page), draw);
}

}  // namespace xrpt
