// Buttons, as the three things they can look like.
#include "model/RVCardButton.h"
#include "model/draw/CardDrawing.h"
#include "model/draw/Shades.h"

namespace xrpt {
namespace {

constexpr Color kFace = Rgb(0xE8, 0xEA, 0xED);

// A slope along one side of the face: the outer edge from a to b, the inner one back from c to d.
void DrawSlope(Graphics& graphics, PointD a, PointD b, PointD c, PointD d, Color color) {
  const PointD corners[] = {a, b, c, d};
  graphics.FillPolygon(corners, color);
}

void DrawFace(Graphics& graphics, const CardArea& area, Color color) {
  const Color face = color == kNoColor ? kFace : color;
  const RectD& o = area.device;
  const double depth = std::min({area.scale.PenWidth(1.5), o.Width() * 0.25, o.Height() * 0.25});
  const RectD i(o.left + depth, o.top + depth, o.right - depth, o.bottom - depth);
  const Color lit = Mix(face, kWhite, 0.75);
  const Color shaded = Mix(face, kBlack, 0.35);
  graphics.FillRect(o, face);
  DrawSlope(graphics, {o.left, o.top}, {o.right, o.top}, {i.right, i.top}, {i.left, i.top}, lit);
  DrawSlope(graphics, {o.left, o.bottom}, {o.left, o.top}, {i.left, i.top}, {i.left, i.bottom}, lit);
  DrawSlope(graphics, {o.right, o.top}, {o.right, o.bottom}, {i.right, i.bottom}, {i.right, i.top}, shaded);
  DrawSlope(graphics, {o.right, o.bottom}, {o.left, o.bottom}, {i.left, i.bottom}, {i.right, i.bottom}, shaded);
  graphics.DrawRect(StrokedInside(o, 1.0), {Mix(face, kBlack, 0.5), 1.0});
}

}  // namespace

void RVCardButton::Draw(Graphics& graphics, const tagDraw& draw) const {
  const CardArea area = AreaOf(*this, draw);
  if (area.IsEmpty()) return;
  TextStyle style{font, fontColor, kAlignCenter, kAlignCenter, 0.0, {}};
  switch (visualization) {
    case Visualization::Button:
      DrawFace(graphics, area, backcolor);
      return DrawTextBox(graphics, area, style, text, 0);
    case Visualization::Text:
      DrawGround(graphics, area, backcolor);
      style.horizontalAlign = horizontalAlign;
      style.verticalAlign = verticalAlign;
      style.orientation = orientation;
      return DrawTextBox(graphics, area, style, text, 0);
    case Visualization::Image: {
      DrawGround(graphics, area, backcolor);
      const PictureFit fit{horizontalAlign, verticalAlign, maintainAspectRatio, maintainRealSize};
      return DrawPictureBox(graphics, area, GetPicture(), fit, imageId, {}, 0);
    }
    default:
      return DrawGround(graphics, area, backcolor);
  }
}

}  // namespace xrpt
