// The pixels of a card's frame, for whoever draws them now (`DrawBorder`) or keeps them for later (`FrameOverlay`).
#pragma once

#include <cstdint>

#include "canvas/Frames.h"

namespace xrpt {

inline constexpr Color kPickedDot = 0x0000FF;

// Whether a dash is drawn, by its counter.
using FramePattern = bool[kFramePhases];
inline constexpr FramePattern kSelectedDashes = {true, true, false, false, false, false};
inline constexpr FramePattern kLastSelectedDashes = {true, true, true, true, true, false};

// The counter of a dash that has `counter` in phase 0.
constexpr int CounterIn(int phase, int counter) { return (counter + kFramePhases - phase) % kFramePhases; }
constexpr bool ShowsPicked(int phase) { return phase % 4 != 0; }

// Far outside any screen, and small enough to calculate with.
Rect BoundedFrame(const Rect& rect);
// The thickness of a frame less one; a card thinner than its frame is filled by it.
int FrameInset(const CardFrame& frame, const Rect& bounded);

// What can be seen: a picture of so many canvas pixels, or a part of it, and the page on it.
class FrameClip {
 public:
  FrameClip(const PixelBuffer& buffer, const RoundRegion& page)
      : FrameClip(buffer, page, {0, 0, buffer.CanvasWidth(), buffer.CanvasHeight()}) {}
  FrameClip(const PixelBuffer& buffer, const RoundRegion& page, const Rect& part) : page_(page) {
    limit_ = {std::max(part.left, 0), std::max(part.top, 0), std::min(part.right, buffer.CanvasWidth()),
              std::min(part.bottom, buffer.CanvasHeight())};
  }

  // Ends before right and bottom.
  const Rect& Limit() const { return limit_; }
  bool Contains(int x, int y) const { return page_.Contains({x, y}); }

  // Visits the visible part of a rectangle (all edges included) as rectangles that end before right and bottom: a row
  // or a column at a time, whichever are fewer.
  template <class Visit>
  void ForEachStrip(const Rect& r, const Visit& visit) const {
    if (r.bottom - r.top <= r.right - r.left) {
      for (int y = std::max(r.top, limit_.top); y <= std::min(r.bottom, limit_.bottom - 1); ++y) {
        const auto [from, to] = Seen(r.left, r.right, page_.Row(y), limit_.left, limit_.right);
        if (from < to) visit(Rect{from, y, to, y + 1});
      }
    } else {
      for (int x = std::max(r.left, limit_.left); x <= std::min(r.right, limit_.right - 1); ++x) {
        const auto [from, to] = Seen(r.top, r.bottom, page_.Column(x), limit_.top, limit_.bottom);
        if (from < to) visit(Rect{x, from, x + 1, to});
      }
    }
  }

 private:
  static std::pair<int, int> Seen(int from, int to, std::pair<int, int> line, int first, int limit) {
    return {std::max({from, line.first, first}), std::min({to + 1, line.second, limit})};
  }

  const RoundRegion& page_;
  Rect limit_;
};

// The strips of a frame that is not selected.
template <class Visit>
void ForEachSolidStrip(const FrameClip& clip, const Rect& r, int inset, const Visit& visit) {
  clip.ForEachStrip({r.left, r.top, r.right, r.top + inset}, visit);
  clip.ForEachStrip({r.left, r.bottom - inset, r.right, r.bottom}, visit);
  clip.ForEachStrip({r.left, r.top, r.left + inset, r.bottom}, visit);
  clip.ForEachStrip({r.right - inset, r.top, r.right, r.bottom}, visit);
}

// The positions of a selected card's frame with their counters in phase 0. The count runs along the top and on down the
// right edge, and again down the left edge and on along the bottom.
template <class Visit>
void ForEachDash(const FrameClip& clip, const Rect& r, int inset, const Visit& visit) {
  constexpr int kStart = kFramePhases - 1;
  const Rect& seen = clip.Limit();
  const auto along = [&](int from, int to, int first, int limit, int counter, const auto& bar) {
    for (int at = std::max(from, first); at <= std::min(to, limit - 1); ++at) {
      const int count = (counter + at - from) % kFramePhases;
      clip.ForEachStrip(bar(at), [&](const Rect& strip) { visit(count, strip); });
    }
  };
  const int width = r.right - r.left + 1;
  const int height = r.bottom - r.top + 1;
  const auto across = [&](int counter, const auto& bar) {
    along(r.left, r.right, seen.left, seen.right, counter, bar);
  };
  const auto down = [&](int counter, const auto& bar) { along(r.top, r.bottom, seen.top, seen.bottom, counter, bar); };
  across(kStart, [&](int x) { return Rect{x, r.top, x, r.top + inset}; });
  down(kStart + width, [&](int y) { return Rect{r.right - inset, y, r.right, y}; });
  down(kStart, [&](int y) { return Rect{r.left, y, r.left + inset, y}; });
  across(kStart + height, [&](int x) { return Rect{x, r.bottom - inset, x, r.bottom}; });
}

// Every second column and row of what the frame leaves free of a picked card.
template <class Visit>
void ForEachPickedDot(const FrameClip& clip, const Rect& r, int thickness, const Visit& visit) {
  const Rect& seen = clip.Limit();
  const auto first = [](int from, int limit) { return from >= limit ? from : from + (limit - from + 1) / 2 * 2; };
  for (int y = first(r.top + thickness, seen.top); y <= std::min(r.bottom - thickness, seen.bottom - 1); y += 2) {
    for (int x = first(r.left + thickness, seen.left); x <= std::min(r.right - thickness, seen.right - 1); x += 2) {
      if (clip.Contains(x, y)) visit(Rect{x, y, x + 1, y + 1});
    }
  }
}

}  // namespace xrpt
