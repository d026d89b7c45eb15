// Where a picture stands in its card: a pure rule.
#pragma once

#include <cstdint>

#include "model/Words.h"
#include "platform/Geometry.h"
#include "platform/Picture.h"

namespace xrpt {

struct PictureFit {
  std::int32_t horizontalAlign = kAlignCenter;
  std::int32_t verticalAlign = kAlignCenter;
  bool maintainAspectRatio = true;
  bool maintainRealSize = false;  // wins over the aspect ratio
};

// In page points from the box's corner. A picture in its real size has the usual screen's pixels and may be larger
// than its box.
RectD PlacePicture(const Picture& picture, SizeD box, const PictureFit& fit);

}  // namespace xrpt
