// Where a click with an insert tool puts a new card. Pure.
#pragma once

#include "canvas/Placement.h"

namespace xrpt {

// A card of about that size with its corner nearest to the point: on whole millimetres, on grid lines where the grid is
// on, and on the page. All in millimetres.
CardRect ClickedCardRect(SizeD page, const GridSteps& grid, SizeD size, PointD at);

}  // namespace xrpt
