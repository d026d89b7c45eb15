#include "canvas/Frames.h"

#include <cstdint>

namespace xrpt {
namespace {

constexpr Color kPickedDot = 0x0000FF;
constexpr bool kSelectedDashes[kFramePhases] = {true, true, false, false, false, false};
constexpr bool kLastSelectedDashes[kFramePhases] = {true, true, true, true, true, false};

// How far a rounded corner takes the pixels of one line in: `depth` pixels from the edge that is rounded over `radius`,
// along an edge rounded over `along`.
int CornerInset(int depth, int radius, int along) {
  if (depth >= radius) return 0;
  const double reach = (radius - depth - 0.5) / radius;
  return roundi(along - along * std::sqrt(std::max(0.0, 1.0 - reach * reach)));
}

// The pixels from..to, both included, of the part of a line that can be seen.
struct Stretch {
  std::int64_t from;
  std::int64_t to;
};

Stretch Visible(int from, int to, std::pair<int, int> limits) {
  return {std::max<std::int64_t>(from, limits.first), std::min<std::int64_t>(to, limits.second - 1)};
}

class FramePainter {
 public:
  FramePainter(PixelBuffer& buffer, const RoundRegion& clip, Color color)
      : buffer_(buffer), clip_(clip), color_(color) {}

  // Edges included. Long bands cost a row or a column each, not a pixel.
  void Rows(int left, int right, int top, int bottom) {
    const Stretch rows = Visible(top, bottom, {0, buffer_.CanvasHeight()});
    for (auto y = rows.from; y <= rows.to; ++y) {
      const Stretch row = Visible(left, right, clip_.Row(static_cast<int>(y)));
      Fill(row.from, y, row.to, y);
    }
  }
  void Columns(int left, int right, int top, int bottom) {
    const Stretch columns = Visible(left, right, {0, buffer_.CanvasWidth()});
    for (auto x = columns.from; x <= columns.to; ++x) {
      const Stretch column = Visible(top, bottom, clip_.Column(static_cast<int>(x)));
      Fill(x, column.from, x, column.to);
    }
  }

  // Dashes across `thickness` pixels; `counter` belongs to the first position of the edge.
  template <class Draw>
  void Dashes(Stretch edge, std::pair<int, int> limits, std::int64_t counter, const bool (&pattern)[kFramePhases],
              const Draw& draw) {
    const Stretch seen = Visible(static_cast<int>(edge.from), static_cast<int>(edge.to), limits);
    for (auto at = seen.from; at <= seen.to; ++at) {
      if (pattern[(counter + at - edge.from) % kFramePhases]) draw(static_cast<int>(at));
    }
  }

  void Dot(int x, int y) {
    if (clip_.Contains({x, y})) buffer_.SetPixel(x, y, color_);
  }
  std::pair<int, int> Width() const { return {0, buffer_.CanvasWidth()}; }
  std::pair<int, int> Height() const { return {0, buffer_.CanvasHeight()}; }

 private:
  void Fill(std::int64_t left, std::int64_t top, std::int64_t right, std::int64_t bottom) {
    if (left > right || top > bottom) return;
    buffer_.Fill(
        {static_cast<int>(left), static_cast<int>(top), static_cast<int>(right + 1), static_cast<int>(bottom + 1)},
        color_);
  }

  PixelBuffer& buffer_;
  const RoundRegion& clip_;
  Color color_;
};

// `inset` is the thickness less one: the frame reaches that many pixels further in.
void DrawSolid(FramePainter& painter, const Rect& r, int inset) {
  painter.Rows(r.left, r.right, r.top, r.top + inset);
  painter.Rows(r.left, r.right, r.bottom - inset, r.bottom);
  painter.Columns(r.left, r.left + inset, r.top, r.bottom);
  painter.Columns(r.right - inset, r.right, r.top, r.bottom);
}

// The dashes run along the top and on down the right edge, and again down the left edge and on along the bottom.
void DrawDashed(FramePainter& painter, const Rect& r, int inset, int phase, const bool (&pattern)[kFramePhases]) {
  const std::int64_t start = kFramePhases - 1 - phase;
  const std::int64_t width = std::int64_t{r.right} - r.left + 1;
  const std::int64_t height = std::int64_t{r.bottom} - r.top + 1;
  painter.Dashes({r.left, r.right}, painter.Width(), start, pattern,
                 [&](int x) { painter.Columns(x, x, r.top, r.top + inset); });
  painter.Dashes({r.top, r.bottom}, painter.Height(), start + width, pattern,
                 [&](int y) { painter.Rows(r.right - inset, r.right, y, y); });
  painter.Dashes({r.top, r.bottom}, painter.Height(), start, pattern,
                 [&](int y) { painter.Rows(r.left, r.left + inset, y, y); });
  painter.Dashes({r.left, r.right}, painter.Width(), start + height, pattern,
                 [&](int x) { painter.Columns(x, x, r.bottom - inset, r.bottom); });
}

// Every second column and row of what the frame leaves free.
void DrawPicked(FramePainter& painter, const Rect& r, int thickness) {
  const auto firstSeen = [](std::int64_t from) { return from >= 0 ? from : -from % 2; };
  const auto last = [](std::int64_t to, int limit) { return std::min<std::int64_t>(to, limit - 1); };
  const auto right = last(std::int64_t{r.right} - thickness, painter.Width().second);
  const auto bottom = last(std::int64_t{r.bottom} - thickness, painter.Height().second);
  for (auto y = firstSeen(std::int64_t{r.top} + thickness); y <= bottom; y += 2) {
    for (auto x = firstSeen(std::int64_t{r.left} + thickness); x <= right; x += 2) {
      painter.Dot(static_cast<int>(x), static_cast<int>(y));
    }
  }
}

// Far outside any screen, and small enough to add to.
Rect Bounded(const Rect& r) {
  const auto bounded = [](int v) { return std::clamp(v, -(1 << 28), 1 << 28); };
  return {bounded(r.left), bounded(r.top), bounded(r.right), bounded(r.bottom)};
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

void DrawBorder(PixelBuffer& buffer, const RoundRegion& clip, const CardFrame& frame, int phase) {
  const Rect r = Bounded(frame.rect);
  if (r.left > r.right || r.top > r.bottom) return;
  const int thickness = frame.hovered ? 3 : 1;
  // A card thinner than its frame is filled by it.
  const int inset = std::min({thickness - 1, r.right - r.left, r.bottom - r.top});
  FramePainter painter(buffer, clip, frame.color);
  if (frame.selected) {
    DrawDashed(painter, r, inset, phase, frame.lastSelected ? kLastSelectedDashes : kSelectedDashes);
  } else {
    DrawSolid(painter, r, inset);
  }
  if (!frame.picked || phase % 4 == 0) return;
  FramePainter dots(buffer, clip, kPickedDot);
  DrawPicked(dots, r, thickness);
}

void DrawFrames(PixelBuffer& buffer, const RoundRegion& clip, std::span<const CardFrame> frames, int phase) {
  for (const CardFrame& frame : frames) DrawBorder(buffer, clip, frame, phase);
}

void DrawDraggingBox(PixelBuffer& buffer, const Rect& rect) {
  Rect r = Bounded(rect);
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
