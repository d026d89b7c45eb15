// The page on the screen: when it is painted, how it zooms, pans and scrolls, and that frames are crisp on dense
// screens.
#include <gmock/gmock.h>

#include <QPainter>

#include "desktop/WindowTest.h"
#include "desktop/page/KeyCodes.h"
#include "desktop/page/PageImage.h"
#include "desktop/page/RulerMarks.h"
#include "desktop/panels/StatusBar.h"
#include "desktop/ribbon/Ribbon.h"
#include "model/RVCardLabel.h"

namespace xrpt {
namespace {

class PageViewTest : public WindowTest {
 protected:
  PageViewTest() {
    OpenSample();
    Page().SetNotes(&notes, {});
  }
  ~PageViewTest() override { CloseWindow(); }
  void Wheel(QPoint at, QPoint turn, Qt::KeyboardModifiers held) {
    QWheelEvent event(at, View().viewport()->mapToGlobal(at), {}, turn, {}, held, Qt::NoScrollPhase, false);
    QApplication::sendEvent(View().viewport(), &event);
    Settle();
  }
  void Animate(const std::vector<std::wstring>& labels) {
    for (const std::wstring& label : labels) {
      PageEdit edit = Page().Edit({});
      auto& moving = static_cast<RVCardLabel&>(*edit.Card(CardWith("text/textStr", label)));
      moving.animation.behavior = Behavior::Scroll;
    }
  }
  // A tick paints what moves and nothing else, and shows what painting everything at that moment would show: so it does
  // at a few moments. What is shown at the last of them.
  QImage CheckTicks(const char* what) {
    const QSize size = View().viewport()->size();
    QImage before;
    for (const double scale : {1.1, 1.5, 1.0}) {
      PageImage image;
      Page().SetAnimationTime(0);
      before = image.Paint(Page(), size, scale).copy();
      const int paintings = image.Paintings();
      for (int time : {400, 800, 1200}) {
        Page().SetAnimationTime(time);
        const QRegion changed = image.PaintMoving(Page());
        QImage shown = image.Paint(Page(), size, scale).copy();
        PageImage fresh;
        EXPECT_EQ(shown, fresh.Paint(Page(), size, scale)) << what << ", " << time << " at " << scale;
        EXPECT_NE(shown, before) << what << ", " << time;
        for (QImage* picture : {&before, &shown}) {
          QPainter painter(picture);
          painter.setClipRegion(changed);
          painter.fillRect(View().viewport()->rect(), Qt::black);
        }
        EXPECT_EQ(shown, before) << what << ": something changed that is not shown";
        before = fresh.Paint(Page(), size, scale).copy();
      }
      EXPECT_EQ(image.Paintings(), paintings);
    }
    return before;
  }
  // Millimetres on the page under a pixel of the view.
  PointD Under(QPoint at) {
    const PagePlacement place = Page().Placement();
    return {(at.x() - place.offsetX) * place.PixelWidth(), (at.y() - place.offsetY) * place.PixelHeight()};
  }

  CardNotes notes;
};

TEST_F(PageViewTest, FramesMarchWithoutPaintingThePageAgain) {
  Click(MiddleOf(CardWith("text/textStr", L"Desde")));
  View().viewport()->grab();
  const int paintings = View().PagePaintings();
  const QImage before = View().viewport()->grab().toImage();
  for (int tick = 0; tick < 2; ++tick) Page().OnTimer();
  EXPECT_NE(View().viewport()->grab().toImage(), before);
  EXPECT_EQ(View().PagePaintings(), paintings);
  Page().RedrawBackground();
  View().viewport()->grab();
  EXPECT_EQ(View().PagePaintings(), paintings + 1);
}

TEST_F(PageViewTest, MovingTextsArePaintedByThemselves) {
  Animate({L"Desde", L"Informe mensual de energía"});
  CheckTicks("nothing beside them");
  const CardRect moving = RectOf(Card(CardWith("text/textStr", L"Desde")));
  Page().SetLines({{moving.y + 1.0}, {moving.x + 2.0}});
  CheckTicks("lines over them");
  Page().SelectControls({CardWith("text/textStr", L"Desde")});
  CheckTicks("handles round them");
}

// Cards over and under a text that moves: one that has nothing to show yet, one whose text is cut off, one that only
// readers see.
TEST_F(PageViewTest, MovingTextsGoAlongUnderWhatIsHiddenAndHinted) {
  Animate({L"Desde"});
  const CardRect moving = RectOf(Card(CardWith("text/textStr", L"Desde")));
  for (const wchar_t* words : {L"", L"much more than there is room for"}) {
    auto over = std::make_unique<RVCardLabel>();
    over->text = words;
    over->id = words[0] ? L"cut" : L"empty";
    over->x = moving.x + (words[0] ? 1.0 : moving.width / 2);
    over->y = moving.y - 1.0;
    over->width = moving.width / 3;
    over->height = moving.height + 2.0;
    Page().Edit({}).Cards().PushFront(std::move(over));
  }
  const QImage hinted = CheckTicks("hints over it");
  Page().HideCard(0, true);
  const QImage hidden = CheckTicks("a card over it hidden");
  EXPECT_NE(hinted, hidden);
  Page().SetPreview(true);
  EXPECT_NE(CheckTicks("in a preview"), hinted);
  Page().SetPreview(false);
  EXPECT_EQ(CheckTicks("as before"), hidden);
}

TEST_F(PageViewTest, ControlWheelZoomsAtThePointer) {
  ASSERT_TRUE(Frame().SetZoom(2.0));
  View().horizontalScrollBar()->setValue(300);
  View().verticalScrollBar()->setValue(400);
  const QPoint at(420, 310);
  const PointD before = Under(at);
  Wheel(at, {0, 120}, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(Page().Zoom(), 2.4);
  EXPECT_NEAR(Under(at).x, before.x, 0.2);
  EXPECT_NEAR(Under(at).y, before.y, 0.2);
  for (int turn = 0; turn < 30; ++turn) Wheel(at, {0, -120}, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(Page().Zoom(), RVEditControlWnd::kSmallestZoom);
}

TEST_F(PageViewTest, WheelScrollsAndShiftTurnsIt) {
  ASSERT_TRUE(Frame().SetZoom(3.0));
  Wheel({100, 100}, {0, -120}, {});
  EXPECT_EQ(Page().VerticalScroll().position, 60);
  Wheel({100, 100}, {0, -120}, Qt::ShiftModifier);
  EXPECT_EQ(Page().HorizontalScroll().position, 60);
}

TEST_F(PageViewTest, SpaceAndDragMovesThePageNotTheCards) {
  ASSERT_TRUE(Frame().SetZoom(3.0));
  View().setFocus();
  QTest::keyPress(&View(), Qt::Key_Space);
  Press({300, 300});
  Move({250, 220});
  Release({250, 220});
  QTest::keyRelease(&View(), Qt::Key_Space);
  EXPECT_EQ(Page().HorizontalScroll().position, 50);
  EXPECT_EQ(Page().VerticalScroll().position, 80);
  EXPECT_TRUE(Page().Selection().IsEmpty());
  EXPECT_FALSE(Frame().IsModified());
}

TEST_F(PageViewTest, LosingTheKeyboardEndsADrag) {
  const std::wstring id = CardWith("text/textStr", L"Desde");
  const CardRect before = RectOf(Card(id));
  const QPoint from = MiddleOf(id);
  Press(from);
  Move(from + QPoint(60, 60));
  Window().Tabs().FocusTabs();
  EXPECT_TRUE(Page().DraggingRects().empty());
  Release(from + QPoint(60, 60));
  EXPECT_EQ(RectOf(Card(id)), before);
}

TEST_F(PageViewTest, AFittedZoomFollowsTheWindow) {
  Run("Adjusted");
  const double before = Page().Zoom();
  ASSERT_LT(before, 0.0);
  Window().resize(900, 600);
  Settle();
  EXPECT_LT(Page().Zoom(), 0.0);
  EXPECT_LT(std::abs(Page().Zoom()), std::abs(before));
}

TEST_F(PageViewTest, EachPageKeepsItsPlace) {
  ASSERT_TRUE(Frame().SetZoom(2.0));
  View().verticalScrollBar()->setValue(200);
  Run("NextPage");
  EXPECT_EQ(View().verticalScrollBar()->value(), Page().VerticalScroll().position);
  EXPECT_EQ(Page().VerticalScroll().position, 0);
  Run("PreviousPage");
  EXPECT_EQ(View().verticalScrollBar()->value(), 200);
}

// One canvas pixel of a frame is a block of device pixels, with nothing blurred in between.
TEST_F(PageViewTest, FramesAreCrispOnDenseScreens) {
  Page().Edit({}).Properties().xgrid = -5.0;
  const QSize size = View().viewport()->size();
  PageImage once;
  PageImage twice;
  const QImage normal = once.Paint(Page(), size, 1.0).copy();
  const QImage dense = twice.Paint(Page(), size, 2.0).copy();
  ASSERT_EQ(dense.size(), size * 2);
  const Rect frame =
      ToPixels(Page().Placement(), RectOf(Card(CardWith("text/textStr", L"Informe mensual de energía"))));
  for (int x = frame.left + 1; x < frame.right; x += 7) {
    const QRgb expected = normal.pixel(x, frame.top);
    for (const QPoint part : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)})
      ASSERT_EQ(dense.pixel(QPoint(x, frame.top) * 2 + part), expected) << "at " << x;
  }
}

TEST(Rulers, StepsLeaveRoomForLabels) {
  const std::pair<double, double> rows[] = {{3.78, 20.0}, {1.89, 50.0}, {37.8, 2.0},
                                            {7.56, 10.0}, {48.0, 1.0},  {0.4, 200.0}};
  for (const auto& [scale, step] : rows) EXPECT_DOUBLE_EQ(RulerStep(scale), step) << scale;
}

TEST(Rulers, MarksCountFromThePagesCorner) {
  const std::vector<RulerMark> marks = RulerMarks({100.0, 4.0}, 60.0, 181.0);
  ASSERT_EQ(marks.size(), 16u);  // every 2 mm, from -10 to 20
  EXPECT_DOUBLE_EQ(marks.front().position, 60.0);
  EXPECT_DOUBLE_EQ(marks.front().millimetres, -10.0);
  EXPECT_EQ(marks.front().kind, RulerMarkKind::Middle);
  EXPECT_EQ(marks[5].kind, RulerMarkKind::Major);
  EXPECT_DOUBLE_EQ(marks[5].millimetres, 0.0);
  EXPECT_EQ(marks[6].kind, RulerMarkKind::Minor);
  for (const double scale : {0.0, -1.0, std::nan("")}) EXPECT_TRUE(RulerMarks({0.0, scale}, 0.0, 100.0).empty());
}

TEST(ZoomSlider, GivesBackTheZoomItShows) {
  for (const double zoom : {0.5, 0.75, 1.0, 2.0, 4.0, 10.0})
    EXPECT_NEAR(SliderZoom(SliderPosition(zoom)), zoom, zoom * 0.01);
  EXPECT_EQ(SliderPosition(0.001), SliderPosition(0.5));
}

TEST(Keys, AreTheOnesWindowsKnow) {
  const std::pair<int, int> rows[] = {{Qt::Key_Left, key::Left},
                                      {Qt::Key_Escape, key::Escape},
                                      {Qt::Key_Delete, key::Delete},
                                      {Qt::Key_A, 'A'},
                                      {Qt::Key_7, '7'},
                                      {Qt::Key_F5, 0},
                                      {Qt::Key_Ntilde, 0}};
  for (const auto& [from, to] : rows) EXPECT_EQ(VirtualKey(from), to) << from;
}

}  // namespace
}  // namespace xrpt
