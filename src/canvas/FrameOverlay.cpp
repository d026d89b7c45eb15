#include "canvas/FrameOverlay.h"

#include <algorithm>
#include <cstring>

#include "canvas/FramePixels.h"

namespace xrpt {
namespace {

Rect OnCanvas(const Rect& rect, int width, int height) {
  return {std::max(rect.left, 0), std::max(rect.top, 0), std::min(rect.right, width), std::min(rect.bottom, height)};
}

// Pictures of one size.
void CopyRows(const PixelBuffer& from, PixelBuffer& to, const Rect& part) {
  const Rect pixels = from.DeviceRect(part);
  if (pixels.left >= pixels.right) return;
  const std::size_t bytes = static_cast<std::size_t>(pixels.right - pixels.left) * 4;
  for (int y = pixels.top; y < pixels.bottom; ++y) {
    std::memcpy(to.bits + y * to.stride + pixels.left, from.bits + y * from.stride + pixels.left, bytes);
  }
}

Rect Whole(const PixelBuffer& picture) { return {0, 0, picture.CanvasWidth(), picture.CanvasHeight()}; }

}  // namespace

// Draws what stands still and lists what moves, in the order of the frames: a pixel that a later frame covers for good
// moves no more.
class FrameOverlay::Builder {
 public:
  Builder(FrameOverlay& overlay, const PixelBuffer& still, const FrameClip& clip)
      : overlay_(overlay), still_(still), clip_(clip), first_(overlay.moving_.size()) {}

  // `order` counts the frames from 1.
  void Add(const CardFrame& frame, std::uint32_t order) {
    order_ = order;
    const Rect r = BoundedFrame(frame.rect);
    if (r.left > r.right || r.top > r.bottom) return;
    const int inset = FrameInset(frame, r);
    if (frame.selected) {
      const Kind kind = frame.lastSelected ? Kind::LastSelected : Kind::Selected;
      ForEachDash(clip_, r, inset, [&](int counter, const Rect& strip) { Keep(strip, frame.color, kind, counter); });
    } else {
      ForEachSolidStrip(clip_, r, inset, [&](const Rect& strip) { Cover(strip, frame.color); });
    }
    if (!frame.picked) return;
    ForEachPickedDot(clip_, r, frame.hovered ? 3 : 1,
                     [this](const Rect& dot) { Keep(dot, kPickedDot, Kind::Picked, 0); });
  }

  void Finish() {
    const auto first = overlay_.moving_.begin() + static_cast<std::ptrdiff_t>(first_);
    const auto isCovered = [this](const MovingPixel& pixel) {
      return overlay_.covered_[overlay_.Index(pixel.strip.left, pixel.strip.top)] > pixel.order;
    };
    overlay_.moving_.erase(std::remove_if(first, overlay_.moving_.end(), isCovered), overlay_.moving_.end());
  }

 private:
  void Cover(const Rect& strip, Color color) {
    still_.Fill(strip, color);
    for (int y = strip.top; y < strip.bottom; ++y) {
      const auto row = overlay_.covered_.begin() + static_cast<std::ptrdiff_t>(overlay_.Index(strip.left, y));
      std::fill(row, row + (strip.right - strip.left), order_);
    }
  }
  // A thick dash is a pixel each, for each may be covered by itself.
  void Keep(const Rect& strip, Color color, Kind kind, int counter) {
    for (int y = strip.top; y < strip.bottom; ++y) {
      for (int x = strip.left; x < strip.right; ++x) {
        overlay_.moving_.push_back({{x, y, x + 1, y + 1}, color, order_, kind, static_cast<std::uint8_t>(counter)});
      }
    }
  }

  FrameOverlay& overlay_;
  PixelBuffer still_;
  const FrameClip& clip_;
  std::size_t first_;  // of the moving pixels that are added now
  std::uint32_t order_ = 0;
};

std::size_t FrameOverlay::Index(int x, int y) const {
  return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
}

PixelBuffer FrameOverlay::Still(const PixelBuffer& like) const {
  PixelBuffer still = like;
  still.bits = still_.data();
  still.stride = like.width;
  return still;
}

void FrameOverlay::Build(const PixelBuffer& page, const RoundRegion& clip, std::span<const CardFrame> frames) {
  still_.resize(static_cast<std::size_t>(std::max(page.width, 0)) * static_cast<std::size_t>(std::max(page.height, 0)));
  width_ = page.CanvasWidth();
  height_ = page.CanvasHeight();
  covered_.assign(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), 0);
  moving_.clear();
  colors_.clear();
  Watch({});
  PixelBuffer still = Still(page);
  CopyRows(page, still, Whole(page));
  const FrameClip seen(still, clip);
  Builder builder(*this, still, seen);
  std::uint32_t order = 0;
  for (const CardFrame& frame : frames) {
    colors_.push_back(frame.color);
    builder.Add(frame, ++order);
  }
  builder.Finish();
}

void FrameOverlay::Rebuild(const PixelBuffer& page, const RoundRegion& clip, std::span<const CardFrame> frames,
                           std::span<const std::uint32_t> touching, const Rect& part) {
  const Rect seen = OnCanvas(part, width_, height_);
  if (seen.left >= seen.right || seen.top >= seen.bottom) return;
  PixelBuffer still = Still(page);
  CopyRows(page, still, seen);
  for (int y = seen.top; y < seen.bottom; ++y) {
    const auto row = covered_.begin() + static_cast<std::ptrdiff_t>(Index(seen.left, y));
    std::fill(row, row + (seen.right - seen.left), 0u);
  }
  std::erase_if(moving_, [&](const MovingPixel& pixel) { return seen.Contains({pixel.strip.left, pixel.strip.top}); });
  const FrameClip limit(still, clip, seen);
  Builder builder(*this, still, limit);
  for (const std::uint32_t place : touching) builder.Add(frames[place], place + 1);
  builder.Finish();
}

void FrameOverlay::Watch(std::span<const Rect> parts) {
  watched_.clear();
  strips_.clear();
  watchedMoving_.clear();
  if (parts.empty()) return;
  std::vector<bool> isWatched(covered_.size());
  for (const Rect& part : parts) {
    const Rect seen = OnCanvas(part, width_, height_);
    if (seen.left >= seen.right || seen.top >= seen.bottom) continue;
    watched_.push_back(seen);
    KeepStrips(seen);
    for (int y = seen.top; y < seen.bottom; ++y) {
      for (int x = seen.left; x < seen.right; ++x) isWatched[Index(x, y)] = true;
    }
  }
  for (const MovingPixel& pixel : moving_) {
    if (isWatched[Index(pixel.strip.left, pixel.strip.top)]) watchedMoving_.push_back(pixel);
  }
}

// Of the frames that cover the part, row by row.
void FrameOverlay::KeepStrips(const Rect& part) {
  for (int y = part.top; y < part.bottom; ++y) {
    for (int x = part.left; x < part.right;) {
      const std::uint32_t frame = covered_[Index(x, y)];
      const int from = x;
      while (x < part.right && covered_[Index(x, y)] == frame) ++x;
      if (frame != 0) strips_.push_back({{from, y, x, y + 1}, colors_[frame - 1]});
    }
  }
}

void FrameOverlay::SetMoving(PixelBuffer& target, int phase, std::span<const MovingPixel> pixels) const {
  bool shown[3][kFramePhases];
  for (int counter = 0; counter < kFramePhases; ++counter) {
    shown[static_cast<int>(Kind::Selected)][counter] = kSelectedDashes[CounterIn(phase, counter)];
    shown[static_cast<int>(Kind::LastSelected)][counter] = kLastSelectedDashes[CounterIn(phase, counter)];
    shown[static_cast<int>(Kind::Picked)][counter] = ShowsPicked(phase);
  }
  for (const MovingPixel& pixel : pixels) {
    if (shown[static_cast<int>(pixel.kind)][pixel.counter]) target.Fill(pixel.strip, pixel.color);
  }
}

void FrameOverlay::Compose(PixelBuffer& target, int phase) const {
  const auto width = static_cast<std::size_t>(std::max(target.width, 0));
  if (still_.size() != width * static_cast<std::size_t>(std::max(target.height, 0))) return;
  for (int y = 0; y < target.height; ++y) {
    std::memcpy(target.bits + y * target.stride, still_.data() + static_cast<std::size_t>(y) * width, width * 4);
  }
  SetMoving(target, phase, moving_);
}

void FrameOverlay::TakeWatched(const PixelBuffer& page) {
  PixelBuffer still = Still(page);
  for (const Rect& part : watched_) CopyRows(page, still, part);
  for (const Strip& strip : strips_) still.Fill(strip.rect, strip.color);
}

void FrameOverlay::ComposeWatched(PixelBuffer& target, int phase) const {
  const PixelBuffer still = Still(target);
  for (const Rect& part : watched_) CopyRows(still, target, part);
  SetMoving(target, phase, watchedMoving_);
}

}  // namespace xrpt
