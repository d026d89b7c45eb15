// How far a drag may go along one axis: the page's edges and the grid bind. Pure; both axes share the rules.
#pragma once

#include "canvas/Placement.h"

namespace xrpt {

// One axis of the page on the screen.
struct DragAxis {
  double offset = 0.0;       // pixels, of the page's near edge
  double pagePx = 0.0;       // pixels, of the page's extent
  double step = 0.0;         // grid step, millimetres; 0 and less is off
  double pixelsPerMm = 1.0;  // at the zoom

  int Near() const { return ToPixel(offset); }
  int Far() const { return Near() + ToPixel(pagePx); }
  // A grid whose lines a screen can tell apart.
  bool HasGrid() const;
};

DragAxis HorizontalAxis(const PagePlacement& place, const GridSteps& grid);
DragAxis VerticalAxis(const PagePlacement& place, const GridSteps& grid);

// What a wanted move of a stretch becomes: its near edge lands on a grid line, it stays on the page, and steps back
// whole grid steps until it does.
int MoveDelta(const DragAxis& axis, int near, int far, int delta);

// What a wanted move of one edge becomes.
int ResizeDelta(const DragAxis& axis, int edge, int delta);

// The grid line nearest to a pixel, not before the page's edge; the pixel itself without a grid.
int SnapPixel(const DragAxis& axis, int pixel);

// How far a page is scrolled at a time while the pointer drags beyond one end of the client area: the faster the
// further it is out.
int ScrollStep(int pointer, int near, int far);

// How far one press of an arrow key asks to go, in pixels; a grid finer than a pixel still lets it go one.
int ArrowStep(const DragAxis& axis, bool control);

}  // namespace xrpt
