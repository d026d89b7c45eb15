#include "desktop/ThemedScreen.h"

#include "desktop/Theme.h"

namespace xrpt {

Color ThemedScreen::ButtonFace() const {
  const QColor color = CurrentTheme().surround;
  return Rgb(static_cast<unsigned>(color.red()), static_cast<unsigned>(color.green()),
             static_cast<unsigned>(color.blue()));
}

}  // namespace xrpt
