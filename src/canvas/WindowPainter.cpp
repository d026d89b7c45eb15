#include "canvas/WindowPainter.h"

#include "canvas/CardHints.h"
#include "canvas/Handles.h"
#include "canvas/PagePainter.h"
#include "canvas/RVEditTemplateWnd.h"

namespace xrpt {

namespace {

// A card's frame has its rectangle's right and bottom edge, and so has the page that it may reach to.
RoundRegion RegionOf(const PagePlacement& place) {
  Rect page = place.PageRect();
  ++page.right;
  ++page.bottom;
  return {page, roundi(place.roundedPxX), roundi(place.roundedPxY)};
}

CardFrame FrameOf(const RVCardControl& card, const Rect& rect, const RVEditTemplateWnd& window) {
  CardFrame frame;
  frame.rect = rect;
  frame.color = card.color;
  frame.selected = window.Selection().IsSelected(card);
  frame.lastSelected = frame.selected && window.Selection().IsLastSelected(card);
  frame.picked = card.Key() == window.PickedCard();
  return frame;
}

// The top card under the pointer; null without one.
const RVCardControl* HoveredCard(const RVEditTemplateWnd& window, const PagePlacement& place, const Rect& client) {
  const Point pointer = window.LastMousePoint();
  if (!place.IsValid()) return nullptr;
  const CardList& cards = window.Page().cards;
  for (std::size_t i = 0; client.Contains(pointer) && i < cards.Size(); ++i) {
    const Rect rect = ToPixels(place, RectOf(cards[i]));
    const bool meets = RVEditTemplateWnd::IsVisible(client, rect) && rect.Contains(pointer);
    if (meets && !window.IsHidden(cards[i])) return &cards[i];
  }
  return nullptr;
}

// Top card first; those out of sight are left out.
std::vector<CardFrame> FramesOf(const RVEditTemplateWnd& window, const PagePlacement& place, const Rect& client,
                                const RVCardControl* hovered) {
  std::vector<CardFrame> frames;
  if (!place.IsValid() || window.IsPreview()) return frames;
  const CardList& cards = window.Page().cards;
  for (std::size_t i = 0; i < cards.Size(); ++i) {
    const Rect rect = ToPixels(place, RectOf(cards[i]));
    if (!RVEditTemplateWnd::IsVisible(client, rect) || window.IsHidden(cards[i])) continue;
    frames.push_back(FrameOf(cards[i], rect, window));
    frames.back().hovered = &cards[i] == hovered;
  }
  return frames;
}

void DrawGuide(PixelBuffer& pixels, const GuideLine& guide, Color color) {
  Rect line{guide.from.x, guide.from.y, guide.to.x, guide.to.y};
  line.Normalize();
  for (int y = line.top; y <= line.bottom; ++y) {
    for (int x = line.left; x <= line.right; ++x) pixels.SetPixel(x, y, color);
  }
}

// Lines the user has drawn over the page to place cards by, as long as the window.
void DrawLines(PixelBuffer& pixels, const RVEditTemplateWnd& window, const PagePlacement& place, const Rect& client,
               Color color) {
  if (!place.IsValid()) return;
  for (const double x : window.Lines().down) {
    const int at = ToPixels(place, {x, 0.0, 0.0, 0.0}).left;
    pixels.Fill({at, client.top, at + 1, client.bottom}, color);
  }
  for (const double y : window.Lines().across) {
    const int at = ToPixels(place, {0.0, y, 0.0, 0.0}).top;
    pixels.Fill({client.left, at, client.right, at + 1}, color);
  }
}

// Cards in sight only.
void MarkSelection(PixelBuffer& pixels, const RVEditTemplateWnd& window, const Rect& client, Color color) {
  if (window.Selection().IsEmpty()) return;
  std::vector<Rect> rects = window.SelectedRects();
  std::erase_if(rects, [&](const Rect& rect) { return rect == Rect() || !RVEditTemplateWnd::IsVisible(client, rect); });
  DrawSelectionMarks(pixels, rects, color);
}

PagePaint PaintOf(const RVEditTemplateWnd& window, PixelBuffer& pixels) {
  const bool shown = window.IsGridShown() && !window.IsPreview();
  PagePaint how{true, window.Surround(), shown ? &pixels : nullptr, shown, {}};
  if (!window.IsPreview() && window.HidesAny())
    how.shows = [&window](const RVCardControl& card) { return !window.IsHidden(card); };
  return how;
}

void PaintHints(Graphics& graphics, PixelBuffer& pixels, const RVEditTemplateWnd& window, const Rect& part) {
  if (window.Options().hintsAtCards && !window.IsPreview())
    DrawCardHints(graphics, window.Page().cards, window.MakeDraw(part), PaintOf(window, pixels).shows);
}

}  // namespace

void PaintWindowPage(Graphics& graphics, PixelBuffer& pixels, RVEditTemplateWnd& window, const Rect& client) {
  PaintPage(graphics, window.Page(), window.MakeDraw(client), PaintOf(window, pixels));
  PaintHints(graphics, pixels, window, client);
  window.BackgroundDrawn();
}

std::vector<Rect> MovingCards(const RVEditTemplateWnd& window, const Rect& client) {
  std::vector<Rect> moving;
  const PagePlacement place = window.Placement();
  if (!place.IsValid()) return moving;
  const CardList& cards = window.Page().cards;
  for (std::size_t i = 0; i < cards.Size(); ++i) {
    if (!cards[i].IsAnimated()) continue;
    const Rect rect = ToPixels(place, RectOf(cards[i]));
    if (RVEditTemplateWnd::IsVisible(client, rect)) moving.push_back(rect);
  }
  return moving;
}

void PaintWindowPart(Graphics& graphics, PixelBuffer& pixels, const RVEditTemplateWnd& window, const Rect& part) {
  const GraphicsState state(graphics);
  graphics.ClipRect(RectD(part));
  PaintPage(graphics, window.Page(), window.MakeDraw(part), PaintOf(window, pixels));
  PaintHints(graphics, pixels, window, part);
}

WindowOverlay::Scene WindowOverlay::SceneOf(const RVEditTemplateWnd& window, int painting) {
  Scene scene;
  scene.window = &window;
  scene.painting = painting;
  scene.pointer = window.LastMousePoint();
  scene.picked = window.PickedCard();
  scene.selection = window.Selection();
  return scene;
}

void WindowOverlay::Paint(PixelBuffer& shown, const PixelBuffer& page, int painting, const RVEditTemplateWnd& window,
                          const Rect& client, const OverlayColors& colors) {
  const PagePlacement place = window.Placement();
  Scene scene = SceneOf(window, painting);
  if (scene != scene_) {
    const RVCardControl* hovered = HoveredCard(window, place, client);
    // A pointer that moves over one card changes nothing.
    scene_.pointer = scene.pointer;
    if (scene != scene_ || hovered != hovered_)
      frames_.Build(page, RegionOf(place), FramesOf(window, place, client, hovered));
    scene_ = std::move(scene);
    hovered_ = hovered;
  }
  frames_.Compose(shown, window.Phase());
  if (!window.IsPreview()) DrawLines(shown, window, place, client, colors.guide);
  if (window.Options().showsHandles && !window.IsPreview()) MarkSelection(shown, window, client, colors.selection);
  for (const GuideLine& guide : window.Guides()) DrawGuide(shown, guide, colors.guide);
  for (const Rect& rect : window.DraggingRects()) DrawDraggingBox(shown, rect);
}

}  // namespace xrpt
