// What the eye needs: texts that stand out from what is behind them, and the keyboard's place in sight.
#include <gmock/gmock.h>

#include <QToolTip>

#include "desktop/WindowTest.h"
#include "desktop/look/Theme.h"

namespace xrpt {
namespace {

double Luminance(QRgb color) {
  const auto linear = [](int value) {
    const double part = value / 255.0;
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

// 1 for the same colour, 21 for black on white.
double Contrast(QRgb one, QRgb other) {
  const auto [dark, light] = std::minmax(Luminance(one), Luminance(other));
  return (light + 0.05) / (dark + 0.05);
}

// The strongest contrast of anything in a picture to the colour most of it has.
double BestContrast(const QImage& picture) {
  std::map<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) ++counts[picture.pixel(x, y)];
  }
  const auto ground =
      std::max_element(counts.begin(), counts.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
  double best = 1.0;
  for (const auto& [color, count] : counts) best = std::max(best, Contrast(color, ground->first));
  return best;
}

class Look : public WindowTest, public ::testing::WithParamInterface<ThemeChoice> {
 protected:
  Look() { ApplyTheme(*qApp, GetParam()); }
  ~Look() override {
    CloseWindow();
    ApplyTheme(*qApp, ThemeChoice::Light);
  }
};

TEST_P(Look, TooltipsCanBeRead) {
  const QAction& action = *Window().AllActions().Find("SelectAll");
  QToolTip::showText(Window().mapToGlobal(QPoint(50, 50)), action.toolTip(), &Window());
  QWidget* tip = nullptr;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->inherits("QTipLabel") && widget->isVisible()) tip = widget;
  }
  ASSERT_NE(tip, nullptr);
  // Without its border.
  const QImage picture = tip->grab(tip->rect().adjusted(2, 2, -2, -2)).toImage();
  EXPECT_GT(BestContrast(picture), 7.0);
  QToolTip::hideText();
}

INSTANTIATE_TEST_SUITE_P(Themes, Look, ::testing::Values(ThemeChoice::Light, ThemeChoice::Dark));

}  // namespace
}  // namespace xrpt
