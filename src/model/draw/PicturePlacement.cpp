#include "model/draw/PicturePlacement.h"

#include <algorithm>

#include "model/draw/DrawScale.h"

namespace xrpt {
namespace {

SizeD ShownSize(const Picture& picture, SizeD box, const PictureFit& fit) {
  const SizeD real{picture.width * kPointsPerPixel, picture.height * kPointsPerPixel};
  if (fit.maintainRealSize) return real;
  if (!fit.maintainAspectRatio) return box;
  const double scale = std::min(box.width / real.width, box.height / real.height);
  return {real.width * scale, real.height * scale};
}

double Aligned(double slack, std::int32_t align, int endCode) {
  if (align == endCode) return slack;
  return align == kAlignCenter ? slack * 0.5 : 0.0;
}

}  // namespace

RectD PlacePicture(const Picture& picture, SizeD box, const PictureFit& fit) {
  if (picture.width < 1 || picture.height < 1) return {};
  const SizeD size = ShownSize(picture, box, fit);
  const double left = Aligned(box.width - size.width, fit.horizontalAlign, kAlignRight);
  const double top = Aligned(box.height - size.height, fit.verticalAlign, kAlignBottom);
  return {left, top, left + size.width, top + size.height};
}

}  // namespace xrpt
