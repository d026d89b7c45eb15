#include "canvas/Handles.h"

#include <algorithm>
#include <cstdlib>

namespace xrpt {
namespace {

constexpr int kHalfDrawn = 3;
constexpr int kHalfGrabbed = 6;
constexpr int kOutward = 2;  // corners stand out a little, so that small cards keep an inside
constexpr int kShortestWithMiddle = 30;
constexpr int kSmallest = 18;

// One side of the rectangle at a distance outside of it, `thick` pixels wide.
void DrawRing(PixelBuffer& buffer, const Rect& card, int distance, int thick, Color color) {
  const Rect outer{card.left - distance, card.top - distance, card.right + distance + 1, card.bottom + distance + 1};
  buffer.Fill({outer.left, outer.top, outer.right, outer.top + thick}, color);
  buffer.Fill({outer.left, outer.bottom - thick, outer.right, outer.bottom}, color);
  buffer.Fill({outer.left, outer.top, outer.left + thick, outer.bottom}, color);
  buffer.Fill({outer.right - thick, outer.top, outer.right, outer.bottom}, color);
}

Rect Square(Point center, int half) {
  return {center.x - half, center.y - half, center.x + half + 1, center.y + half + 1};
}

void DrawHandle(PixelBuffer& buffer, Point at, Color color, bool filled) {
  buffer.Fill(Square(at, kHalfDrawn + 1), kWhite);
  buffer.Fill(Square(at, kHalfDrawn), color);
  if (!filled) buffer.Fill(Square(at, kHalfDrawn - 1), kWhite);
}

}  // namespace

std::vector<Handle> HandlesOf(const Rect& r) {
  const int l = r.left - kOutward, t = r.top - kOutward, right = r.right + kOutward, bottom = r.bottom + kOutward;
  const int x = (r.left + r.right) / 2, y = (r.top + r.bottom) / 2;
  std::vector<Handle> handles = {{{l, t}, kLeftEdge | kTopEdge},
                                 {{right, t}, kRightEdge | kTopEdge},
                                 {{l, bottom}, kLeftEdge | kBottomEdge},
                                 {{right, bottom}, kRightEdge | kBottomEdge}};
  if (r.Width() >= kShortestWithMiddle) {
    handles.push_back({{x, t}, kTopEdge});
    handles.push_back({{x, bottom}, kBottomEdge});
  }
  if (r.Height() >= kShortestWithMiddle) {
    handles.push_back({{l, y}, kLeftEdge});
    handles.push_back({{right, y}, kRightEdge});
  }
  return handles;
}

bool IsTooSmallForBands(const Rect& card) { return std::min(card.Width(), card.Height()) < kSmallest; }

int VisibleHandleAt(const Rect& card, Point point) {
  if (card.Contains(point) && IsTooSmallForBands(card)) return kNoEdge;
  for (const Handle& handle : HandlesOf(card)) {
    const int away = std::max(std::abs(point.x - handle.center.x), std::abs(point.y - handle.center.y));
    if (away <= kHalfGrabbed) return handle.style;
  }
  return kNoEdge;
}

void DrawSelectionMarks(PixelBuffer& buffer, std::span<const Rect> cards, Color color) {
  for (const Rect& card : cards) {
    DrawRing(buffer, card, 3, 1, kWhite);
    DrawRing(buffer, card, 2, 2, color);
  }
  if (cards.size() > kMostWithHandles) return;
  for (const Rect& card : cards) {
    const bool isLast = &card == &cards.back() && cards.size() > 1;
    for (const Handle& handle : HandlesOf(card)) DrawHandle(buffer, handle.center, color, isLast);
  }
}

}  // namespace xrpt
