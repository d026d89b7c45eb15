// What the eye needs: texts that stand out from what is behind them, and the keyboard's place in sight.
#include <gmock/gmock.h>

#include <QScrollArea>
#include <QTabBar>
#include <QToolTip>

#include "desktop/WindowTest.h"
#include "desktop/look/Theme.h"
#include "desktop/ribbon/Ribbon.h"

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
  const double first = Luminance(one), second = Luminance(other);
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
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

// Places that look clearly different in one picture and the other.
int ClearDifferences(const QImage& one, const QImage& other) {
  int count = 0;
  for (int y = 0; y < std::min(one.height(), other.height()); ++y) {
    for (int x = 0; x < std::min(one.width(), other.width()); ++x) {
      const QRgb before = one.pixel(x, y), after = other.pixel(x, y);
      count += before != after && Contrast(before, after) >= 2.0 ? 1 : 0;
    }
  }
  return count;
}

bool TakesTheKeyboard(const QWidget& widget) {
  const bool isPartOfAnother = widget.focusProxy() || widget.objectName().startsWith(QLatin1String("qt_"));
  return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) && !isPartOfAnother;
}

// More than a text cursor shows.
TEST_P(Look, TheKeyboardsPlaceCanBeSeen) {
  constexpr int kEnough = 40;
  OpenSample();
  Page().SelectControls({CardWith("text/textStr", L"Desde")});
  Frame().SetModified(false);
  Settle();
  int looked = 0;
  for (QWidget* widget : Window().findChildren<QWidget*>()) {
    if (!TakesTheKeyboard(*widget) || qobject_cast<QScrollArea*>(widget)) continue;
    QWidget* elsewhere = widget == &View() ? Window().Tabs().findChild<QTabBar*>() : static_cast<QWidget*>(&View());
    widget->setFocus(Qt::TabFocusReason);
    const QImage with = widget->grab().toImage();
    elsewhere->setFocus(Qt::TabFocusReason);
    const QImage without = widget->grab().toImage();
    EXPECT_GE(ClearDifferences(with, without), kEnough)
        << widget->metaObject()->className() << " " << widget->accessibleName().toStdString();
    ++looked;
  }
  EXPECT_GT(looked, 30);
}

INSTANTIATE_TEST_SUITE_P(Themes, Look, ::testing::Values(ThemeChoice::Light, ThemeChoice::Dark));

}  // namespace
}  // namespace xrpt
