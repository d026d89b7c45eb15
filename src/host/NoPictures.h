// Stands in where no picture decoder is built in: every picture is one that cannot be read.
#pragma once

#include "platform/Host.h"

namespace xrpt {

class NoPictures final : public PictureService {
 public:
  PicturePtr Decode(std::string_view) override { return nullptr; }
  bool CanDecode() const override { return false; }
};

}  // namespace xrpt
