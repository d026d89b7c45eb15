// The drawing context handed to every card: where the page lies on the device and how large a millimetre is there.
#pragma once

#include <cstdint>

#include "model/PagePlacement.h"

namespace xrpt {

struct tagDraw : PagePlacement {
  Rect clip;                  // what is being painted, device units
  double zoom = 1.0;          // as stored: negative follows the window; cards use its absolute value
  double pixelsPerMmX = 0.0;  // at zoom 1
  double pixelsPerMmY = 0.0;
  std::int32_t flag1 = 1;  // 0 leaves out what helps editing only, such as the mark of a conditioned card
  std::int32_t flag2 = 1;
  double fontFactor = 1.0;
  std::int32_t reserved1 = 0;
  // Milliseconds since the page began to be shown: where moving texts and pictures are on their way. 0 draws all at
  // rest.
  std::int32_t animationTime = 0;
};

}  // namespace xrpt
