// The signs that points are drawn with.
#include "model/draw/GraphCanvas.h"

namespace xrpt {
namespace {

enum Marker { kPoint, kCircle5, kBox5, kDiamond5, kCross5, kPlus5, kCross3, kPlus3 };

double SizeOf(std::int32_t marker) { return marker == kPoint || marker == kCross3 || marker == kPlus3 ? 3.0 : 5.0; }

void DrawCross(const GraphCanvas& canvas, const RectD& box, const Pen& pen) {
  canvas.graphics.DrawLine({box.left, box.top}, {box.right, box.bottom}, pen);
  canvas.graphics.DrawLine({box.left, box.bottom}, {box.right, box.top}, pen);
}

void DrawPlus(const GraphCanvas& canvas, const RectD& box, const Pen& pen) {
  const PointD middle = box.Center();
  canvas.graphics.DrawLine({box.left, middle.y}, {box.right, middle.y}, pen);
  canvas.graphics.DrawLine({middle.x, box.top}, {middle.x, box.bottom}, pen);
}

void DrawDiamond(const GraphCanvas& canvas, const RectD& box, const Pen& pen) {
  const PointD middle = box.Center();
  const PointD corners[] = {{middle.x, box.top}, {box.right, middle.y}, {middle.x, box.bottom}, {box.left, middle.y}};
  canvas.graphics.DrawPolygon(corners, pen);
}

}  // namespace

void DrawMarker(const GraphCanvas& canvas, const GraphSeries& series, std::int32_t marker, PointD at) {
  const double half = (SizeOf(marker) + (series.width - 1.0) * 2.0) * 0.5 * kPointsPerPixel;
  const RectD box = canvas.area.ToDevice(RectD{at.x - half, at.y - half, at.x + half, at.y + half});
  const Pen pen = canvas.PenOf(series.color, kPointsPerPixel);
  switch (marker) {
    case kCircle5:
      return canvas.graphics.DrawEllipse(box, pen);
    case kBox5:
      return canvas.graphics.DrawRect(box, pen);
    case kDiamond5:
      return DrawDiamond(canvas, box, pen);
    case kCross5:
    case kCross3:
      return DrawCross(canvas, box, pen);
    case kPlus5:
    case kPlus3:
      return DrawPlus(canvas, box, pen);
    default:
      return canvas.graphics.FillEllipse(box, series.color);
  }
}

}  // namespace xrpt
