#include "model/draw/DrawScale.h"

namespace xrpt {
namespace {

constexpr double kUsualDpi = 96.0;
constexpr double kUsualFontSize = 10.0;
constexpr double kSmallestFontSize = 0.1;
constexpr double kLargestFontSize = 2000.0;
// Sizes are whole fractions of a point, so that rounding on the way to one device or another changes no line break.
constexpr double kFontSizeSteps = 4096.0;
// 10 metres: larger than any page, small enough to calculate with.
constexpr double kLargestExtent = 10000.0 * kPointsPerMm;

double PositiveOr(double value, double otherwise) { return std::isfinite(value) && value > 0.0 ? value : otherwise; }

double Extent(double millimetres) { return std::min(PositiveOr(millimetres * kPointsPerMm, 0.0), kLargestExtent); }

}  // namespace

DrawScale ScaleOf(const tagDraw& draw) {
  DrawScale scale;
  scale.x = PositiveOr(draw.pageWidthPx / draw.pageWidth / kPointsPerMm, 1.0);
  scale.y = PositiveOr(draw.pageHeightPx / draw.pageHeight / kPointsPerMm, 1.0);
  const double screenDpi = PositiveOr(draw.pixelsPerMmY * 25.4, kUsualDpi);
  scale.font = PositiveOr(draw.fontFactor, 1.0) * kUsualDpi / screenDpi;
  return scale;
}

Font PageFont(const Font& font, const DrawScale& scale) {
  Font out = font;
  const double size = PositiveOr(font.size, kUsualFontSize) * scale.font;
  out.size = std::round(std::clamp(size, kSmallestFontSize, kLargestFontSize) * kFontSizeSteps) / kFontSizeSteps;
  return out;
}

RectD CardArea::ToDevice(const RectD& r) const {
  const PointD from = ToDevice(PointD{r.left, r.top});
  const PointD to = ToDevice(PointD{r.right, r.bottom});
  return {from.x, from.y, to.x, to.y};
}

CardArea AreaOf(const RVCardControl& card, const tagDraw& draw) {
  CardArea area;
  area.device = RectD(CardPixelRect(draw, card.x, card.y, card.width, card.height));
  area.points = {Extent(card.width), Extent(card.height)};
  area.scale = ScaleOf(draw);
  area.fonts = card.Services().fonts.get();
  area.editing = draw.flag1 != 0;
  return area;
}

}  // namespace xrpt
