// Where the page lies in the window, and the way between millimetres on the page and pixels of the client area. Pure.
#pragma once

#include "model/PagePlacement.h"
#include "model/RVCardControl.h"
#include "model/RVGlobalProperties.h"
#include "platform/Geometry.h"

namespace xrpt {

// Zoom before there is a window to fit the page into; the next placement makes it 1.
inline constexpr double kUndeterminedZoom = 2.2250738585072014e-308;

// A point no further out than pixels go.
Point Bounded(Point point);

// Centred; an axis on which the page does not fit is scrolled instead.
PagePlacement PlacePage(const RVGlobalProperties& page, const PixelsPerMm& scale, double zoom, const Rect& client,
                        int scrollX, int scrollY);

// A rectangle on the page, millimetres.
struct CardRect {
  double x = 0.0;
  double y = 0.0;
  double width = 0.0;
  double height = 0.0;
  bool operator==(const CardRect&) const = default;
};

CardRect RectOf(const RVCardControl& card);
void SetRect(RVCardControl& card, const CardRect& rect);

Rect ToPixels(const PagePlacement& place, const CardRect& rect);
CardRect ToMillimetres(const PagePlacement& place, const Rect& rect);

// The zoom that a mode stores: 0 fits the page, 101 its width (both negative), 1 to 4 are scales, 100 keeps `current`,
// anything else is 1.
double ZoomOfMode(int mode, double current, const RVGlobalProperties& page, const PixelsPerMm& scale,
                  const Rect& client);

// --- The grid ---

struct GridSteps {
  double x = 0.0;  // millimetres; 0 and less is off
  double y = 0.0;
};
GridSteps GridOf(const RVGlobalProperties& page);
inline bool IsActive(double step) { return step > 0.0; }

// The nearest grid line.
double SnapToGrid(double value, double step);
// The least that the two decimals of a file can tell from nothing, millimetres.
inline constexpr double kLeastExtent = 0.01;
// The far edge put onto the grid; never so that nothing of the size is left.
void SnapFarEdge(double near, double& size, double step);
// Pulls an edge onto the grid when it already lies within a pixel of a line; cards placed between lines stay.
void IntelligentAdjustToGrid(CardRect& rect, const GridSteps& grid, const PagePlacement& place);

// A card that is inserted without a drawn rectangle: at the pointer, inside the page, one grid step large where the
// grid is on and 30 pixels where it is off. Without a place on the page 10 by 10 mm at its origin.
CardRect InitialCardRect(const PagePlacement& place, const GridSteps& grid, const PixelsPerMm& scale, double zoom,
                         Point pointer);

}  // namespace xrpt
