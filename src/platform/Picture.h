// A decoded picture: 24 bits a pixel, and an alpha plane where the file had one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace xrpt {

struct Picture {
  int width = 0;                    // pixels
  int height = 0;                   // pixels
  std::vector<std::uint8_t> rgb;    // 3 * width * height bytes, red first, rows from the top
  std::vector<std::uint8_t> alpha;  // width * height bytes, or empty when the whole picture is opaque
  std::size_t encodedSize = 0;      // bytes of the file it was decoded from
  bool isDrawing = false;           // of lines and shapes: however many pixels it has, there were more to be had

  static constexpr int kBitsPerPixel = 24;
  const std::uint8_t* Row(int y) const { return rgb.data() + static_cast<std::size_t>(y) * RowBytes(); }
  std::size_t RowBytes() const { return static_cast<std::size_t>(width) * (kBitsPerPixel / 8); }
};

// Pictures are shared and never changed once decoded.
using PicturePtr = std::shared_ptr<const Picture>;

}  // namespace xrpt
