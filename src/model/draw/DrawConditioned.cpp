// Conditioned cards show the alternative the editor has chosen; dynamic pictures what was last fetched.
#include "model/RVCardConditioned.h"
#include "model/RVCardDynamicImage.h"
#include "model/draw/CardDrawing.h"

namespace xrpt {
namespace {

constexpr Color kCornerMark = Rgb(0x2E, 0x8B, 0x57);

// Tells the editor's user that there is more to the card than what he sees.
void DrawCornerMark(Graphics& graphics, const CardArea& area) {
  const RectD& box = area.device;
  const double size = std::min({2.0 * kPointsPerMm * area.scale.y, box.Width() * 0.5, box.Height() * 0.5});
  const PointD corner[] = {{box.right - size, box.top}, {box.right, box.top}, {box.right, box.top + size}};
  graphics.FillPolygon(corner, kCornerMark);
}

// A small picture made for the screen stays as small as it is, unless the card is smaller still.
PictureFit IconFit(const Picture& icon, SizeD box) {
  PictureFit fit;
  fit.maintainRealSize = icon.width * kPointsPerPixel <= box.width && icon.height * kPointsPerPixel <= box.height;
  return fit;
}

}  // namespace

void RVCardConditioned::Draw(Graphics& graphics, const tagDraw& draw) const {
  const CardArea area = AreaOf(*this, draw);
  if (area.IsEmpty()) return;
  DrawGround(graphics, area, backcolor);
  if (const RVCardControl* shown = Shown()) {
    // Inner cards keep whatever place they had; they are drawn in the container's.
    const auto inner = shown->GetClone();
    inner->x = x;
    inner->y = y;
    inner->width = width;
    inner->height = height;
    inner->Draw(graphics, draw);
  }
  if (area.editing) DrawCornerMark(graphics, area);
}

void RVCardDynamicImage::Draw(Graphics& graphics, const tagDraw& draw) const {
  const CardArea area = AreaOf(*this, draw);
  DrawGround(graphics, area, backcolor);
  const PictureFit fit{horizontalAlign, verticalAlign, maintainAspectRatio, maintainRealSize};
  if (GetPicture()) {
    DrawPictureBox(graphics, area, GetPicture(), fit, variable, {}, 0);
  } else if (area.editing) {
    DrawPictureBox(graphics, area, Placeholder(), IconFit(*Placeholder(), area.points), variable, {}, 0);
  }
}

}  // namespace xrpt
