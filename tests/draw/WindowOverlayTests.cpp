// The overlay that remembers what stands still shows what one made afresh shows, whatever happens in the window.
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
