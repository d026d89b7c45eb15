// The start page and the history list: what is shown while nothing is open, and the way back to any step.
#include <gmock/gmock.h>

#include <QDockWidget>
#include <QListWidget>
#include <QPushButton>

#include "desktop/WindowTest.h"
#include "desktop/panels/HistoryPanel.h"
#include "desktop/panels/StartPage.h"
#include "editor/RecentReports.h"

namespace xrpt {
namespace {

class StartPageTest : public WindowTest {
 protected:
  void Show() {
    Window().ShowStart();
    Settle();
  }
  QListWidget& List(int which) { return *Window().Start().findChildren<QListWidget*>().at(which); }
  void Choose(int which, int row) {
    emit List(which).itemActivated(List(which).item(row));
    Settle();
  }
  void Press(int button) {
    Window().Start().findChildren<QPushButton*>().at(button)->click();
    Settle();
  }
};

TEST_F(StartPageTest, NothingIsOpenedUnasked) {
  Show();
  EXPECT_TRUE(Window().IsStartShown());
  EXPECT_TRUE(Frame().IsUntouched());
  EXPECT_EQ(List(0).count(), 0);
  EXPECT_GT(List(1).count(), 1) << "the folder's reports";
  Choose(1, 0);
  EXPECT_FALSE(Window().IsStartShown());
  EXPECT_FALSE(Frame().Report().name.empty());
}

TEST_F(StartPageTest, RecentReportsAreThereOnceTheNewestFirst) {
  OpenSample();
  const Path first = Frame().Report().File();
  Show();
  ASSERT_EQ(List(0).count(), 1);
  Choose(1, 0);
  const Path second = Frame().Report().File();
  ASSERT_NE(first, second);
  Show();
  ASSERT_EQ(List(0).count(), 2);
  Choose(0, 1);
  EXPECT_EQ(Frame().Report().File(), first);
  EXPECT_THAT(RecentReports(), ::testing::ElementsAre(first, second));
  std::filesystem::remove(second);
  EXPECT_THAT(RecentReports(), ::testing::ElementsAre(first));
}

TEST_F(StartPageTest, ASampleBeginsAReportOfItsOwn) {
  Window().SetSamples(host.Cfg());
  Show();
  Choose(2, 0);
  EXPECT_FALSE(Window().IsStartShown());
  EXPECT_TRUE(Frame().Report().name.empty());
  EXPECT_TRUE(Frame().Report().File().empty());
  EXPECT_FALSE(Frame().IsModified());
  EXPECT_FALSE(Page().Page().cards.IsEmpty());
  EXPECT_TRUE(RecentReports().empty());
}

TEST_F(StartPageTest, ItGivesWayToNewReportsAndToWhatIsBegun) {
  Show();
  Press(1);
  EXPECT_FALSE(Window().IsStartShown());
  EXPECT_TRUE(Page().Page().properties.IsLandscape());
  ASSERT_FALSE(Frame().IsModified()) << "nothing to be asked about";
  Frame().NewReport();
  Show();
  Run("NewLabel");
  EXPECT_FALSE(Window().IsStartShown());
  Run("Pointer");
  OpenSample();
  Run("Landscape");
  Run("StartPage");
  EXPECT_TRUE(Window().IsStartShown());
  Run("StartPage");
  EXPECT_FALSE(Window().IsStartShown()) << "the open report comes back";
}

TEST_F(StartPageTest, TheHistoryListGoesToAnyStep) {
  OpenSample();
  Run("HistoryPanel");
  auto& list = *PartOf<HistoryPanel>(Window()).findChild<QListWidget*>();
  const std::wstring id = CardWith("text/textStr", L"Desde");
  const CardRect before = RectOf(Card(id));
  for (int step = 0; step < 3; ++step) Drag(MiddleOf(id), {0, 30});
  const CardRect after = RectOf(Card(id));
  ASSERT_EQ(list.count(), 4);
  EXPECT_EQ(list.currentRow(), 3);
  EXPECT_EQ(list.item(1)->text(), QStringLiteral("Move card"));
  emit list.itemClicked(list.item(0));
  Settle();
  EXPECT_EQ(RectOf(Card(id)), before);
  EXPECT_EQ(list.count(), 4);
  emit list.itemClicked(list.item(3));
  Settle();
  EXPECT_EQ(RectOf(Card(id)), after);
  EXPECT_EQ(list.currentRow(), 3);
}

}  // namespace
}  // namespace xrpt
