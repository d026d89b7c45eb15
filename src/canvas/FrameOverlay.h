// Frames over a page picture that is shown again and again while only dashes march: what stands still is drawn once,
// what moves is kept as a list of pixels, and a tick copies the one and sets the other. Where texts move under the
// frames, only those places are copied.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "canvas/Frames.h"

namespace xrpt {

class FrameOverlay {
 public:
  // Takes the page's picture and draws the frames that stand still over it. Anew whenever the picture changes.
  void Build(const PixelBuffer& page, const RoundRegion& clip, std::span<const CardFrame> frames);
  // The same inside a rectangle, where frames have changed. `touching`: the places of the frames that meet it, rising.
  void Rebuild(const PixelBuffer& page, const RoundRegion& clip, std::span<const CardFrame> frames,
               std::span<const std::uint32_t> touching, const Rect& part);
  // The picture with all frames, as `DrawFrames` draws them in that phase. The target is as large as the page's
  // picture.
  void Compose(PixelBuffer& target, int phase) const;

  // Where the page's picture will change under its frames; until a frame is built anew.
  void Watch(std::span<const Rect> parts);
  // Takes the picture again there.
  void TakeWatched(const PixelBuffer& page);
  // Brings a target that was composed in this phase up to date there.
  void ComposeWatched(PixelBuffer& target, int phase) const;

 private:
  enum class Kind : std::uint8_t { Selected, LastSelected, Picked };
  struct MovingPixel {
    Rect strip;
    Color color;
    std::uint32_t order;  // of its frame
    Kind kind;
    std::uint8_t counter;
  };
  struct Strip {
    Rect rect;
    Color color;
  };
  class Builder;

  PixelBuffer Still(const PixelBuffer& like) const;
  std::size_t Index(int x, int y) const;
  void KeepStrips(const Rect& part);
  void SetMoving(PixelBuffer& target, int phase, std::span<const MovingPixel> pixels) const;

  mutable std::vector<std::uint32_t> still_;
  std::vector<MovingPixel> moving_;
  int width_ = 0;                       // canvas pixels
  int height_ = 0;                      // canvas pixels
  std::vector<std::uint32_t> covered_;  // of each canvas pixel: the last frame that covers it for good, from 1; or 0
  std::vector<Color> colors_;           // of the frames

  std::vector<Rect> watched_;
  std::vector<Strip> strips_;               // of the frames that stand still, where the picture will change
  std::vector<MovingPixel> watchedMoving_;  // of `moving_`, those there
};

}  // namespace xrpt
