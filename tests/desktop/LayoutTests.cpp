// What the window is made of: panels that come and go by command, and a layout that is kept from one start to the next.
#include <gmock/gmock.h>

#include <QDockWidget>
#include <QToolButton>

#include "desktop/WindowTest.h"

namespace xrpt {
namespace {

class Layout : public WindowTest {
 protected:
  QDockWidget& Dock(const char* name) { return *Window().findChild<QDockWidget*>(QLatin1String(name)); }
  bool IsOn(const char* command) { return Window().AllActions().Find(command)->isChecked(); }
  void Reopen() {
    Window().close();
    CloseWindow();
    OpenSample();
  }
};

TEST_F(Layout, ClosedPanelsComeBackByTheirCommands) {
  const std::pair<const char*, const char*> rows[] = {
      {"OutlinePanel", "outline"}, {"PropertiesPanel", "properties"}, {"ProblemsPanel", "problems"}};
  for (const auto& [command, name] : rows) {
    if (Dock(name).isHidden()) Run(command);
    EXPECT_TRUE(Dock(name).isVisible()) << command;
    EXPECT_TRUE(IsOn(command)) << command;
    auto* close = Dock(name).titleBarWidget()->findChild<QToolButton*>();
    QTest::mouseClick(close, Qt::LeftButton);
    Settle();
    EXPECT_FALSE(Dock(name).isVisible()) << command;
    EXPECT_FALSE(IsOn(command)) << command;
    Run(command);
    EXPECT_TRUE(Dock(name).isVisible()) << command;
    EXPECT_TRUE(IsOn(command)) << command;
    Run(command);
    EXPECT_FALSE(Dock(name).isVisible()) << command;
  }
}

TEST_F(Layout, IsAsItWasLeft) {
  OpenSample();
  Run("OutlinePanel");
  Run("ProblemsPanel");
  Run("Rulers");
  Window().addDockWidget(Qt::LeftDockWidgetArea, &Dock("properties"));
  Window().resize(1111, 777);
  Settle();
  Window().resizeDocks({&Dock("properties")}, {333}, Qt::Horizontal);
  Settle();
  Reopen();
  EXPECT_EQ(Window().size(), QSize(1280, 900)) << "the fixture's own";
  EXPECT_FALSE(Dock("outline").isVisible());
  EXPECT_TRUE(Dock("problems").isVisible());
  EXPECT_EQ(Window().dockWidgetArea(&Dock("properties")), Qt::LeftDockWidgetArea);
  EXPECT_EQ(Dock("properties").width(), 333);
  EXPECT_FALSE(Window().Pages().HasRulers());
  Run("Rulers");
  Reopen();
  EXPECT_TRUE(Window().Pages().HasRulers());
}

TEST_F(Layout, TheWindowsSizeIsKept) {
  OpenSample();
  Window().resize(640, 555);
  Settle();
  Window().close();
  CloseWindow();
  MainWindow again;
  EXPECT_EQ(again.size(), QSize(640, 555));
}

// A layout of another program, or a broken one, is no reason not to start.
TEST_F(Layout, NonsenseInTheSettingsIsIgnored) {
  for (const wchar_t* name : {L"geometry", L"docks"}) host->settings->SetProfileText(L"Desktop", name, L"bm9uc2Vuc2U=");
  OpenSample();
  EXPECT_TRUE(Dock("outline").isVisible());
  EXPECT_TRUE(Dock("properties").isVisible());
}

TEST_F(Layout, PanelsThatGaveWayAreNotLostForTheNextStart) {
  OpenSample();
  Window().resize(300, 600);
  Settle();
  EXPECT_FALSE(Dock("outline").isVisible());
  Window().close();
  CloseWindow();
  MainWindow again;
  again.show();
  QCoreApplication::processEvents();
  const auto* outline = again.findChild<QDockWidget*>(QStringLiteral("outline"));
  EXPECT_FALSE(outline->isVisible());
  again.resize(1280, 800);
  QCoreApplication::processEvents();
  EXPECT_TRUE(outline->isVisible());
}

}  // namespace
}  // namespace xrpt
