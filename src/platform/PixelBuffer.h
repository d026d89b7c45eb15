// A picture in memory that frames, grid dots and the drag outline are drawn into pixel by pixel, over whatever is
// there.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/Color.h"
#include "platform/Geometry.h"

namespace xrpt {

// Pixels are 32 bits 0xFFRRGGBB, as screens hold them. On a screen of higher density one canvas pixel is a block of
// `scale` by `scale` device pixels; callers only ever name canvas pixels. Outside the picture nothing is drawn.
struct PixelBuffer {
  std::uint32_t* bits = nullptr;
  int width = 0;              // device pixels
  int height = 0;             // device pixels
  std::ptrdiff_t stride = 0;  // device pixels from one row to the next
  double scale = 1.0;

  void SetPixel(int x, int y, Color color) { Fill({x, y, x + 1, y + 1}, color); }
  // All pixels of a rectangle.
  void Fill(const Rect& rect, Color color) {
    const std::uint32_t value =
        0xFF000000u | std::uint32_t{RedOf(color)} << 16 | std::uint32_t{GreenOf(color)} << 8 | BlueOf(color);
    ForBlock(rect, [value](std::uint32_t& pixel) { pixel = value; });
  }
  // Drawing the same pixel twice gives back what was there.
  void XorPixel(int x, int y, Color color) {
    const std::uint32_t value = std::uint32_t{RedOf(color)} << 16 | std::uint32_t{GreenOf(color)} << 8 | BlueOf(color);
    ForBlock({x, y, x + 1, y + 1}, [value](std::uint32_t& pixel) { pixel ^= value; });
  }
  // The device pixels of a rectangle, as far as they are in the picture.
  Rect DeviceRect(const Rect& canvas) const {
    return {Device(canvas.left, width), Device(canvas.top, height), Device(canvas.right, width),
            Device(canvas.bottom, height)};
  }
  // Canvas pixels, the last one perhaps cut.
  int CanvasWidth() const { return static_cast<int>(std::ceil(width / scale)); }
  int CanvasHeight() const { return static_cast<int>(std::ceil(height / scale)); }

 private:
  template <class Change>
  void ForBlock(const Rect& rect, const Change& change) {
    const Rect device = DeviceRect(rect);
    for (int row = device.top; row < device.bottom; ++row) {
      std::uint32_t* pixels = bits + row * stride;
      for (int column = device.left; column < device.right; ++column) change(pixels[column]);
    }
  }
  // As painters round the edges of what they fill and clip.
  int Device(int canvas, int limit) const {
    return std::clamp(scale == 1.0 ? canvas : roundi(canvas * scale), 0, limit);
  }
};

}  // namespace xrpt
