// Where a card may be that somebody placed by number: on its page, and large enough to be seen. Pure.
#pragma once

#include "canvas/Placement.h"

namespace xrpt {

// The smallest extent that can still be seen and taken hold of.
inline constexpr double kSmallestExtent = 0.5;  // millimetres

// What becomes of a card that was moved or sized from `before` to `wanted`: the stretches that changed end up on the
// page, a new place by moving, a new size by shrinking. A stretch that nobody changed stays where it lies.
CardRect KeepOnPage(const CardRect& wanted, const CardRect& before, const SizeD& page);

// Whether nothing of a card can be seen: beyond the page's edges, without extent, or nowhere in numbers.
bool IsOutOfSight(const CardRect& rect, const SizeD& page);

// The same card on the page, as large as it was where the page is large enough.
CardRect BroughtBack(const CardRect& rect, const SizeD& page);

}  // namespace xrpt
