#include "canvas/KeepOnPage.h"

#include <gmock/gmock.h>

namespace xrpt {

void PrintTo(const CardRect& rect, std::ostream* out) {
  *out << rect.x << " " << rect.y << " " << rect.width << " " << rect.height;
}

namespace {

constexpr SizeD kPage{210.0, 297.0};
constexpr CardRect kCard{20.0, 30.0, 60.0, 10.0};
constexpr double kNowhere = std::numeric_limits<double>::quiet_NaN();
constexpr double kFar = std::numeric_limits<double>::infinity();

TEST(KeepOnPage, ANewPlaceMovesAndANewSizeShrinks) {
  const std::pair<CardRect, CardRect> rows[] = {
      {{500, 30, 60, 10}, {150, 30, 60, 10}},     {{-5, 30, 60, 10}, {0, 30, 60, 10}},
      {{20, 400, 60, 10}, {20, 287, 60, 10}},     {{20, 30, 0, 10}, {20, 30, 0.5, 10}},
      {{20, 30, -7, 10}, {20, 30, 0.5, 10}},      {{20, 30, 500, 10}, {20, 30, 190, 10}},
      {{20, 30, 60, 400}, {20, 30, 60, 267}},     {{150, 287, 60, 10}, {150, 287, 60, 10}},
      {{kNowhere, 30, 60, 10}, {0, 30, 60, 10}},  {{20, kFar, 60, 10}, {20, 0, 60, 10}},
      {{20, 30, kNowhere, 10}, {20, 30, 0.5, 10}}};
  for (const auto& [wanted, kept] : rows) EXPECT_EQ(KeepOnPage(wanted, kCard, kPage), kept);
}

// A file may hold a card half beside its page; editing its other axis, or its text, leaves that alone.
TEST(KeepOnPage, WhatNobodyChangedStays) {
  const CardRect beside{-30.0, 290.0, 300.0, 40.0};
  EXPECT_EQ(KeepOnPage(beside, beside, kPage), beside);
  EXPECT_EQ(KeepOnPage({-30, 500, 300, 40}, beside, kPage), CardRect({-30, 257, 300, 40}));
  EXPECT_EQ(KeepOnPage({10, 290, 300, 40}, beside, kPage), CardRect({0, 290, 300, 40}));
}

TEST(KeepOnPage, OutOfSightIsWhatNothingOfCanBeSeen) {
  const std::pair<CardRect, bool> rows[] = {{kCard, false},
                                            {{209.9, 0, 60, 10}, false},
                                            {{-59.9, 0, 60, 10}, false},
                                            {{210, 0, 60, 10}, true},
                                            {{-60, 0, 60, 10}, true},
                                            {{0, 297, 60, 10}, true},
                                            {{0, -10, 60, 10}, true},
                                            {{0, 0, 0, 10}, true},
                                            {{0, 0, 10, -1}, true},
                                            {{kNowhere, 0, 60, 10}, true},
                                            {{0, 0, 60, kNowhere}, true},
                                            {{kFar, 0, 60, 10}, true},
                                            {{-1000, -1000, 3000, 3000}, false}};
  for (const auto& [rect, isOut] : rows) EXPECT_EQ(IsOutOfSight(rect, kPage), isOut) << rect.x << " " << rect.width;
}

TEST(KeepOnPage, WhatIsBroughtBackIsInSight) {
  const std::pair<CardRect, CardRect> rows[] = {{{500, 900, 60, 10}, {150, 287, 60, 10}},
                                                {{-500, 30, 60, 10}, {0, 30, 60, 10}},
                                                {{20, 30, 0, -3}, {20, 30, 0.5, 0.5}},
                                                {{900, 30, 600, 10}, {0, 30, 210, 10}},
                                                {{kNowhere, kFar, kNowhere, kFar}, {0, 0, 0.5, 0.5}}};
  for (const auto& [lost, found] : rows) {
    EXPECT_EQ(BroughtBack(lost, kPage), found);
    EXPECT_FALSE(IsOutOfSight(found, kPage));
  }
  EXPECT_FALSE(IsOutOfSight(BroughtBack({5, 5, 1, 1}, {0.1, 0.1}), {0.1, 0.1}));
}

}  // namespace
}  // namespace xrpt
