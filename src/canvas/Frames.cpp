#include "canvas/Frames.h"

#include "canvas/FramePixels.h"

namespace xrpt {
namespace {

// How far a rounded corner takes the pixels of one line in: `depth` pixels from the edge that is rounded over `radius`,
// along an edge rounded over `along`.
int CornerInset(int depth, int radius, int along) {
  if (depth >= radius) return 0;
  const double reach = (radius - depth - 0.5) / radius;
  return roundi(along - along * std::sqrt(std::max(0.0, 1.0 - reach * reach)));
}

}  // namespace

std::pair<int, int> RoundRegion::Row(int y) const {
  if (y < rect.top || y >= rect.bottom) return {0, 0};
  const int inset = CornerInset(std::min(y - rect.top, rect.bottom - 1 - y), radiusY, radiusX);
  return {rect.left + inset, rect.right - inset};
}

std::pair<int, int> RoundRegion::Column(int x) const {
  if (x < rect.left || x >= rect.right) return {0, 0};
  const int inset = CornerInset(std::min(x - rect.left, rect.right - 1 - x), radiusX, radiusY);
  return {rect.top + inset, rect.bottom - inset};
}

bool RoundRegion::Contains(Point p) const {
  const auto [from, to] = Row(p.y);
  return p.x >= from && p.x < to;
}

Rect BoundedFrame(const Rect& rect) {
  const auto bounded = [](int v) { return std::clamp(v, -(1 << 28), 1 << 28); };
  return {bounded(rect.left), bounded(rect.top), bounded(rect.right), bounded(rect.bottom)};
}

int FrameInset(const CardFrame& frame, const Rect& bounded) {
  const int thickness = frame.hovered ? 3 : 1;
  return std::min({thickness - 1, bounded.right - bounded.left, bounded.bottom - bounded.top});
}

void DrawBorder(PixelBuffer& buffer, const RoundRegion& page, const CardFrame& frame, int phase) {
  const Rect r = BoundedFrame(frame.rect);
  if (r.left > r.right || r.top > r.bottom) return;
  const FrameClip clip(buffer, page);
  const int inset = FrameInset(frame, r);
  if (frame.selected) {
    const FramePattern& pattern = frame.lastSelected ? kLastSelectedDashes : kSelectedDashes;
    ForEachDash(clip, r, inset, [&](int counter, const Rect& strip) {
      if (pattern[CounterIn(phase, counter)]) buffer.Fill(strip, frame.color);
    });
  } else {
    ForEachSolidStrip(clip, r, inset, [&](const Rect& strip) { buffer.Fill(strip, frame.color); });
  }
  if (!frame.picked || !ShowsPicked(phase)) return;
  ForEachPickedDot(clip, r, frame.hovered ? 3 : 1, [&](const Rect& dot) { buffer.Fill(dot, kPickedDot); });
}

void DrawFrames(PixelBuffer& buffer, const RoundRegion& clip, std::span<const CardFrame> frames, int phase) {
  for (const CardFrame& frame : frames) DrawBorder(buffer, clip, frame, phase);
}

void DrawDraggingBox(PixelBuffer& buffer, const Rect& rect) {
  Rect r = BoundedFrame(rect);
  r.Normalize();
  const int width = r.right - r.left;
  const int height = r.bottom - r.top;
  // Three pixels on, three off, once round; every corner belongs to one edge only, or it would take itself away.
  const auto edge = [&](int length, int firstSeen, int limit, int walked, const auto& pixel) {
    for (int i = std::max(0, firstSeen); i < std::min(length, limit); ++i) {
      if ((walked + i) % 6 < 3) pixel(i);
    }
  };
  const int right = buffer.CanvasWidth();
  const int bottom = buffer.CanvasHeight();
  edge(width, -r.left, right - r.left, 0, [&](int i) { buffer.XorPixel(r.left + i, r.top, kWhite); });
  edge(height, -r.top, bottom - r.top, width, [&](int i) { buffer.XorPixel(r.right, r.top + i, kWhite); });
  edge(width, r.right - right + 1, r.right + 1, width + height,
       [&](int i) { buffer.XorPixel(r.right - i, r.bottom, kWhite); });
  edge(height, r.bottom - bottom + 1, r.bottom + 1, 2 * width + height,
       [&](int i) { buffer.XorPixel(r.left, r.bottom - i, kWhite); });
}

}  // namespace xrpt
