// Lines, boxes and ellipses.
#include "model/RVCardPrimitive.h"
#include "model/draw/CardDrawing.h"
#include "model/draw/PrimitiveShape.h"

namespace xrpt {
namespace {

PenStyle StyleOf(ContourType type) {
  switch (type) {
    case ContourType::Dash:
      return PenStyle::Dash;
    case ContourType::Dot:
      return PenStyle::Dot;
    case ContourType::DashDot:
      return PenStyle::DashDot;
    case ContourType::DashDotDot:
      return PenStyle::DashDotDot;
    default:
      return PenStyle::Solid;
  }
}

// No thicker than the card: a contour that fills it is as much as can be seen.
Pen ContourOf(const RVCardPrimitive& card, const CardArea& area) {
  const double points = std::isfinite(card.size) ? std::max(card.size, 0.0) * kPointsPerMm : 0.0;
  const double most = std::min(area.points.width, area.points.height);
  return {card.color, area.scale.PenWidth(std::min(points, most)), StyleOf(card.contourType)};
}

void DrawLineShape(Graphics& graphics, const CardArea& area, double degrees, const Pen& pen) {
  const PointD center = area.device.Center();
  const auto [from, to] = LineThrough({area.device.Width(), area.device.Height()}, degrees);
  graphics.DrawLine({center.x + from.x, center.y + from.y}, {center.x + to.x, center.y + to.y}, pen);
}

void DrawClosedShape(Graphics& graphics, const RectD& rect, bool ellipse, Color ground, const Pen& pen) {
  const RectD path = StrokedInside(rect, pen.width);
  if (ellipse) {
    graphics.FillEllipse(rect, ground);
    graphics.DrawEllipse(path, pen);
  } else {
    graphics.FillRect(rect, ground);
    graphics.DrawRect(path, pen);
  }
}

// The shape about the origin of a turned frame.
RectD TurnedRect(const CardArea& area, double degrees, bool ellipse) {
  const SizeD card{area.device.Width(), area.device.Height()};
  const SizeD size = ellipse ? TurnedEllipseInside(card, degrees) : TurnedBoxInside(card, degrees);
  return {-size.width * 0.5, -size.height * 0.5, size.width * 0.5, size.height * 0.5};
}

}  // namespace

void RVCardPrimitive::Draw(Graphics& graphics, const tagDraw& draw) const {
  const CardArea area = AreaOf(*this, draw);
  if (area.IsEmpty()) return;
  const Pen pen = ContourOf(*this, area);
  const Color ground = isBackTransparent ? kNoColor : backcolor;
  const bool ellipse = type == PrimitiveType::Ellipse;
  const GraphicsState state(graphics);
  graphics.ClipRect(area.device);
  if (type == PrimitiveType::Line) {
    DrawGround(graphics, area, ground);
    DrawLineShape(graphics, area, orientation, pen);
  } else if (!std::isfinite(orientation) || orientation == 0.0) {
    DrawClosedShape(graphics, area.device, ellipse, ground, pen);
  } else {
    graphics.Translate(area.device.Center().x, area.device.Center().y);
    graphics.Rotate(orientation);
    DrawClosedShape(graphics, TurnedRect(area, orientation, ellipse), ellipse, ground, pen);
  }
}

}  // namespace xrpt
