// Windows need an application object before anything else; no screen is needed, nor used unless asked for.
#include <gmock/gmock.h>

#include <QApplication>

#include "desktop/look/Theme.h"
#include "support/TestHost.h"

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  {
    const xrpt::TestHost host;
    xrpt::ApplyTheme(application, xrpt::ThemeChoice::Light);
  }
  return RUN_ALL_TESTS();
}
