// Pictures of the store.
#include "model/RVCardImage.h"
#include "model/draw/CardDrawing.h"

namespace xrpt {

void RVCardImage::Draw(Graphics& graphics, const tagDraw& draw) const {
  const CardArea area = AreaOf(*this, draw);
  DrawGround(graphics, area, backcolor);
  const PictureFit fit{horizontalAlign, verticalAlign, maintainAspectRatio, maintainRealSize};
  DrawPictureBox(graphics, area, GetPicture(), fit, ImageId(), animation, draw.animationTime);
}

}  // namespace xrpt
