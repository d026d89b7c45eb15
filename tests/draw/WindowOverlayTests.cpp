// The overlay that remembers what stands still shows what one made afresh shows, whatever happens in the window.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "canvas/PagePainter.h"
#include "canvas/RVEditTemplateWnd.h"
#include "canvas/WindowPainter.h"
#include "draw/Drawing.h"
#include "model/RVCardLabel.h"
#include "xrpt/ScriptPorts.h"

namespace xrpt {
namespace {

struct NoTarget final : MessageTarget {
  void OnMessage(const MessageData&) override {}
};

struct WindowOverlayTest : HostTest {
  static constexpr int kWidth = 300;
  static constexpr int kHeight = 200;

  WindowOverlayTest() : port(screen) {
    screen.width = kWidth;
    screen.height = kHeight;
    for (int i = 0; i < 6; ++i) {
      auto card = std::make_unique<RVCardLabel>();
      card->id = L"card" + std::to_wstring(i);
      card->x = 5.0 + 9.0 * i;
      card->y = 5.0 + 4.0 * i;
      card->width = 15.0;
      page.cards.PushBack(std::move(card));
    }
    page.properties.id = L"page";
    window.emplace(page, port, queue, target);
    window->SetDpi(96, 96);
  }

  PixelBuffer BufferOf(std::vector<std::uint32_t>& bits) { return {bits.data(), kWidth, kHeight, kWidth, 1.0}; }
  std::vector<std::uint32_t> Shown(WindowOverlay& overlay) {
    std::vector<std::uint32_t> shown(paper.size(), 0);
    PixelBuffer buffer = BufferOf(shown);
    overlay.Paint(buffer, BufferOf(paper), painting, *window, port.ClientRect(), kBlack);
    return shown;
  }
  // What is shown now, checked against an overlay that remembers nothing.
  std::vector<std::uint32_t> Check(const char* step) {
    const auto shown = Shown(kept);
    WindowOverlay fresh;
    EXPECT_TRUE(shown == Shown(fresh)) << step;
    return shown;
  }
  // From here on the page's picture changes in one place, and what is shown is what was shown before.
  void BeginTicking() {
    const Rect page = window->Placement().PageRect();
    places = {{page.left + 40, page.top + 30, page.left + 90, page.top + 60}};
    shown = Shown(kept);
  }
  void Repaper() {
    color += 0x20u;
    for (int y = places[0].top; y < places[0].bottom; ++y) {
      for (int x = places[0].left; x < places[0].right; ++x) paper[static_cast<std::size_t>(y * kWidth + x)] = color;
    }
  }
  void Tick(const char* step) {
    Repaper();
    PixelBuffer buffer = BufferOf(shown);
    kept.PaintMoved(buffer, BufferOf(paper), painting, *window, port.ClientRect(), kBlack, places);
    WindowOverlay fresh;
    EXPECT_TRUE(shown == Shown(fresh)) << step;
  }
  void PaintAnew() {
    ++painting;
    shown = Shown(kept);
  }
  void MoveTo(Point point) {
    screen.pointer = point;
    window->OnMouseMove(point, {});
  }

  ScriptScreen screen;
  ScriptWindow port;
  RVReportPage page;
  MessageQueue queue;
  NoTarget target;
  std::optional<RVEditTemplateWnd> window;
  std::vector<std::uint32_t> paper = std::vector<std::uint32_t>(kWidth * kHeight, 0xFFFFFFFFu);
  int painting = 1;
  WindowOverlay kept;
  std::vector<Rect> places;  // where texts move
  std::vector<std::uint32_t> shown;
  std::uint32_t color = 0xFF000100u;  // of what moves
};

TEST_F(WindowOverlayTest, ShowsWhatAFreshOneShows) {
  const auto first = Check("as opened");
  EXPECT_TRUE(first != paper);
  const Rect card = window->Placement().PageRect();
  MoveTo({card.left + 30, card.top + 30});
  const auto hovered = Check("pointer over a card");
  EXPECT_TRUE(hovered != first);
  MoveTo({card.left + 31, card.top + 30});
  EXPECT_TRUE(Check("over the same card") == hovered);
  MoveTo({card.left + 80, card.top + 40});
  EXPECT_TRUE(Check("over another") != hovered);
  window->SelectControls({L"card1", L"card4"});
  const auto selected = Check("two selected");
  window->OnTimer();
  EXPECT_TRUE(Check("a tick later") != selected);
  window->SelectControls({L"card4", L"card1"});
  Check("the other one is last");
  window->SelectControlById(L"card2");
  Check("picked");
  for (int i = 0; i < 6; ++i) {
    window->OnTimer();
    Check("blinking");
  }
  paper.assign(paper.size(), 0xFFC0C0C0u);
  ++painting;
  Check("the page was painted anew");
  window->OnLButtonDown({card.left + 60, card.top + 40}, {});
  MoveTo({card.left + 70, card.top + 45});
  Check("dragging");
  window->OnLButtonUp({card.left + 70, card.top + 45});
  ++painting;
  Check("dropped");
}

// Texts move on the page while the user points, selects and drags.
TEST_F(WindowOverlayTest, WhatMovesIsFilledInAndLooksAsIfAllWere) {
  const Rect page = window->Placement().PageRect();
  BeginTicking();
  Tick("a first tick");
  Tick("and another");
  MoveTo({page.left + 50, page.top + 40});
  Tick("pointer over a card");
  window->SelectControls({L"card1", L"card4"});
  Tick("two selected");
  Tick("standing still");
  window->OnTimer();
  Tick("dashes marched");
  window->OnLButtonDown({page.left + 60, page.top + 40}, {});
  MoveTo({page.left + 70, page.top + 45});
  Tick("dragging");
  Tick("holding still");
  window->OnLButtonUp({page.left + 70, page.top + 45});
  PaintAnew();
  Tick("dropped");
}

// What the editor lays over the page beside frames stays where it is, and moves and goes when it should.
TEST_F(WindowOverlayTest, WhatMovesIsFilledInUnderLinesHandlesAndBesideHiddenCards) {
  CardNotes notes;
  window->SetNotes(&notes, {});
  EditingOptions options;
  options.showsHandles = true;
  window->SetOptions(options);
  BeginTicking();
  Tick("nothing yet");
  window->SetLines({{10.0, 40.0}, {15.0}}, true);
  Tick("lines have come");
  Tick("and stay");
  window->SetLines({{12.0, 40.0}, {}}, true);
  Tick("one has moved, one is gone");
  window->SelectControls({L"card1", L"card2"});
  Tick("handles");
  Tick("stay too");
  window->SelectControls({L"card2", L"card1"});
  Tick("another one is last");
  window->HideCard(1, true);
  PaintAnew();
  Tick("a card under them is hidden");
  window->ClearSelection();
  Tick("nothing is selected");
  const auto withHidden = shown;
  window->HideCard(1, false);
  PaintAnew();
  Tick("it is back");
  EXPECT_TRUE(shown != withHidden);
  window->SetPreview(true);
  PaintAnew();
  Tick("readers see no frames and no lines");
  EXPECT_TRUE(shown == paper);
}

// Where pictures arrive the page's picture is taken again, under whatever lies over it.
TEST_F(WindowOverlayTest, WhatArrivesIsTakenUnderFramesLinesAndHandles) {
  CardNotes notes;
  window->SetNotes(&notes, {});
  EditingOptions options;
  options.showsHandles = true;
  window->SetOptions(options);
  window->SetLines({{10.0}, {15.0}}, true);
  window->SelectControls({L"card1"});
  window->HideCard(3, true);
  BeginTicking();
  for (const char* step : {"one arrived", "the next"}) {
    Repaper();
    kept.TakeParts(BufferOf(paper), *window, places);
    Check(step);
  }
  window->SetPreview(true);
  PaintAnew();
  Repaper();
  kept.TakeParts(BufferOf(paper), *window, places);
  EXPECT_TRUE(Check("in a preview") == paper);
}

// However many cards there are, a tick draws those that meet the one that moves.
TEST_F(WindowOverlayTest, ATickDrawsTheCardsAroundWhatMoves) {
  for (int i = 0; i < 6; ++i) static_cast<RVCardLabel&>(page.cards.Edit(page.cards.Size() - 1 - i)).text = L"still";
  RVCardLabel& moving = static_cast<RVCardLabel&>(page.cards.Edit(2));
  moving.text = L"moving";
  moving.animation.behavior = Behavior::Scroll;
  const CardsInSight sight(page.cards, window->Placement(), port.ClientRect());
  EXPECT_EQ(sight.Cards().size(), 6u);
  const std::vector<PagePart> parts = MovingParts(*window, sight);
  ASSERT_EQ(parts.size(), 1u);
  EXPECT_EQ(parts[0].rect, ToPixels(window->Placement(), RectOf(moving)));
  EXPECT_EQ(parts[0].cards, (std::vector<std::size_t>{1, 2, 3})) << "its neighbours lie over and under it";
  RecordingGraphics graphics;
  PixelBuffer buffer = BufferOf(paper);
  PaintWindowPart(graphics, buffer, *window, parts[0]);
  EXPECT_EQ(graphics.Texts(), (std::vector<std::wstring>{L"still", L"moving", L"still"}));
  // A card the user has hidden is not painted in a tick either, but for readers.
  CardNotes notes;
  window->SetNotes(&notes, {});
  window->HideCard(1, true);
  const auto neighbours = [&] { return MovingParts(*window, SightOf(*window, port.ClientRect())).at(0).cards; };
  EXPECT_EQ(neighbours(), (std::vector<std::size_t>{2, 3}));
  window->SetPreview(true);
  EXPECT_EQ(neighbours(), (std::vector<std::size_t>{1, 2, 3}));
}

// Any card, anywhere, of any size: asking for a place gives what a walk over all gives.
RC_GTEST_PROP(CardsInSight, FindsWhatAWalkFinds,
              (std::vector<std::array<short, 4>> rects, std::array<short, 4> asked)) {
  TestHost host;
  RVReportPage page;
  page.properties.width = page.properties.height = 1000.0;
  for (const auto& [x, y, width, height] : rects) {
    auto card = std::make_unique<RVCardLabel>();
    card->x = x % 700 / 2.0;
    card->y = y % 500 / 2.0;
    card->width = std::abs(width % 90);
    card->height = std::abs(height % 400);
    page.cards.PushBack(std::move(card));
  }
  const Rect client{0, 0, 900, 700};
  const PagePlacement place = PlacePage(page.properties, {}, 1.0, client, 0, 0);
  const CardsInSight sight(page.cards, place, client);
  const Rect part{asked[0] % 900, asked[1] % 700, asked[0] % 900 + std::abs(asked[2] % 50),
                  asked[1] % 700 + std::abs(asked[3] % 50)};
  std::vector<std::size_t> expected;
  std::optional<std::size_t> top;
  for (std::size_t i = 0; i < page.cards.Size(); ++i) {
    const Rect rect = ToPixels(place, RectOf(page.cards[i]));
    if (!Touches(client, rect)) continue;
    if (Touches(part, rect)) expected.push_back(i);
    if (!top && rect.Contains({part.left, part.top})) top = i;
  }
  RC_ASSERT(PartAt(sight, part).cards == expected);
  const auto at = sight.At({part.left, part.top});
  RC_ASSERT((at ? std::optional(sight.Cards()[*at].index) : std::nullopt) == top);
}

TEST_F(WindowOverlayTest, FramesReachThePagesFarEdges) {
  page.properties.width = page.properties.height = 20.0;
  RVCardControl& card = page.cards.Edit(0);
  card.x = card.y = 0.0;
  card.width = card.height = 20.0;
  const Rect edge = window->Placement().PageRect();
  const auto shown = Check("a card as large as the page");
  const auto at = [&](int x, int y) { return shown[static_cast<std::size_t>(y * kWidth + x)]; };
  EXPECT_NE(at(edge.right, edge.top + 3), 0xFFFFFFFFu);
  EXPECT_NE(at(edge.left + 3, edge.bottom), 0xFFFFFFFFu);
  EXPECT_EQ(at(edge.right + 1, edge.top + 3), 0xFFFFFFFFu);
}

}  // namespace
}  // namespace xrpt
