// Searching and replacing beside the page, with the keys that users have for it.
#include <gmock/gmock.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>

#include "DialogTest.h"
#include "desktop/dialogs/DialogSize.h"
#include "desktop/dialogs/formulas/FormulasDialog.h"
#include "desktop/dialogs/search/MatchModel.h"
#include "desktop/dialogs/search/SearchDialog.h"

namespace xrpt {
namespace {

class SearchDialogTest : public DialogTest {
 protected:
  SearchDialogTest() {
    const auto label = [](const char* id, const char* text) {
      return "<label><id>" + std::string(id) + "</id><text><textStr>" + text + "</textStr></text></label>";
    };
    host.WriteCfg("ID.plant.xrpt", "<reportLayout><id>ID</id><name>plant</name><page>" + label("a", "Load and load") +
                                       label("b", "other") + "</page><page>" + label("d", "overload") +
                                       "</page><formules><formule><name>Peak</name><text>2 * Load</text></formule>"
                                       "</formules></reportLayout>");
    Window().Open(L"plant");
    Settle();
  }
  SearchDialog& Dialog() { return PartOf<SearchDialog>(Window()); }
  QWidget& FindField() { return Named<QLineEdit>(Dialog(), "Search for"); }
  QTreeView& List() { return Named<QTreeView>(Dialog(), "Matches"); }
  QString Cell(int row, int column) { return List().model()->index(row, column).data().toString(); }
  QString State() { return Dialog().findChild<QLabel*>("muted")->text(); }
  QPushButton& Button(const char* text) {
    for (auto* button : Dialog().findChildren<QPushButton*>()) {
      if (button->text() == QLatin1String(text)) return *button;
    }
    throw std::runtime_error(text);
  }
  void SearchWholeReport(const char* command) {
    Run(command);
    Named<QComboBox>(Dialog(), "Search in").setCurrentIndex(1);
    Type(FindField(), "load");
    Rest();
  }
};

TEST_F(SearchDialogTest, EnterStepsThroughThePageAndTellsWhere) {
  Run("Search");
  EXPECT_TRUE(FindField().hasFocus());
  Type(FindField(), "load");
  Hit(FindField(), Qt::Key_Return);
  Settle();
  EXPECT_EQ(State(), QStringLiteral("1 of 2")) << "at once, whatever the pause";
  EXPECT_EQ(Page().SelectedCardId(), L"a");
  Hit(FindField(), Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(State(), QStringLiteral("2 of 2"));
  Type(FindField(), "zzz");
  Rest();
  EXPECT_EQ(State(), QStringLiteral("The text was not found."));
  EXPECT_FALSE(Button("Next").isEnabled());
  Hit(FindField(), Qt::Key_Escape);
  EXPECT_FALSE(Dialog().isVisible());
}

TEST(DialogPlaceTest, LeavesFreeWhatItShows) {
  const QRect screen(0, 0, 1000, 800);
  const QSize size(300, 200);
  const auto placed = [&](const QRect& shown, const QPoint& at) {
    return QRect(PlaceClearOf(shown, QRect(at, size), screen), size);
  };
  const QRect aside = placed(QRect(400, 300, 100, 50), QPoint(350, 250));
  EXPECT_FALSE(aside.intersects(QRect(400, 300, 100, 50)));
  EXPECT_GT(aside.left(), 499) << "it stood more to the right";
  EXPECT_TRUE(screen.contains(aside));
  EXPECT_LT(placed(QRect(750, 300, 100, 50), QPoint(690, 250)).right(), 750) << "no room to the right";
  EXPECT_GT(placed(QRect(100, 100, 800, 50), QPoint(350, 90)).top(), 149) << "no room at the sides";
  EXPECT_EQ(placed(QRect(10, 10, 980, 780), QPoint(350, 90)).topLeft(), QPoint(350, 90)) << "no room at all";
  EXPECT_EQ(placed(QRect(10, 10, 20, 20), QPoint(350, 90)).topLeft(), QPoint(350, 90)) << "nothing covered";
}

TEST_F(SearchDialogTest, TheListLeadsToCardsAndFormulas) {
  SearchWholeReport("Search");
  ASSERT_EQ(List().model()->rowCount(), 4);
  EXPECT_EQ(Cell(2, 0), QStringLiteral("Page 2 · Label"));
  EXPECT_EQ(Cell(3, 0), QStringLiteral("Formula · Peak"));
  List().setCurrentIndex(List().model()->index(2, 0));
  Hit(List(), Qt::Key_Return);
  Settle();
  EXPECT_EQ(Frame().CurrentPageIndex(), 1u);
  EXPECT_EQ(Page().SelectedCardId(), L"d");
  In<FormulasDialog>([](FormulasDialog& dialog) { EXPECT_EQ(dialog.Table().Selection().size(), 1u); });
  List().setCurrentIndex(List().model()->index(3, 0));
  Hit(List(), Qt::Key_Return);
}

TEST_F(SearchDialogTest, WhatIsLeftOutOfThePreviewStays) {
  SearchWholeReport("Replace");
  Type(Named<QLineEdit>(Dialog(), "Replace with"), "power");
  Rest();
  ASSERT_EQ(List().model()->rowCount(), 3) << "one a text";
  EXPECT_EQ(Cell(0, MatchModel::kAfter), QStringLiteral("power and power"));
  List().setCurrentIndex(List().model()->index(1, 0));
  Hit(List(), Qt::Key_Space);
  Button("Replace all").click();
  Settle();
  EXPECT_EQ(State(), QStringLiteral("Replaced: 3"));
  EXPECT_EQ(ReadFormulas(Frame().Report().formules)[0].text, L"2 * power");
  EXPECT_FALSE(CardWith("textStr", L"power and power").empty());
  Run("NextPage");
  EXPECT_FALSE(CardWith("textStr", L"overload").empty());
  Run("Undo");
  EXPECT_EQ(ReadFormulas(Frame().Report().formules)[0].text, L"2 * Load");
  EXPECT_FALSE(Frame().CanUndo());
}

TEST_F(SearchDialogTest, ReplacingGoesFromMatchToMatch) {
  Run("Replace");
  Type(FindField(), "load");
  Type(Named<QLineEdit>(Dialog(), "Replace with"), "power");
  Hit(FindField(), Qt::Key_Return);
  Button("Replace").click();
  EXPECT_FALSE(CardWith("textStr", L"power and load").empty());
  EXPECT_EQ(State(), QStringLiteral("1 of 1"));
  Button("Replace").click();
  EXPECT_FALSE(CardWith("textStr", L"power and power").empty());
  EXPECT_FALSE(Button("Replace").isEnabled());
}

TEST_F(SearchDialogTest, TheListFollowsTheReport) {
  Run("Search");
  Type(FindField(), "load");
  Rest();
  EXPECT_EQ(List().model()->rowCount(), 2);
  Page().SelectControlById(L"a");
  Settle();
  Run("Delete");
  Rest(400);
  EXPECT_EQ(List().model()->rowCount(), 0);
  Run("NextPage");
  Rest(400);
  EXPECT_EQ(List().model()->rowCount(), 1) << "of the page that is shown";
  Run("SearchNext");
  EXPECT_EQ(Page().SelectedCardId(), L"d");
}

}  // namespace
}  // namespace xrpt
