// Frames, pixel by pixel: what is drawn is read back as a picture of characters.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "canvas/FrameOverlay.h"
#include "canvas/PagePainter.h"

namespace xrpt {
namespace {

using Art = std::vector<std::string>;

struct Screen {
  explicit Screen(int width, int height, double scale = 1.0)
      : bits(static_cast<std::size_t>(width * height), 0xFFFFFFFFu), buffer{bits.data(), width, height, width, scale} {
    page.rect = {0, 0, width, height};
  }
  // '.' is untouched, '#' the frame's black, 'r' a red dot, '?' anything else.
  Art Shown() const {
    Art art;
    for (int y = 0; y < buffer.height; ++y) {
      std::string row;
      for (int x = 0; x < buffer.width; ++x) {
        const std::uint32_t pixel = bits[static_cast<std::size_t>(y * buffer.width + x)];
        row += pixel == 0xFFFFFFFFu ? '.' : pixel == 0xFF000000u ? '#' : pixel == 0xFFFF0000u ? 'r' : '?';
      }
      art.push_back(row);
    }
    return art;
  }
  Art Border(const CardFrame& frame, int phase = 0) {
    DrawBorder(buffer, page, frame, phase);
    return Shown();
  }
  std::vector<std::uint32_t> bits;
  PixelBuffer buffer;
  RoundRegion page;
};

CardFrame Frame(Rect rect) {
  CardFrame frame;
  frame.rect = rect;
  return frame;
}

TEST(Frames, SolidOneOrThreePixelsEdgesIncluded) {
  CardFrame frame = Frame({1, 1, 8, 6});
  EXPECT_EQ(Screen(10, 8).Border(frame), (Art{"..........", ".########.", ".#......#.", ".#......#.", ".#......#.",
                                              ".#......#.", ".########.", ".........."}));
  frame.hovered = true;
  EXPECT_EQ(Screen(10, 8).Border(frame), (Art{"..........", ".########.", ".########.", ".########.", ".########.",
                                              ".########.", ".########.", ".........."}));
  EXPECT_EQ(Screen(10, 8).Border(Frame({1, 1, 1, 1}))[1], ".#........");
  EXPECT_EQ(Screen(10, 8).Border(Frame({5, 5, 3, 3})), Screen(10, 8).Shown());
}

TEST(Frames, SelectedDashesRunRoundTheCornersAndMarch) {
  CardFrame frame = Frame({0, 0, 13, 7});
  frame.selected = true;
  // Counter 5 at the top-left, then 0 1 drawn: the second and third pixel, and every sixth on. The right edge goes on
  // at (5 + 14) mod 6 = 1, the left restarts at 5, the bottom goes on at (5 + 8) mod 6 = 1. Corners belong to both
  // edges.
  EXPECT_EQ(Screen(14, 8).Border(frame, 0),
            (Art{".##....##....#", "#.............", "#.............", "..............", "..............",
                 ".............#", ".............#", "#....##....##."}));
  EXPECT_EQ(Screen(14, 8).Border(frame, 1)[0], "..##....##...#");
  EXPECT_EQ(Screen(14, 8).Border(frame, 5)[0], "##....##....##");
  frame.lastSelected = true;
  EXPECT_EQ(Screen(14, 8).Border(frame, 0)[0], ".#####.#####.#");
  frame.hovered = true;
  const Art thick = Screen(14, 8).Border(frame, 0);
  EXPECT_EQ(thick[1].substr(3, 8), "###.####");
  EXPECT_EQ(thick[2].substr(3, 8), "###.####");
}

TEST(Frames, PickedCardsBlinkRed) {
  CardFrame frame = Frame({0, 0, 7, 5});
  frame.picked = true;
  const Art dotted{"########", "#r.r.r.#", "#......#", "#r.r.r.#", "#......#", "########"};
  for (int phase = 0; phase < kFramePhases; ++phase) {
    const Art art = Screen(8, 6).Border(frame, phase);
    EXPECT_EQ(art == dotted, phase != 0 && phase != 4) << phase;
  }
}

TEST(Frames, ArePartOfTheRoundedPageOnly) {
  Screen screen(12, 8);
  screen.page = {{1, 0, 11, 8}, 3, 3};
  EXPECT_EQ(screen.Border(Frame({0, 0, 11, 7})), (Art{"..########..", "............", "............", "............",
                                                      "............", "............", "............", "..########.."}));
  Screen filled(12, 8);
  filled.page = screen.page;
  for (int y = 0; y < 8; ++y) DrawBorder(filled.buffer, filled.page, Frame({0, y, 11, y}), 0);
  EXPECT_EQ(filled.Shown(), (Art{"..########..", ".##########.", ".##########.", ".##########.", ".##########.",
                                 ".##########.", ".##########.", "..########.."}));
}

TEST(Frames, RowsAndColumnsOfARoundedPageAgree) {
  const RoundRegion page{{-3, 2, 40, 31}, 9, 6};
  for (int y = 0; y < 35; ++y) {
    for (int x = -5; x < 45; ++x) {
      const auto [top, bottom] = page.Column(x);
      EXPECT_EQ(page.Contains({x, y}), y >= top && y < bottom) << x << ' ' << y;
    }
  }
}

TEST(Frames, ScaleToBlocksOnDenseScreens) {
  Screen screen(8, 6, 2.0);
  EXPECT_EQ(screen.Border(Frame({0, 0, 3, 2})),
            (Art{"########", "########", "##....##", "##....##", "########", "########"}));
}

TEST(Frames, TheTopCardIsDrawnFirstAndHugeOnesEnd) {
  Screen screen(20, 20);
  std::vector<CardFrame> frames;
  constexpr int kFar = 2147483647;
  for (const Rect& rect : {Rect{-kFar, -kFar, kFar, kFar}, Rect{-kFar, 3, kFar, 5}, Rect{kFar, kFar, -kFar, -kFar}}) {
    CardFrame frame = Frame(rect);
    frame.picked = true;
    frames.push_back(frame);
    frame.selected = frame.hovered = true;
    frames.push_back(frame);
  }
  DrawFrames(screen.buffer, screen.page, frames, 1);
  EXPECT_EQ(screen.Shown()[3], std::string(20, '#'));
}

using RandomCards = std::vector<std::array<unsigned char, 6>>;

std::vector<CardFrame> FramesFrom(const RandomCards& cards) {
  std::vector<CardFrame> frames;
  for (const auto& card : cards) {
    CardFrame frame = Frame({card[0] % 70 - 5, card[1] % 50 - 5, 0, 0});
    frame.rect.right = frame.rect.left + card[2] % 30;
    frame.rect.bottom = frame.rect.top + card[3] % 20;
    frame.color = Rgb(card[4], card[2], card[0]);
    frame.selected = card[5] & 1;
    frame.lastSelected = card[5] & 2;
    frame.hovered = card[5] & 4;
    frame.picked = card[5] & 8;
    frames.push_back(frame);
  }
  return frames;
}

RC_GTEST_PROP(FrameOverlay, ComposesWhatDrawingAllFramesGives, (RandomCards cards, bool dense)) {
  Screen all(60, 40, dense ? 2.0 : 1.0);
  Screen composed(60, 40, dense ? 2.0 : 1.0);
  all.page.radiusX = all.page.radiusY = 7;
  const std::vector<CardFrame> frames = FramesFrom(cards);
  FrameOverlay overlay;
  overlay.Build(all.buffer, all.page, frames);
  for (int phase = 0; phase < kFramePhases; ++phase) {
    std::fill(all.bits.begin(), all.bits.end(), 0xFFFFFFFFu);
    DrawFrames(all.buffer, all.page, frames, phase);
    overlay.Compose(composed.buffer, phase);
    RC_ASSERT(composed.bits == all.bits);
  }
}

// Text moves in one place, then the pointer goes to another card: what was remembered shows what one made afresh does.
RC_GTEST_PROP(FrameOverlay, FollowsAChangeInOnePlace,
              (RandomCards cards, std::array<unsigned char, 4> at, bool dense)) {
  const double scale = dense ? 1.5 : 1.0;
  Screen page(60, 40, scale);
  page.page.radiusX = page.page.radiusY = 7;
  std::vector<CardFrame> frames = FramesFrom(cards);
  FrameOverlay overlay;
  overlay.Build(page.buffer, page.page, frames);
  Screen kept(60, 40, scale);
  overlay.Compose(kept.buffer, 2);
  const auto isAsIfNew = [&](int phase) {
    FrameOverlay fresh;
    Screen expected(60, 40, scale);
    fresh.Build(page.buffer, page.page, frames);
    fresh.Compose(expected.buffer, phase);
    return kept.bits == expected.bits;
  };

  const Rect place{at[0] % 60 - 5, at[1] % 40 - 5, at[0] % 60 + at[2] % 20, at[1] % 40 + at[3] % 20};
  overlay.Watch(std::array{place});
  page.buffer.Fill(place, Rgb(1, 2, 3));
  overlay.TakeWatched(page.buffer);
  overlay.ComposeWatched(kept.buffer, 2);
  RC_ASSERT(isAsIfNew(2));

  if (frames.empty()) return;
  CardFrame& changed = frames[at[2] % frames.size()];
  changed.hovered = !changed.hovered;
  const Rect part{changed.rect.left, changed.rect.top, changed.rect.right + 1, changed.rect.bottom + 1};
  std::vector<std::uint32_t> touching;
  for (std::uint32_t i = 0; i < frames.size(); ++i) {
    if (Touches(part, frames[i].rect)) touching.push_back(i);
  }
  overlay.Rebuild(page.buffer, page.page, frames, touching, part);
  for (int phase = 0; phase < kFramePhases; ++phase) {
    overlay.Compose(kept.buffer, phase);
    RC_ASSERT(isAsIfNew(phase));
  }
  overlay.Watch(std::array{place});
  page.buffer.Fill(place, Rgb(4, 5, 6));
  overlay.TakeWatched(page.buffer);
  overlay.ComposeWatched(kept.buffer, kFramePhases - 1);
  RC_ASSERT(isAsIfNew(kFramePhases - 1));
}

TEST(DraggingBox, IsDottedAndGoneWhenDrawnAgain) {
  Screen screen(12, 7);
  const std::vector<std::uint32_t> before = screen.bits;
  for (const Rect& rect : {Rect{1, 1, 10, 5}, Rect{10, 5, 1, 1}, Rect{-5, -5, 30, 3}, Rect{4, 4, 4, 4},
                           Rect{-2147483647, -2147483647, 2147483647, 2147483647}}) {
    DrawDraggingBox(screen.buffer, rect);
    DrawDraggingBox(screen.buffer, rect);
    EXPECT_EQ(screen.bits, before);
  }
  DrawDraggingBox(screen.buffer, {1, 1, 10, 5});
  EXPECT_EQ(screen.Shown(), (Art{"............", ".###...###..", ".#..........", ".#..........", "..........#.",
                                 "...###...##.", "............"}));
}

}  // namespace
}  // namespace xrpt
