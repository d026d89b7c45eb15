// Frames over a page picture that is shown again and again while only dashes march: what stands still is drawn once,
// what moves is kept as a list of pixels, and a tick copies the one and sets the other.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "canvas/Frames.h"

namespace xrpt {

class FrameOverlay {
 public:
  // Takes the page's picture and draws the frames that stand still over it. Anew whenever the picture, a frame or the
  // card under the pointer changes.
  void Build(const PixelBuffer& page, const RoundRegion& clip, std::span<const CardFrame> frames);
  // The picture with all frames, as `DrawFrames` draws them in that phase. The target is as large as the page's
  // picture.
  void Compose(PixelBuffer& target, int phase) const;

 private:
  enum class Kind : std::uint8_t { Selected, LastSelected, Picked };
  struct MovingPixel {
    Rect strip;
    Color color;
    std::uint32_t order;  // of its frame
    Kind kind;
    std::uint8_t counter;
  };
  class Builder;

  std::vector<std::uint32_t> still_;
  std::vector<MovingPixel> moving_;
};

}  // namespace xrpt
