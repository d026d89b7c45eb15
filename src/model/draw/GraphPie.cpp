// Pies, with each slice's share written into it where it fits.
#include <cmath>
#include <numbers>

#include "model/draw/GraphCanvas.h"
#include "model/draw/Shades.h"

namespace xrpt {
namespace {

constexpr double kTextRadius = 0.64;  // of the pie's
constexpr double kWholePie = 0.9999;

PointD OnCircle(const RectD& pie, double degrees, double share) {
  const double angle = degrees * std::numbers::pi / 180.0;
  const PointD center = pie.Center();
  return {center.x + std::cos(angle) * pie.Width() * 0.5 * share,
          center.y - std::sin(angle) * pie.Height() * 0.5 * share};
}

RectD CircleIn(const RectD& frame) {
  const double radius = std::min(frame.Width(), frame.Height()) * 0.5 - 2.0;
  const PointD center = frame.Center();
  return {center.x - radius, center.y - radius, center.x + radius, center.y + radius};
}

// White lines keep slices apart.
void DrawSlice(const GraphCanvas& canvas, const RectD& pie, const PieSlice& slice, double start) {
  const RectD device = canvas.area.ToDevice(pie);
  if (slice.share >= kWholePie) return canvas.graphics.FillEllipse(device, slice.color);
  canvas.graphics.FillPie(device, start, -360.0 * slice.share, slice.color);
}

void DrawEdge(const GraphCanvas& canvas, const RectD& pie, double degrees) {
  canvas.graphics.DrawLine(canvas.area.ToDevice(pie.Center()), canvas.area.ToDevice(OnCircle(pie, degrees, 1.0)),
                           canvas.PenOf(kWhite, 0.75));
}

// Only where the slice is wide enough for its text.
void DrawShare(const GraphCanvas& canvas, const RectD& pie, const PieSlice& slice, double middle) {
  const std::wstring text = canvas.Number(slice.share * 100.0, slice.share < 0.1 ? 1 : 0) + L" %";
  const double width = canvas.Width(text);
  const double room = pie.Width() * kTextRadius * std::sin(std::min(slice.share, 0.5) * std::numbers::pi);
  if (std::hypot(width, canvas.lineHeight) * 0.85 > room) return;
  const PointD at = OnCircle(pie, middle, slice.share >= kWholePie ? 0.0 : kTextRadius);
  canvas.Text(text, at.x - width * 0.5, at.y, Contrast(slice.color));
}

template <class Visit>
void ForEachSlice(const std::vector<PieSlice>& slices, const Visit& visit) {
  double start = 90.0;  // noon, and on clockwise
  for (const PieSlice& slice : slices) {
    visit(slice, start);
    start -= 360.0 * slice.share;
  }
}

}  // namespace

void DrawPie(const GraphCanvas& canvas, const std::vector<PieSlice>& slices, const RectD& frame) {
  const RectD pie = CircleIn(frame);
  if (!(pie.Width() > 1.0)) return;
  ForEachSlice(slices, [&](const PieSlice& slice, double start) { DrawSlice(canvas, pie, slice, start); });
  if (slices.size() > 1) {
    ForEachSlice(slices, [&](const PieSlice&, double start) { DrawEdge(canvas, pie, start); });
  }
  if (!canvas.card.viewTexts) return;
  ForEachSlice(
      slices, [&](const PieSlice& slice, double start) { DrawShare(canvas, pie, slice, start - 180.0 * slice.share); });
}

}  // namespace xrpt
