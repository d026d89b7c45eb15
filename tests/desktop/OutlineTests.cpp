// The lists of pages and cards: what is chosen there is selected on the page, and the other way round.
#include <gmock/gmock.h>

#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QPixmap>

#include "desktop/WindowTest.h"
#include "desktop/panels/CardMarks.h"
#include "desktop/panels/Outline.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class OutlineTest : public WindowTest {
 protected:
  OutlineTest() { OpenSample(); }
  template <class Model>
  QListView& ListOf() {
    const auto lists = PartsOf<QListView>(PartOf<Outline>(Window()));
    return **std::find_if(lists.begin(), lists.end(), [](auto* list) { return dynamic_cast<Model*>(list->model()); });
  }
  QListView& Pages() { return ListOf<PagesModel>(); }
  QListView& Cards() { return ListOf<CardsModel>(); }
  void ClickLine(QListView& list, int row, Qt::KeyboardModifiers held = {}) {
    const QModelIndex line = list.model()->index(row, 0);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, held, list.visualRect(line).center());
    Settle();
  }
  std::vector<int> Lines(const QListView& list) {
    std::vector<int> rows;
    for (const QModelIndex& line : list.selectionModel()->selectedRows()) rows.push_back(line.row());
    std::sort(rows.begin(), rows.end());
    return rows;
  }
  std::vector<std::size_t> Selected() { return Page().SelectedIndexes(); }
};

TEST_F(OutlineTest, ControlAndShiftChooseSeveralCards) {
  ClickLine(Cards(), 4);
  EXPECT_THAT(Selected(), ElementsAre(4));
  ClickLine(Cards(), 1, Qt::ControlModifier);
  EXPECT_THAT(Selected(), ElementsAre(4, 1)) << "the one chosen last is the one others align to";
  ClickLine(Cards(), 6, Qt::ControlModifier);
  EXPECT_THAT(Selected(), ElementsAre(4, 1, 6));
  ClickLine(Cards(), 4, Qt::ControlModifier);
  EXPECT_THAT(Selected(), ElementsAre(1, 6));
  ClickLine(Cards(), 2);
  ClickLine(Cards(), 5, Qt::ShiftModifier);
  EXPECT_THAT(Selected(), ElementsAre(2, 3, 4, 5));
  EXPECT_THAT(Lines(Cards()), ElementsAre(2, 3, 4, 5));
  EXPECT_FALSE(Frame().IsModified());
}

TEST_F(OutlineTest, KeysWalkAndExtend) {
  ClickLine(Cards(), 3);
  Cards().setFocus();
  QTest::keyClick(&Cards(), Qt::Key_Down);
  Settle();
  EXPECT_THAT(Selected(), ElementsAre(4));
  QTest::keyClick(&Cards(), Qt::Key_Down, Qt::ShiftModifier);
  Settle();
  QTest::keyClick(&Cards(), Qt::Key_Down, Qt::ShiftModifier);
  Settle();
  EXPECT_THAT(Selected(), ElementsAre(4, 5, 6));
}

TEST_F(OutlineTest, ShowsWhatIsSelectedOnThePage) {
  Page().SelectPlaces({5, 0, 1, 7});
  Frame().Port().StateChanged();
  Settle();
  EXPECT_THAT(Lines(Cards()), ElementsAre(0, 1, 5, 7));
  EXPECT_THAT(Selected(), ElementsAre(5, 0, 1, 7));
  Run("NextPage");
  EXPECT_THAT(Lines(Cards()), IsEmpty());
  EXPECT_THAT(Lines(Pages()), ElementsAre(1));
  EXPECT_EQ(Cards().model()->rowCount(), static_cast<int>(Page().Page().cards.Size()));
}

TEST_F(OutlineTest, ChoosingAPageShowsIt) {
  ClickLine(Pages(), 2);
  EXPECT_EQ(Frame().CurrentPageIndex(), 2u);
  EXPECT_EQ(Pages().model()->rowCount(), 4);
  ClickLine(Cards(), 0);
  EXPECT_THAT(Selected(), ElementsAre(0));
}

TEST_F(OutlineTest, PagesAreCalledByNumberAndShownAsPictures) {
  Run("AddPage");
  const auto line = [this](int row) { return Pages().model()->index(row, 0); };
  EXPECT_EQ(line(4).data().toString(), QStringLiteral("Page 5")) << "an identifier is no name";
  const auto picture = [&] { return qvariant_cast<QPixmap>(line(0).data(Qt::DecorationRole)).toImage(); };
  // The picture of a page hides what is behind it, the drawing that stands in for it does not.
  const auto isPainted = [&] { return qAlpha(picture().pixel(picture().width() / 2, picture().height() / 2)) == 255; };
  EXPECT_TRUE(QTest::qWaitFor(isPainted, 20'000)) << "no thumbnail";
}

TEST_F(OutlineTest, LinesAreDraggedToAnotherPlace) {
  const auto drop = [](QListView& list, std::vector<int> rows, int before) {
    QModelIndexList lines;
    for (const int row : rows) lines << list.model()->index(row, 0);
    const std::unique_ptr<QMimeData> data(list.model()->mimeData(lines));
    list.model()->dropMimeData(data.get(), Qt::MoveAction, before, 0, {});
  };
  const auto idAt = [this](std::size_t place) { return Page().Page().cards[place].id; };
  const std::vector<std::wstring> before = {idAt(0), idAt(1), idAt(2), idAt(3)};
  drop(Cards(), {2, 3}, 0);
  Settle();
  EXPECT_THAT((std::vector{idAt(0), idAt(1), idAt(2), idAt(3)}),
              ElementsAre(before[2], before[3], before[0], before[1]));
  Run("Undo");
  EXPECT_EQ(idAt(0), before[0]);

  const std::wstring first = Frame().Page(0).Page().properties.id;
  drop(Pages(), {0}, 2);
  Settle();
  EXPECT_EQ(Frame().Page(1).Page().properties.id, first);
  Run("Undo");
  EXPECT_EQ(Frame().Page(0).Page().properties.id, first);
  // What comes from another list is none of its lines.
  const std::unique_ptr<QMimeData> foreign(Cards().model()->mimeData({Cards().model()->index(1, 0)}));
  EXPECT_FALSE(Pages().model()->dropMimeData(foreign.get(), Qt::MoveAction, 0, 0, {}));
  EXPECT_EQ(Frame().Page(0).Page().properties.id, first);
}

TEST_F(OutlineTest, ACardMayHaveANameOfItsOwn) {
  Frame().RememberIn(host.Cfg() / "notes");
  QAbstractItemModel& cards = *Cards().model();
  const QString plain = cards.index(1, 0).data().toString();
  ASSERT_TRUE(cards.setData(cards.index(1, 0), QStringLiteral(" Total ")));
  EXPECT_EQ(cards.index(1, 0).data().toString(), QStringLiteral("Total"));
  EXPECT_FALSE(Frame().IsModified());
  Page().SelectPlaces({1});
  Frame().Port().StateChanged();
  Settle();
  Run("Lock");
  EXPECT_EQ(cards.index(1, 0).data().toString(), QStringLiteral("Total (locked)"));
  Run("HideCards");
  EXPECT_EQ(cards.index(1, 0).data().toString(), QStringLiteral("Total (locked, hidden)"));
  cards.setData(cards.index(1, 0), QString());
  Run("UnlockAll");
  Run("ShowAll");
  EXPECT_EQ(cards.index(1, 0).data().toString(), plain);
}

TEST_F(OutlineTest, EyeAndPadlockStandInTheLine) {
  Frame().RememberIn(host.Cfg() / "notes");
  const auto click = [this](QRect (*button)(const QRect&)) {
    const QPoint at = button(Cards().visualRect(Cards().model()->index(1, 0))).center();
    QTest::mouseClick(Cards().viewport(), Qt::LeftButton, {}, at);
    Settle();
  };
  const auto note = [this] { return Page().NoteOf(Page().Page().cards[1]); };
  click(&CardMarks::LockButton);
  EXPECT_TRUE(note().locked);
  EXPECT_FALSE(note().hidden);
  click(&CardMarks::HideButton);
  EXPECT_TRUE(note().hidden);
  EXPECT_THAT(Selected(), IsEmpty()) << "what cannot be seen is not selected";
  click(&CardMarks::HideButton);
  click(&CardMarks::LockButton);
  EXPECT_TRUE(note().IsEmpty());
  EXPECT_THAT(Selected(), ElementsAre(1));
  EXPECT_FALSE(Cards().findChild<QLineEdit*>()) << "no name is being edited";
  EXPECT_FALSE(Frame().IsModified());
  // Elsewhere in the line a click chooses, as ever.
  ClickLine(Cards(), 1);
  EXPECT_TRUE(note().IsEmpty());
}

TEST_F(OutlineTest, PageKeysTurnPagesAndWithShiftMoveThem) {
  const std::wstring first = Page().Page().properties.id;
  View().setFocus();
  Key(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Frame().CurrentPageIndex(), 1u);
  EXPECT_FALSE(Frame().IsModified());
  Key(Qt::Key_PageUp, Qt::ControlModifier);
  ASSERT_EQ(Page().Page().properties.id, first);
  Key(Qt::Key_PageDown, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Frame().Page(1).Page().properties.id, first);
  Key(Qt::Key_PageUp, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Frame().Page(0).Page().properties.id, first);
}

TEST_F(OutlineTest, ChosenCardsComeIntoSight) {
  ASSERT_TRUE(Frame().SetZoom(3.0));
  const auto isInSight = [this] {
    const Rect area = Page().SelectedArea();
    return area.left >= 0 && area.top >= 0 && area.top < View().viewport()->height() &&
           area.left < View().viewport()->width();
  };
  const int last = static_cast<int>(Page().Page().cards.Size()) - 1;
  for (const int row : {0, last, 4, 2}) {
    ClickLine(Cards(), row);
    EXPECT_TRUE(isInSight()) << row;
  }
  View().setFocus();
  for (int step = 0; step < 3; ++step) {
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(isInSight()) << step;
  }
}

// Red dots mark what a search found; choosing a card is no search.
TEST_F(OutlineTest, ChosenCardsAndTabHaveNoSearchMark) {
  const auto redDots = [this] {
    int count = 0;
    for (int tick = 0; tick < 10; ++tick) {  // they blink
      Page().OnTimer();
      const QImage picture = View().viewport()->grab().toImage();
      for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) count += picture.pixel(x, y) == qRgb(255, 0, 0) ? 1 : 0;
      }
    }
    return count;
  };
  Run("Adjusted");  // all cards are in sight
  ClickLine(Cards(), 3);
  EXPECT_EQ(redDots(), 0);
  View().setFocus();
  Key(Qt::Key_Tab);
  EXPECT_THAT(Selected(), ElementsAre(2));
  EXPECT_EQ(redDots(), 0);
  Frame().SelectControlById(Page().Page().cards[2].id);
  EXPECT_GT(redDots(), 0);
}

}  // namespace
}  // namespace xrpt
