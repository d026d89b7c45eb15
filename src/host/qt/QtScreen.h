// The user's main screen.
#pragma once

#include "platform/Host.h"

namespace xrpt {

class QtScreen final : public ScreenService {
 public:
  // Above 0 these dots per inch stand for the screen's own.
  explicit QtScreen(int dpi) : dpi_(dpi) {}
  int DpiX() const override;
  int DpiY() const override;
  Color ButtonFace() const override;

 private:
  int dpi_;
};

}  // namespace xrpt
