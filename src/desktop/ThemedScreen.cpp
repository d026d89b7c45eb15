#include "desktop/ThemedScreen.h"

#include "desktop/Theme.h"

namespace xrpt {

Color ThemedScreen::ButtonFace() const { return ThemeSurround(IsDarkTheme()); }

}  // namespace xrpt
