// Pictures decoded by the toolkit's readers, within bounds.
#pragma once

#include <QImage>

#include "platform/Host.h"

namespace xrpt {

class QtPictures final : public PictureService {
 public:
  static constexpr std::size_t kMaxBytes = 64u << 20;
  static constexpr qint64 kMaxPixels = 64 << 20;

  QtPictures();
  PicturePtr Decode(std::string_view bytes) override { return DecodeScaled(bytes, 0, 0); }
  PicturePtr Outline(std::string_view bytes) override;
  PicturePtr DecodeScaled(std::string_view bytes, int width, int height) override;
};

// Between the library's pictures and the toolkit's.
PicturePtr FromImage(const QImage& image, std::size_t encodedSize, bool isDrawing = false);
QImage ToImage(const Picture& picture);

}  // namespace xrpt
