// Which card lies under the pointer, and which handle of it.
#pragma once

#include "canvas/DraggingStyle.h"
#include "canvas/Placement.h"
#include "model/CardList.h"
#include "platform/Window.h"

namespace xrpt {

// The front-most card at a point, and its rectangle.
struct HitCard {
  const RVCardControl* card = nullptr;
  Rect rect;
};
HitCard CardAt(const CardList& cards, const PagePlacement& place, Point point);

// All cards at a point by their places, the top one first.
std::vector<std::size_t> CardsAt(const CardList& cards, const PagePlacement& place, Point point);

// The edges a press at this point would move: bands of 3 pixels along the edges, corners an L of 10 by 6 pixels, the
// inside moves all, whatever the zoom.
int HandleAt(const Rect& card, Point point);

// The corner that stays while the edges of a style move; styles that move none or all leave the present one.
Point FixedCorner(const Rect& card, int style, Point present);

// The cursor over a handle; `inside` is the one for a card's body.
Cursor CursorOfStyle(int style, Cursor inside);

// Whether two rectangles have pixels in common.
bool Intersects(const Rect& a, const Rect& b);

}  // namespace xrpt
