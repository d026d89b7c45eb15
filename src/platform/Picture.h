// A decoded picture: 24 bits a pixel, and an alpha plane where the file had one. A large one has no pixels of its own
// but a source that decodes it anew at the size it is wanted in, so that many large pictures do not fill the memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace xrpt {

struct Picture;
// Pictures are shared and never changed once decoded.
using PicturePtr = std::shared_ptr<const Picture>;

class PictureSource {
 public:
  virtual ~PictureSource() = default;
  // The picture at so many pixels. Null when it can no longer be had.
  virtual PicturePtr Decode(int width, int height) const = 0;
};

struct Picture {
  int width = 0;                                  // pixels
  int height = 0;                                 // pixels
  std::vector<std::uint8_t> rgb;                  // 3 * width * height bytes, red first, rows from the top
  std::vector<std::uint8_t> alpha;                // width * height bytes, or empty when the whole picture is opaque
  std::size_t encodedSize = 0;                    // bytes of the file it was decoded from
  bool isDrawing = false;                         // of lines and shapes: however many pixels it has, there were more
  std::shared_ptr<const PictureSource> source{};  // set: there are no pixels here

  static constexpr int kBitsPerPixel = 24;
  const std::uint8_t* Row(int y) const { return rgb.data() + static_cast<std::size_t>(y) * RowBytes(); }
  std::size_t RowBytes() const { return static_cast<std::size_t>(width) * (kBitsPerPixel / 8); }
  std::size_t Bytes() const { return rgb.size() + alpha.size(); }
};

// The picture with its pixels: itself when it has them, otherwise decoded at the size given (0: its own). Null when it
// can no longer be had.
inline PicturePtr WithPixels(const PicturePtr& picture, int width = 0, int height = 0) {
  if (!picture || !picture->source) return picture;
  return picture->source->Decode(width > 0 ? width : picture->width, height > 0 ? height : picture->height);
}

}  // namespace xrpt
