// The window at every width, in both languages and themes, with small and large letters: whatever the ribbon cannot
// show is a click away.
#include <gmock/gmock.h>

#include <QDockWidget>
#include <QMenu>
#include <QTabBar>
#include <random>

#include "desktop/WindowTest.h"
#include "desktop/look/Theme.h"
#include "desktop/ribbon/CornerBar.h"
#include "desktop/ribbon/PopupButton.h"
#include "desktop/ribbon/Ribbon.h"
#include "desktop/ribbon/RibbonButton.h"
#include "desktop/ribbon/RibbonGroup.h"
#include "desktop/ribbon/RibbonPage.h"
#include "editor/CommandCatalogue.h"
#include "host/TextCatalogue.h"

namespace xrpt {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto kFull = GroupRoom::Full;
constexpr auto kIcons = GroupRoom::IconsOnly;
constexpr auto kFolded = GroupRoom::Folded;
constexpr auto kHidden = GroupRoom::Hidden;

TEST(RibbonFit, GroupsGiveWayFromTheRightOneRoomAtATime) {
  const std::vector<GroupWidths> groups = {{100, 60, 40}, {100, 60, 40}, {100, 60, 40}};
  const std::pair<int, std::vector<GroupRoom>> rows[] = {
      {300, {kFull, kFull, kFull}},       {299, {kFull, kFull, kIcons}},      {180, {kIcons, kIcons, kIcons}},
      {179, {kIcons, kIcons, kFolded}},   {120, {kFolded, kFolded, kFolded}}, {119, {kFolded, kFolded, kHidden}},
      {95, {kFolded, kHidden, kHidden}},  {59, {kHidden, kHidden, kHidden}},  {0, {kHidden, kHidden, kHidden}},
      {-50, {kHidden, kHidden, kHidden}}, {240, {kFull, kIcons, kIcons}}};
  for (const auto& [available, rooms] : rows) EXPECT_EQ(FitGroups(groups, 20, available), rooms) << available;
}

TEST(RibbonFit, AGroupThatGainsNothingKeepsItsRoom) {
  EXPECT_THAT(FitGroups({{100, 100, 40}, {30, 30, 50}}, 20, 80), ElementsAre(kFolded, kFull));
  EXPECT_THAT(FitGroups({}, 20, 0), IsEmpty());
}

struct Looks {
  Language language;
  ThemeChoice theme;
  double letters;  // times the normal size
};

void PrintTo(const Looks& looks, std::ostream* out) {
  *out << (looks.language == Language::English ? "English" : "Spanish") << " "
       << (looks.theme == ThemeChoice::Dark ? "dark" : "light") << " " << looks.letters;
}

class WindowWidths : public WindowTest, public ::testing::WithParamInterface<Looks> {
 protected:
  WindowWidths() : font_(QApplication::font()) {
    if (GetParam().language == Language::Spanish) host->texts = std::make_unique<TextCatalogue>(Language::Spanish);
    QFont letters = font_;
    letters.setPointSizeF(font_.pointSizeF() * GetParam().letters);
    QApplication::setFont(letters);
    ApplyTheme(*qApp, GetParam().theme);
    OpenSample();
  }
  ~WindowWidths() override {
    CloseWindow();
    QApplication::setFont(font_);
    ApplyTheme(*qApp, ThemeChoice::Light);
  }

  void Resize(int width) {
    Window().resize(width, 600);
    Settle();
  }
  Ribbon& Tabs() { return Window().Tabs(); }
  static int TabCount() { return static_cast<int>(CommandTabs().size()); }

  // Whether all of a widget can be seen in its window.
  static bool IsInSight(const QWidget& widget) {
    const QRect area(widget.mapTo(widget.window(), QPoint()), widget.size());
    return widget.isVisible() && !widget.size().isEmpty() && widget.window()->rect().contains(area) &&
           widget.visibleRegion() == QRegion(widget.rect());
  }
  static PopupButton& FoldedButton(const RibbonGroup& group) { return PartOf<PopupButton>(group); }

  // What of a group on the shown tab can neither be pressed nor be opened.
  static std::vector<std::string> OutOfReach(const RibbonPage& page, const RibbonGroup& group) {
    const auto title = [&] { return group.Title().toStdString(); };
    if (group.Room() == kHidden) return IsInSight(page.More()) ? std::vector<std::string>{} : std::vector{title()};
    if (group.Room() == kFolded)
      return IsInSight(FoldedButton(group)) ? std::vector<std::string>{} : std::vector{title()};
    std::vector<std::string> lost;
    for (const RibbonButton* button : PartsOf<RibbonButton>(group)) {
      if (!IsInSight(*button) || button->width() < button->sizeHint().width())
        lost.push_back(button->objectName().toStdString());
    }
    return lost;
  }
  std::vector<std::string> OutOfReach() {
    std::vector<std::string> lost;
    for (int tab = 0; tab < TabCount(); ++tab) {
      Tabs().ShowTab(tab);
      for (const RibbonGroup* group : Tabs().Page(tab).Groups()) {
        for (const std::string& name : OutOfReach(Tabs().Page(tab), *group)) lost.push_back(name);
      }
    }
    return lost;
  }

  // Opens what a group folded away, as a hand would, and gives the commands that can be pressed there.
  std::set<std::string> OpenedCommands(RibbonPage& page, RibbonGroup& group) {
    if (group.Room() == kFolded) {
      QTest::mouseClick(&FoldedButton(group), Qt::LeftButton);
    } else {
      QTest::mouseClick(&page.More(), Qt::LeftButton);
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (!menu) return {};
      for (QAction* line : menu->actions()) {
        if (line->text() == group.Title()) line->trigger();
      }
      menu->close();
    }
    std::set<std::string> found;
    QWidget& popup = FoldedButton(group).Popup();
    for (const RibbonButton* button : PartsOf<RibbonButton>(popup)) {
      if (IsInSight(*button)) found.insert(button->objectName().toStdString());
    }
    EXPECT_TRUE(popup.isVisible()) << group.Title().toStdString();
    popup.close();
    return found;
  }
  std::set<std::string> AllCommands() {
    std::set<std::string> found;
    for (int tab = 0; tab < TabCount(); ++tab) {
      Tabs().ShowTab(tab);
      for (RibbonGroup* group : Tabs().Page(tab).Groups()) {
        if (group->Room() == kFolded || group->Room() == kHidden) {
          found.merge(OpenedCommands(Tabs().Page(tab), *group));
          continue;
        }
        for (const RibbonButton* button : PartsOf<RibbonButton>(*group))
          found.insert(button->objectName().toStdString());
      }
    }
    return found;
  }

  QFont font_;
};

TEST_P(WindowWidths, NoCommandIsOutOfReachOnTheWayFromWideToNarrowAndBack) {
  std::vector<int> widths;
  for (int width = 4000; width > 1400; width -= 400) widths.push_back(width);
  for (int width = 1400; width >= 200; width -= 11) widths.push_back(width);
  widths.push_back(200);
  for (int width = 230; width <= 1800; width += 97) widths.push_back(width);
  for (const int width : widths) {
    Resize(width);
    ASSERT_EQ(Window().width(), width);
    ASSERT_THAT(OutOfReach(), IsEmpty()) << "at " << width;
  }
}

TEST_P(WindowWidths, WhatIsFoldedAwayOpensAndIsAllOfIt) {
  std::set<std::string> all;
  for (const Command& command : CommandCatalogue()) all.insert(command.name);
  for (const int width : {200, 430, 700, 1000}) {
    Resize(width);
    EXPECT_EQ(AllCommands(), all) << "at " << width;
  }
}

// A tab a time, at widths in any order: a page that was not shown while the window changed fits as well.
TEST_P(WindowWidths, JumpsBetweenWidthsAndTabsFit) {
  std::mt19937 random(7);
  for (int jump = 0; jump < 60; ++jump) {
    Tabs().ShowTab(static_cast<int>(random() % 6));
    Resize(200 + static_cast<int>(random() % 1600));
    const RibbonPage& page = Tabs().Page(Tabs().CurrentTab());
    for (const RibbonGroup* group : page.Groups()) ASSERT_THAT(OutOfReach(page, *group), IsEmpty()) << Window().width();
  }
}

TEST_P(WindowWidths, TheCornerIsThereAtEveryWidth) {
  for (const int width : {1400, 900, 600, 400, 200}) {
    Resize(width);
    auto& corner = PartOf<CornerBar>(Window());
    auto& more = PartOf<PopupButton>(corner);
    for (const char* name : {"Save", "Undo", "NextPage", "ZoomIn"}) {
      const auto* button = corner.findChild<QToolButton*>(QLatin1String(name));
      const bool isInPopup = more.Popup().isAncestorOf(button);
      EXPECT_TRUE(isInPopup ? IsInSight(more) : IsInSight(*button)) << name << " at " << width;
    }
    const auto* tabs = Tabs().findChild<QTabBar*>();
    EXPECT_GE(tabs->width(), std::min(80, width)) << width;
    EXPECT_LE(tabs->geometry().right(), corner.geometry().left()) << width;
  }
}

// Those that gave way come when they are asked for, and the window stays as narrow as the user made it.
TEST_P(WindowWidths, PanelsOpenAtEveryWidth) {
  const std::pair<const char*, const char*> panels[] = {
      {"OutlinePanel", "outline"}, {"PropertiesPanel", "properties"}, {"ProblemsPanel", "problems"}};
  for (const int width : {200, 430, 700, 1280}) {
    Resize(width);
    for (const auto& [command, name] : panels) {
      const auto& dock = *Window().findChild<QDockWidget*>(QLatin1String(name));
      const bool wasShown = dock.isVisible();
      if (!wasShown) Run(command);
      EXPECT_TRUE(dock.isVisible()) << name << " at " << width;
      EXPECT_EQ(Window().width(), width) << name;
      EXPECT_GE(dock.width(), std::min(180, width / 2)) << name << " at " << width;
      EXPECT_TRUE(Window().rect().contains(dock.geometry())) << name << " at " << width;
      if (!wasShown) Run(command);
    }
  }
}

class SideDocksTest : public WindowTest {
 protected:
  bool IsShown(const char* dock) { return Window().findChild<QDockWidget*>(QLatin1String(dock))->isVisible(); }
  QDockWidget& Dock(const char* dock) { return *Window().findChild<QDockWidget*>(QLatin1String(dock)); }
  std::vector<bool> ShownAt(int width) {
    Window().resize(width, 700);
    Settle();
    return {IsShown("outline"), IsShown("properties")};
  }
};

TEST_F(SideDocksTest, GiveWayToThePageAndComeBackAsWideAsTheyWere) {
  EXPECT_THAT(ShownAt(1280), ElementsAre(true, true));
  Window().resizeDocks({&Dock("outline"), &Dock("properties")}, {230, 310}, Qt::Horizontal);
  Settle();
  EXPECT_THAT(ShownAt(790), ElementsAre(true, true));
  EXPECT_THAT(ShownAt(770), ElementsAre(false, true));
  EXPECT_THAT(ShownAt(530), ElementsAre(false, false));
  EXPECT_GE(View().width(), 500);
  EXPECT_THAT(ShownAt(200), ElementsAre(false, false));
  EXPECT_THAT(ShownAt(770), ElementsAre(false, true));
  EXPECT_THAT(ShownAt(1280), ElementsAre(true, true));
  EXPECT_EQ(Dock("outline").width(), 230);
  EXPECT_EQ(Dock("properties").width(), 310);
}

TEST_F(SideDocksTest, OneThatTheUserHidStaysHidden) {
  Dock("outline").hide();
  EXPECT_THAT(ShownAt(300), ElementsAre(false, false));
  EXPECT_THAT(ShownAt(1280), ElementsAre(false, true));
}

INSTANTIATE_TEST_SUITE_P(Looks, WindowWidths,
                         ::testing::Values(Looks{Language::English, ThemeChoice::Light, 1.0},
                                           Looks{Language::Spanish, ThemeChoice::Dark, 1.0},
                                           Looks{Language::English, ThemeChoice::Dark, 1.5},
                                           Looks{Language::Spanish, ThemeChoice::Light, 2.0}));

}  // namespace
}  // namespace xrpt
