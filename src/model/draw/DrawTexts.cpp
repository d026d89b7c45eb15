// Labels, dates and formulas: one box of text each.
#include "model/RVCardDate.h"
#include "model/RVCardFormule.h"
#include "model/draw/CardDrawing.h"

namespace xrpt {

void RVCardLabel::Draw(Graphics& graphics, const tagDraw& draw) const {
  const CardArea area = AreaOf(*this, draw);
  DrawGround(graphics, area, backcolor);
  const TextStyle style{font, color, horizontalAlign, verticalAlign, orientation, animation};
  DrawTextBox(graphics, area, style, ShownText(), draw.animationTime);
}

}  // namespace xrpt
