// Windows need an application object before anything else.
#include <gmock/gmock.h>

#include <QApplication>

#include "desktop/Theme.h"
#include "support/TestHost.h"

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  QApplication application(argc, argv);
  {
    const xrpt::TestHost host;
    xrpt::ApplyTheme(application, xrpt::ThemeChoice::Light);
  }
  return RUN_ALL_TESTS();
}
