#include "host/qt/QtScreen.h"

#include <QGuiApplication>
#include <QPalette>
#include <QScreen>

#include "host/FixedScreen.h"
#include "platform/Geometry.h"

namespace xrpt {
namespace {

const QScreen* MainScreen() {
  return qobject_cast<QGuiApplication*>(qApp) ? QGuiApplication::primaryScreen() : nullptr;
}

// The chosen one, the screen's, or the usual one.
int Dpi(int chosen, double (QScreen::*ofScreen)() const) {
  if (chosen > 0) return chosen;
  const QScreen* screen = MainScreen();
  return screen ? roundi((screen->*ofScreen)()) : FixedScreen::kUsualDpi;
}

}  // namespace

int QtScreen::DpiX() const { return Dpi(dpi_, &QScreen::logicalDotsPerInchX); }

int QtScreen::DpiY() const { return Dpi(dpi_, &QScreen::logicalDotsPerInchY); }

Color QtScreen::ButtonFace() const {
  const QRgb color = QGuiApplication::palette().color(QPalette::Button).rgb();
  return Rgb(static_cast<unsigned>(qRed(color)), static_cast<unsigned>(qGreen(color)),
             static_cast<unsigned>(qBlue(color)));
}

}  // namespace xrpt
