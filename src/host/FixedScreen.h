// A screen nobody looks at: a command line or a test draws for these dots per inch.
#pragma once

#include "platform/Host.h"

namespace xrpt {

class FixedScreen final : public ScreenService {
 public:
  static constexpr int kUsualDpi = 96;
  static constexpr Color kButtonFace = 0xF0F0F0;

  explicit FixedScreen(int dpi = kUsualDpi) : FixedScreen(dpi, dpi) {}
  FixedScreen(int dpiX, int dpiY) : dpiX_(dpiX), dpiY_(dpiY) {}
  void SetDpi(int dpiX, int dpiY) {
    dpiX_ = dpiX;
    dpiY_ = dpiY;
  }
  int DpiX() const override { return dpiX_; }
  int DpiY() const override { return dpiY_; }
  Color ButtonFace() const override { return kButtonFace; }

 private:
  int dpiX_;
  int dpiY_;
};

}  // namespace xrpt
