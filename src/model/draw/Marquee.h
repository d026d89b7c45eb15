// Where a moving text or picture is at a moment: a pure function of time.
#pragma once

#include <cstdint>

#include "model/CommonRows.h"

namespace xrpt {

// Along the axis it moves on, in page points: where the thing rests, how long it is, and how long the card is.
struct MarqueeTrack {
  double rest = 0.0;
  double length = 0.0;
  double room = 0.0;
};

bool MovesSideways(const Animation& animation);

// How far the thing has come after so many milliseconds, in page points: `scrollAmount` screen pixels every
// `scrollDelay` milliseconds. Values below 1 count as the file would hold them, 1 and 50.
double MarqueeDistance(const Animation& animation, std::int32_t milliseconds);

// Where it begins now. Scrolling leaves the card on one side and comes back in on the other; alternating turns at the
// card's edges, or, longer than the card, when its end has come into sight.
double MarqueePosition(const Animation& animation, std::int32_t milliseconds, const MarqueeTrack& track);

}  // namespace xrpt
