#include "canvas/FrameOverlay.h"

#include <cstring>

#include "canvas/FramePixels.h"

namespace xrpt {

// Draws what stands still and lists what moves, in the order of the frames: a pixel that a later frame covers for good
// moves no more.
class FrameOverlay::Builder {
 public:
  Builder(FrameOverlay& overlay, const PixelBuffer& still, const RoundRegion& clip)
      : overlay_(overlay), still_(still), clip_(still, clip) {
    covered_.assign(static_cast<std::size_t>(clip_.Width()) * static_cast<std::size_t>(clip_.Height()), 0);
  }

  void Add(const CardFrame& frame) {
    ++order_;
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
    std::erase_if(overlay_.moving_, [this](const MovingPixel& pixel) {
      return covered_[Index(pixel.strip.left, pixel.strip.top)] > pixel.order;
    });
  }

 private:
  std::size_t Index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(clip_.Width()) + static_cast<std::size_t>(x);
  }

  void Cover(const Rect& strip, Color color) {
    still_.Fill(strip, color);
    for (int y = strip.top; y < strip.bottom; ++y) {
      const auto row = covered_.begin() + static_cast<std::ptrdiff_t>(Index(strip.left, y));
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
  FrameClip clip_;
  std::vector<std::uint32_t> covered_;  // the last frame that covers a canvas pixel for good
  std::uint32_t order_ = 0;
};

void FrameOverlay::Build(const PixelBuffer& page, const RoundRegion& clip, std::span<const CardFrame> frames) {
  const auto width = static_cast<std::size_t>(std::max(page.width, 0));
  still_.resize(width * static_cast<std::size_t>(std::max(page.height, 0)));
  for (int y = 0; y < page.height; ++y) {
    std::memcpy(still_.data() + static_cast<std::size_t>(y) * width, page.bits + y * page.stride, width * 4);
  }
  moving_.clear();
  PixelBuffer still = page;
  still.bits = still_.data();
  still.stride = page.width;
  Builder builder(*this, still, clip);
  for (const CardFrame& frame : frames) builder.Add(frame);
  builder.Finish();
}

void FrameOverlay::Compose(PixelBuffer& target, int phase) const {
  const auto width = static_cast<std::size_t>(std::max(target.width, 0));
  if (still_.size() != width * static_cast<std::size_t>(std::max(target.height, 0))) return;
  for (int y = 0; y < target.height; ++y) {
    std::memcpy(target.bits + y * target.stride, still_.data() + static_cast<std::size_t>(y) * width, width * 4);
  }
  bool shown[3][kFramePhases];
  for (int counter = 0; counter < kFramePhases; ++counter) {
    shown[static_cast<int>(Kind::Selected)][counter] = kSelectedDashes[CounterIn(phase, counter)];
    shown[static_cast<int>(Kind::LastSelected)][counter] = kLastSelectedDashes[CounterIn(phase, counter)];
    shown[static_cast<int>(Kind::Picked)][counter] = ShowsPicked(phase);
  }
  for (const MovingPixel& pixel : moving_) {
    if (shown[static_cast<int>(pixel.kind)][pixel.counter]) target.Fill(pixel.strip, pixel.color);
  }
}

}  // namespace xrpt
