// The host's screen with the theme's colour round the page.
#pragma once

#include <memory>

#include "platform/Host.h"

namespace xrpt {

class ThemedScreen final : public ScreenService {
 public:
  // Takes the place of the host's screen, and gives it back.
  static void Install(Host& host);
  static void Remove(Host& host);

  explicit ThemedScreen(std::unique_ptr<ScreenService> screen) : screen_(std::move(screen)) {}
  int DpiX() const override { return screen_->DpiX(); }
  int DpiY() const override { return screen_->DpiY(); }
  Color ButtonFace() const override;

 private:
  std::unique_ptr<ScreenService> screen_;
};

}  // namespace xrpt
