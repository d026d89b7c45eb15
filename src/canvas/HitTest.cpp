#include "canvas/HitTest.h"

namespace xrpt {
namespace {

struct Zone {
  Rect rect;
  int style;
};

// In this order; the first that holds the point wins.
std::array<Zone, 12> Zones(const Rect& c) {
  const int l = c.left, t = c.top, r = c.right, b = c.bottom;
  return {{{{l, t, l + 10, t + 3}, kLeftEdge | kTopEdge},
           {{l, t, l + 3, t + 6}, kLeftEdge | kTopEdge},
           {{l, b - 3, l + 10, b}, kLeftEdge | kBottomEdge},
           {{l, b - 6, l + 3, b}, kLeftEdge | kBottomEdge},
           {{r - 10, t, r, t + 3}, kRightEdge | kTopEdge},
           {{r - 3, t, r, t + 6}, kRightEdge | kTopEdge},
           {{r - 10, b - 3, r, b}, kRightEdge | kBottomEdge},
           {{r - 3, b - 6, r, b}, kRightEdge | kBottomEdge},
           {{l, t, r, t + 3}, kTopEdge},
           {{l, b - 3, r, b}, kBottomEdge},
           {{l, t, l + 3, b}, kLeftEdge},
           {{r - 3, t, r, b}, kRightEdge}}};
}

}  // namespace

HitCard CardAt(const CardList& cards, const PagePlacement& place, Point point) {
  if (!place.IsValid()) return {};
  for (std::size_t i = 0; i < cards.Size(); ++i) {
    const Rect rect = ToPixels(place, RectOf(cards[i]));
    if (rect.Contains(point)) return {&cards[i], rect};
  }
  return {};
}

std::vector<std::size_t> CardsAt(const CardList& cards, const PagePlacement& place, Point point) {
  std::vector<std::size_t> hit;
  for (std::size_t i = 0; place.IsValid() && i < cards.Size(); ++i) {
    if (ToPixels(place, RectOf(cards[i])).Contains(point)) hit.push_back(i);
  }
  return hit;
}

int HandleAt(const Rect& card, Point point) {
  for (const Zone& zone : Zones(card)) {
    if (zone.rect.Contains(point)) return zone.style;
  }
  return kMoveAll;
}

Point FixedCorner(const Rect& c, int style, Point present) {
  if (style == kNoEdge || style == kMoveAll) return present;
  return {style & kLeftEdge ? c.right : c.left, style & kTopEdge ? c.bottom : c.top};
}

Cursor CursorOfStyle(int style, Cursor inside) {
  switch (style) {
    case kLeftEdge:
    case kRightEdge:
      return Cursor::SizeWE;
    case kTopEdge:
    case kBottomEdge:
      return Cursor::SizeNS;
    case kLeftEdge | kBottomEdge:
    case kRightEdge | kTopEdge:
      return Cursor::SizeNESW;
    case kRightEdge | kBottomEdge:
    case kLeftEdge | kTopEdge:
      return Cursor::SizeNWSE;
    case kMoveAll:
      return inside;
    default:
      return Cursor::Arrow;
  }
}

bool Intersects(const Rect& a, const Rect& b) {
  return std::max(a.left, b.left) < std::min(a.right, b.right) && std::max(a.top, b.top) < std::min(a.bottom, b.bottom);
}

}  // namespace xrpt
