// Pictures of a format of the tests' own, where it matters only whether bytes are a picture.
#pragma once

#include <memory>
#include <string_view>

#include "platform/Picture.h"

namespace xrpt {

// Whatever begins with "PIC" is one pixel; nothing else is a picture.
class OwnFormat final : public PictureService {
 public:
  PicturePtr Decode(std::string_view bytes) override {
    if (!bytes.starts_with("PIC")) return nullptr;
    auto picture = std::make_shared<Picture>();
    picture->width = picture->height = 1;
    picture->rgb.resize(3);
    return picture;
  }
};

}  // namespace xrpt
