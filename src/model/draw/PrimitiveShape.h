// The geometry of plain shapes turned inside their card: pure rules.
#pragma once

#include <utility>

#include "platform/Geometry.h"

namespace xrpt {

// A line through the card's centre from edge to edge, `degrees` counter-clockwise from the horizontal. Relative to the
// centre, y downwards.
std::pair<PointD, PointD> LineThrough(SizeD card, double degrees);

// The largest box, or ellipse, of the card's proportions that stays inside the card when it is turned.
SizeD TurnedBoxInside(SizeD card, double degrees);
SizeD TurnedEllipseInside(SizeD card, double degrees);

}  // namespace xrpt
