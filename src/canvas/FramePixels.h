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

// What can be seen: a picture of so many canvas pixels, and the page on it.
class FrameClip {
 public:
  FrameClip(const PixelBuffer& buffer, const RoundRegion& page)
      : page_(page), width_(buffer.CanvasWidth()), height_(buffer.CanvasHeight()) {}

  int Width() const { return width_; }
  int Height() const { return height_; }
  bool Contains(int x, int y) const { return page_.Contains({x, y}); }

  // Visits the visible part of a rectangle (all edges included) as rectangles that end before right and bottom: a row
  // or a column at a time, whichever are fewer.
  template <class Visit>
  void ForEachStrip(const Rect& r, const Visit& visit) const {
    if (r.bottom - r.top <= r.right - r.left) {
      for (int y = std::max(r.top, 0); y <= std::min(r.bottom, height_ - 1); ++y) {
        const auto [from, to] = Seen(r.left, r.right, page_.Row(y), width_);
        if (from < to) visit(Rect{from, y, to, y + 1});
      }
    } else {
      for (int x = std::max(r.left, 0); x <= std::min(r.right, width_ - 1); ++x) {
        const auto [from, to] = Seen(r.top, r.bottom, page_.Column(x), height_);
        if (from < to) visit(Rect{x, from, x + 1, to});
      }
    }
  }

 private:
  static std::pair<int, int> Seen(int from, int to, std::pair<int, int> line, int limit) {
    return {std::max({from, line.first, 0}), std::min({to + 1, line.second, limit})};
  }

  const RoundRegion& page_;
  int width_;
  int height_;
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
  const auto along = [&](int from, int to, int limit, int counter, const auto& bar) {
    for (int at = std::max(from, 0); at <= std::min(to, limit - 1); ++at) {
      const int count = (counter + at - from) % kFramePhases;
      clip.ForEachStrip(bar(at), [&](const Rect& strip) { visit(count, strip); });
    }
  };
  const int width = r.right - r.left + 1;
  const int height = r.bottom - r.top + 1;
  along(r.left, r.right, clip.Width(), kStart, [&](int x) { return Rect{x, r.top, x, r.top + inset}; });
  along(r.top, r.bottom, clip.Height(), kStart + width, [&](int y) { return Rect{r.right - inset, y, r.right, y}; });
  along(r.top, r.bottom, clip.Height(), kStart, [&](int y) { return Rect{r.left, y, r.left + inset, y}; });
  along(r.left, r.right, clip.Width(), kStart + height, [&](int x) { return Rect{x, r.bottom - inset, x, r.bottom}; });
}

// Every second column and row of what the frame leaves free of a picked card.
template <class Visit>
void ForEachPickedDot(const FrameClip& clip, const Rect& r, int thickness, const Visit& visit) {
  const auto firstSeen = [](int from) { return from >= 0 ? from : -from % 2; };
  for (int y = firstSeen(r.top + thickness); y <= std::min(r.bottom - thickness, clip.Height() - 1); y += 2) {
    for (int x = firstSeen(r.left + thickness); x <= std::min(r.right - thickness, clip.Width() - 1); x += 2) {
      if (clip.Contains(x, y)) visit(Rect{x, y, x + 1, y + 1});
    }
  }
}

}  // namespace xrpt
