// What hands of drawing programs expect of a page: each with the mouse and the keys that a user has for it.
#include <gmock/gmock.h>

#include <QLabel>

#include "canvas/InsertTools.h"
#include "desktop/DialogTest.h"
#include "desktop/dialogs/ShortcutSheet.h"
#include "desktop/page/Rulers.h"

namespace xrpt {
namespace {

using ::testing::DoubleNear;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto kControl = Qt::ControlModifier;
constexpr auto kShift = Qt::ShiftModifier;
constexpr auto kAlt = Qt::AltModifier;

// The cover, whole in the window: a picture, a line and labels over a background, on a grid of 5 mm.
class PageHands : public DialogTest {
 protected:
  PageHands() {
    OpenSample();
    Frame().RememberIn(host.Cfg() / "notes");
    Run("Adjusted");
    title_ = CardWith("text/textStr", L"Informe mensual de energía");
    from_ = CardWith("text/textStr", L"Desde");
    View().setFocus();
  }

  std::size_t CardCount() { return Page().Page().cards.Size(); }
  std::size_t PlaceOf(const std::wstring& id) { return Page().Page().cards.IndexOf(Card(id).Key()); }
  CardRect RectAt(const std::wstring& id) { return RectOf(Card(id)); }
  Rect PixelsOf(const std::wstring& id) { return ToPixels(Page().Placement(), RectAt(id)); }
  QPoint At(double x, double y) {
    const Rect at = ToPixels(Page().Placement(), CardRect{x, y, 1, 1});
    return {at.left, at.top};
  }
  void Choose(const std::wstring& id, Qt::KeyboardModifiers held = {}) { Click(MiddleOf(id), held); }
  QImage Picture() { return View().viewport()->grab().toImage(); }
  static bool IsMultiple(double value, double step) { return std::abs(value - std::round(value / step) * step) < 1e-9; }

  std::wstring title_;
  std::wstring from_;
};

TEST_F(PageHands, AClickWithAToolPlacesACardOnTheGrid) {
  const std::size_t before = CardCount();
  Key(Qt::Key_G);
  ASSERT_EQ(Frame().Tool(), tool::kReportGraph);
  Click(At(61.3, 141.8));
  ASSERT_EQ(CardCount(), before + 1);
  const CardRect placed = RectOf(Page().Page().cards[0]);
  EXPECT_TRUE(IsMultiple(placed.x, 5) && IsMultiple(placed.y, 5)) << placed.x << ' ' << placed.y;
  EXPECT_GE(placed.width, 20.0);
  EXPECT_THAT(Page().SelectedIndexes(), ElementsAre(0));
  EXPECT_EQ(Frame().Tool(), tool::kPointer) << "the tool is put away";
}

TEST_F(PageHands, HandlesAreGrabbedFromOutsideTheEdge) {
  Choose(from_);
  const CardRect before = RectAt(from_);
  const Rect pixels = PixelsOf(from_);
  Drag({pixels.right + 2, pixels.bottom + 2}, At(30, 30) - At(10, 10));
  EXPECT_NEAR(RectAt(from_).width, before.width + 20, 1e-6);
  EXPECT_NEAR(RectAt(from_).height, before.height + 20, 1e-6);
  EXPECT_EQ(RectAt(from_).x, before.x);
}

TEST_F(PageHands, TheSizeStandsBesideThePointerOnlyWhileItIsDragged) {
  Choose(from_);
  const QImage still = Picture();
  const Rect pixels = PixelsOf(from_);
  Press({pixels.right, pixels.bottom});
  const QPoint to = At(120, 160);
  Move(to - QPoint(4, 4));
  Move(to);
  const QRect beside(to + QPoint(12, 12), QSize(60, 14));
  EXPECT_NE(Picture().copy(beside), still.copy(beside));
  Key(Qt::Key_Escape);
  EXPECT_EQ(Picture().copy(beside), still.copy(beside));
}

// Without the grid, what comes close to another card's edge lies on it to the last digit; the switch ends that.
TEST_F(PageHands, EdgesLineUpWithOtherCards) {
  Key(Qt::Key_F9);
  ASSERT_FALSE(Frame().IsGridOn());
  const auto dragged = [this] {
    const double right = RectAt(title_).x;
    Drag(MiddleOf(from_), At(right + 40, 131) - At(RectAt(from_).x, RectAt(from_).y));
    Drag(MiddleOf(from_), QPoint(PixelsOf(title_).left + 2, 0) - QPoint(PixelsOf(from_).left, 0));
    return RectAt(from_).x == right;
  };
  EXPECT_TRUE(dragged());
  Key(Qt::Key_F9, kControl);
  EXPECT_FALSE(dragged());
}

TEST_F(PageHands, TheGridIsShownAndSnappedToSeparately) {
  const QImage both = Picture();
  Key(Qt::Key_F9, kShift);
  EXPECT_FALSE(Frame().IsGridShown());
  EXPECT_TRUE(Frame().IsGridOn());
  EXPECT_NE(Picture(), both);
  Drag(MiddleOf(from_), At(31.7, 23.4) - At(0, 0));
  EXPECT_TRUE(IsMultiple(RectAt(from_).x, 5) && IsMultiple(RectAt(from_).y, 5));
  Key(Qt::Key_F9);
  Drag(MiddleOf(from_), At(12.7, 23.4) - At(0, 0));
  EXPECT_FALSE(IsMultiple(RectAt(from_).x, 5) && IsMultiple(RectAt(from_).y, 5));
}

// A line is pulled out of one ruler, moved by taking it where it crosses the other, and put away beyond the page.
TEST_F(PageHands, LinesAreDraggedOutOfTheRulersAndBack) {
  const auto rulers = PartsOf<Ruler>(Window());
  const auto lies = [](const Ruler* ruler) { return ruler->width() > ruler->height(); };
  Ruler& across = **std::find_if(rulers.begin(), rulers.end(), lies);
  Ruler& down = **std::find_if_not(rulers.begin(), rulers.end(), lies);
  const auto pull = [&](Ruler& ruler, double from, double to) {
    const auto at = [&](double y) { return ruler.mapFromGlobal(View().viewport()->mapToGlobal(At(50, y))); };
    const QPoint start = &ruler == &across ? QPoint(at(from).x(), 10) : QPoint(10, at(from).y());
    QTest::mousePress(&ruler, Qt::LeftButton, {}, start);
    QTest::mouseMove(&ruler, (start + at(to)) / 2);
    QTest::mouseMove(&ruler, at(to));
    QTest::mouseRelease(&ruler, Qt::LeftButton, {}, at(to));
    Settle();
  };
  pull(across, 0, 100);
  ASSERT_THAT(Page().Lines().across, ElementsAre(DoubleNear(100, 1)));
  EXPECT_THAT(Page().Lines().down, IsEmpty());
  pull(down, 100, 150);
  EXPECT_THAT(Page().Lines().across, ElementsAre(DoubleNear(150, 1)));
  pull(down, 150, -60);
  EXPECT_TRUE(Page().Lines().IsEmpty());
  EXPECT_FALSE(Frame().IsModified()) << "lines are the editor's";
}

TEST_F(PageHands, KeysAlignToTheCardChosenLast) {
  Drag(MiddleOf(from_), At(20, 0) - At(0, 0));
  const double left = RectAt(title_).x;
  ASSERT_NE(RectAt(from_).x, left);
  Choose(title_, kControl);
  Key(Qt::Key_L, kAlt | kShift);
  EXPECT_EQ(RectAt(from_).x, left);
  EXPECT_EQ(RectAt(title_).x, left);
}

TEST_F(PageHands, KeysMoveACardForwardAndBackwardByOneOrAllTheWay) {
  Choose(title_);
  const std::size_t at = PlaceOf(title_);
  ASSERT_GT(at, 1u);
  Key(Qt::Key_Up, kControl | kShift);
  EXPECT_EQ(PlaceOf(title_), at - 1);
  Key(Qt::Key_Down, kControl | kShift);
  EXPECT_EQ(PlaceOf(title_), at);
  Key(Qt::Key_Home, kControl | kShift);
  EXPECT_EQ(PlaceOf(title_), 0u);
  Key(Qt::Key_End, kControl | kShift);
  EXPECT_EQ(PlaceOf(title_), CardCount() - 1);
}

TEST_F(PageHands, GroupsAreTakenTogetherAndLockedCardsNotAtAll) {
  Choose(title_);
  Choose(from_, kControl);
  Key(Qt::Key_G, kControl);
  Click(At(150, 180));
  ASSERT_TRUE(Page().Selection().IsEmpty());
  Choose(from_);
  EXPECT_EQ(Page().Selection().Size(), 2u);
  Key(Qt::Key_G, kControl | kShift);
  Click(At(150, 180));
  Choose(from_);
  EXPECT_EQ(Page().Selection().Size(), 1u);
  Key(Qt::Key_K, kControl | kShift);
  Click(At(150, 180));
  const CardRect locked = RectAt(from_);
  Choose(from_);
  EXPECT_TRUE(Page().Selection().IsEmpty());
  Drag(MiddleOf(from_), {60, 60});
  EXPECT_EQ(RectAt(from_), locked);
}

TEST_F(PageHands, DuplicatesLieBesideAndPastesInPlaceWhereTheyWere) {
  Choose(from_);
  const CardRect first = RectAt(from_);
  const std::size_t before = CardCount();
  Key(Qt::Key_D, kControl);
  ASSERT_EQ(CardCount(), before + 1);
  EXPECT_NE(RectOf(Page().Page().cards[0]), first);
  EXPECT_EQ(RectOf(Page().Page().cards[0]).width, first.width);
  Choose(from_);
  Key(Qt::Key_C, kControl);
  Key(Qt::Key_PageDown, kControl);
  View().setFocus();
  const std::size_t there = CardCount();
  Key(Qt::Key_V, kControl | kShift);
  ASSERT_EQ(CardCount(), there + 1);
  EXPECT_EQ(RectOf(Page().Page().cards[0]), first);
}

TEST_F(PageHands, APreviewShowsWhatPaperShowsUntilEscape) {
  Choose(title_);
  const QImage editing = Picture();
  Key(Qt::Key_F5);
  EXPECT_TRUE(Frame().IsPreview());
  const QImage preview = Picture();
  EXPECT_NE(preview, editing);
  const Rect frame = PixelsOf(from_);
  EXPECT_EQ(preview.pixel(frame.left - 3, frame.top), preview.pixel(frame.left, frame.top)) << "no frame";
  Key(Qt::Key_Escape);
  EXPECT_FALSE(Frame().IsPreview());
}

TEST_F(PageHands, TheSheetTellsTheKeysAsTheyAre) {
  In<ShortcutSheet>([](ShortcutSheet& sheet) {
    QStringList texts;
    for (const QLabel* label : sheet.findChildren<QLabel*>()) texts << label->text();
    const QString all = texts.join(QLatin1Char('\n'));
    for (const char* keys : {"Ctrl+PgDown", "Ctrl+Shift+PgUp", "Ctrl+D", "F2"})
      EXPECT_TRUE(all.contains(QLatin1String(keys))) << keys;
  });
  Key(Qt::Key_F1);
}

}  // namespace
}  // namespace xrpt
