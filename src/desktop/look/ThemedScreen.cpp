#include "desktop/look/ThemedScreen.h"

#include "desktop/look/Theme.h"

namespace xrpt {

void ThemedScreen::Install(Host& host) { host.screen = std::make_unique<ThemedScreen>(std::move(host.screen)); }

void ThemedScreen::Remove(Host& host) {
  auto* themed = dynamic_cast<ThemedScreen*>(host.screen.get());
  if (!themed) return;
  std::unique_ptr<ScreenService> former = std::move(themed->screen_);
  host.screen = std::move(former);
}

Color ThemedScreen::ButtonFace() const { return ThemeSurround(IsDarkTheme()); }

}  // namespace xrpt
