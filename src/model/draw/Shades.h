// Colours made from others.
#pragma once

#include "platform/Color.h"

namespace xrpt {

// `share` 0 is the first colour, 1 the second.
constexpr Color Mix(Color first, Color second, double share) {
  const auto channel = [share](std::uint8_t a, std::uint8_t b) {
    return static_cast<unsigned>(a + (b - a) * share + 0.5);
  };
  return Rgb(channel(RedOf(first), RedOf(second)), channel(GreenOf(first), GreenOf(second)),
             channel(BlueOf(first), BlueOf(second)));
}

// Black or white, whichever reads better on the colour.
constexpr Color Contrast(Color ground) {
  const unsigned light = 299u * RedOf(ground) + 587u * GreenOf(ground) + 114u * BlueOf(ground);
  return light > 150000u ? kBlack : kWhite;
}

}  // namespace xrpt
