// Where moving things are, pictures stand and shapes fit.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "model/draw/Marquee.h"
#include "model/draw/PicturePlacement.h"
#include "model/draw/PrimitiveShape.h"

namespace xrpt {
namespace {

constexpr double kPixel = 0.75;  // points

// 4 pixels every 100 milliseconds: 30 points a second.
Animation Moving(Behavior behavior, Direction direction) { return {behavior, direction, 4, 100}; }

TEST(Marquee, IsWhereItsTimeSays) {
  const MarqueeTrack shorter{40.0, 20.0, 100.0};
  const MarqueeTrack longer{0.0, 160.0, 100.0};
  const struct {
    Behavior behavior;
    Direction direction;
    int milliseconds;
    MarqueeTrack track;
    double position;
  } rows[] = {
      {Behavior::None, Direction::Left, 5000, shorter, 40},
      {Behavior::Scroll, Direction::Left, 0, shorter, 40},
      {Behavior::Scroll, Direction::Left, 99, shorter, 40},
      {Behavior::Scroll, Direction::Left, 100, shorter, 37},
      {Behavior::Scroll, Direction::Right, 100, shorter, 43},
      {Behavior::Scroll, Direction::Up, 1000, shorter, 10},
      {Behavior::Scroll, Direction::Left, 2000, shorter, -20},
      {Behavior::Scroll, Direction::Left, 2100, shorter, 97},  // gone on the left, back on the right
      {Behavior::Scroll, Direction::Right, 2100, shorter, -17},
      {Behavior::Scroll, Direction::Down, 4000, shorter, 40},  // once round
      {Behavior::Alternate, Direction::Right, 1000, shorter, 70},
      {Behavior::Alternate, Direction::Right, 2000, shorter, 60},  // turned at 80
      {Behavior::Alternate, Direction::Left, 2000, shorter, 20},   // turned at 0
      {Behavior::Alternate, Direction::Left, 1000, longer, -30},
      {Behavior::Alternate, Direction::Left, 3000, longer, -30},  // turned when its end was in sight, at -60
      {Behavior::Alternate, Direction::Left, 1000, {0.0, 100.0, 100.0}, 0},
      {Behavior::Scroll, Direction::Left, -5, shorter, 40},
  };
  for (const auto& row : rows) {
    const Animation animation = Moving(row.behavior, row.direction);
    EXPECT_NEAR(MarqueePosition(animation, row.milliseconds, row.track), row.position, 1e-9)
        << int(row.behavior) << ' ' << int(row.direction) << ' ' << row.milliseconds;
  }
}

TEST(Marquee, CountsValuesBelowOneAsTheFileHoldsThem) {
  EXPECT_EQ(MarqueeDistance({Behavior::Scroll, Direction::Left, 0, -3}, 100), 2 * kPixel);
  EXPECT_EQ(MarqueeDistance({Behavior::Scroll, Direction::Left, 7, 1}, 3), 21 * kPixel);
}

RC_GTEST_PROP(Marquee, NeverStaysOutOfSight, (int time, bool scroll, int direction, int length, int room)) {
  const Animation animation{scroll ? Behavior::Scroll : Behavior::Alternate,
                            static_cast<Direction>(std::abs(direction % 4)), 3, 20};
  const MarqueeTrack track{0.0, double(std::abs(length % 500)) + 1.0, double(std::abs(room % 500)) + 1.0};
  const double at = MarqueePosition(animation, time, track);
  RC_ASSERT(at >= -track.length && at <= track.room);
}

TEST(PicturePlacement, FollowsAlignmentAndScaling) {
  Picture wide;
  wide.width = 200;
  wide.height = 100;
  const SizeD box{60, 60};
  const struct {
    PictureFit fit;
    RectD place;
  } rows[] = {
      {{kAlignCenter, kAlignCenter, true, false}, {0, 15, 60, 45}},
      {{kAlignCenter, kAlignTop, true, false}, {0, 0, 60, 30}},
      {{kAlignCenter, kAlignBottom, true, false}, {0, 30, 60, 60}},
      {{kAlignLeft, kAlignTop, false, false}, {0, 0, 60, 60}},
      {{kAlignLeft, kAlignTop, true, true}, {0, 0, 150, 75}},
      {{kAlignRight, kAlignBottom, false, true}, {-90, -15, 60, 60}},
  };
  for (const auto& row : rows) EXPECT_EQ(PlacePicture(wide, box, row.fit), row.place);
  EXPECT_EQ(PlacePicture(Picture(), box, {}), RectD());
}

TEST(PrimitiveShape, LinesReachTheEdges) {
  const struct {
    double degrees;
    PointD to;
  } rows[] = {{0, {50, 0}}, {90, {0, -20}}, {180, {-50, 0}}, {45, {20, -20}}, {-90, {0, 20}}, {360, {50, 0}}};
  for (const auto& row : rows) {
    const auto [from, to] = LineThrough({100, 40}, row.degrees);
    EXPECT_NEAR(to.x, row.to.x, 1e-9) << row.degrees;
    EXPECT_NEAR(to.y, row.to.y, 1e-9) << row.degrees;
    EXPECT_NEAR(from.x, -row.to.x, 1e-9);
  }
}

RC_GTEST_PROP(PrimitiveShape, TurnedShapesStayInside, (int tenths, unsigned width, unsigned height)) {
  const SizeD card{1.0 + width % 1000, 1.0 + height % 1000};
  const double degrees = tenths % 7200 / 10.0;
  const double angle = degrees * 3.14159265358979 / 180.0;
  const double c = std::abs(std::cos(angle));
  const double s = std::abs(std::sin(angle));
  const SizeD box = TurnedBoxInside(card, degrees);
  RC_ASSERT(box.width * c + box.height * s <= card.width + 1e-6);
  RC_ASSERT(box.width * s + box.height * c <= card.height + 1e-6);
  const SizeD ellipse = TurnedEllipseInside(card, degrees);
  RC_ASSERT(std::hypot(ellipse.width * c, ellipse.height * s) <= card.width + 1e-6);
  RC_ASSERT(ellipse.width >= box.width - 1e-9);
}

}  // namespace
}  // namespace xrpt
