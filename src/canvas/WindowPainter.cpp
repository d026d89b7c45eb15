#include "canvas/WindowPainter.h"

#include <utility>

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

void DrawGuide(PixelBuffer& pixels, const GuideLine& guide, Color color) {
  Rect line{guide.from.x, guide.from.y, guide.to.x, guide.to.y};
  line.Normalize();
  for (int y = line.top; y <= line.bottom; ++y) {
    for (int x = line.left; x <= line.right; ++x) pixels.SetPixel(x, y, color);
  }
}

}  // namespace

void PaintWindowPage(Graphics& graphics, PixelBuffer& pixels, RVEditTemplateWnd& window, const Rect& client) {
  PaintPage(graphics, window.Page(), window.MakeDraw(client), {true, window.Surround(), &pixels, nullptr});
  window.BackgroundDrawn();
}

PagePart PartAt(const CardsInSight& sight, const Rect& rect) {
  PagePart part{rect, {}};
  for (const std::uint32_t place : sight.Touching(rect)) part.cards.push_back(sight.Cards()[place].index);
  return part;
}

std::vector<PagePart> MovingParts(const RVEditTemplateWnd& window, const CardsInSight& sight) {
  std::vector<PagePart> parts;
  for (const CardsInSight::Card& card : sight.Cards()) {
    if (window.Page().cards[card.index].IsAnimated()) parts.push_back(PartAt(sight, card.rect));
  }
  return parts;
}

void PaintWindowPart(Graphics& graphics, PixelBuffer& pixels, const RVEditTemplateWnd& window, const PagePart& part) {
  const GraphicsState state(graphics);
  graphics.ClipRect(RectD(part.rect));
  PaintPage(graphics, window.Page(), window.MakeDraw(part.rect), {true, window.Surround(), &pixels, &part.cards});
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
                          const Rect& client, Color guideColor) {
  MakeFrames(page, painting, window, client);
  Compose(shown, window, guideColor);
}

void WindowOverlay::PaintMoved(PixelBuffer& shown, const PixelBuffer& page, int painting,
                               const RVEditTemplateWnd& window, const Rect& client, Color guideColor,
                               std::span<const Rect> moved) {
  const bool isNew = MakeFrames(page, painting, window, client);
  if (!isWatching_) frames_.Watch(moved);
  isWatching_ = true;
  frames_.TakeWatched(page);
  const bool isPlain = window.Guides().empty() && window.DraggingRects().empty();
  if (isNew || !isPlain || !isPlain_ || phase_ != window.Phase()) return Compose(shown, window, guideColor);
  frames_.ComposeWatched(shown, phase_);
}

bool WindowOverlay::MakeFrames(const PixelBuffer& page, int painting, const RVEditTemplateWnd& window,
                               const Rect& client) {
  Scene scene = SceneOf(window, painting);
  if (scene == scene_) return false;
  if (scene.window != scene_.window || scene.painting != scene_.painting)
    sight_ = CardsInSight(window.Page().cards, window.Placement(), client);
  const auto hovered = client.Contains(scene.pointer) ? sight_.At(scene.pointer) : std::nullopt;
  // A pointer that moves over one card changes nothing.
  scene_.pointer = scene.pointer;
  const bool isOther = scene != scene_;
  if (!isOther && hovered == hovered_) return false;
  scene_ = std::move(scene);
  if (!isOther) {
    Hover(page, window, hovered);
  } else {
    hovered_ = hovered;
    Build(page, window);
  }
  return true;
}

void WindowOverlay::Build(const PixelBuffer& page, const RVEditTemplateWnd& window) {
  cardFrames_.clear();
  for (const CardsInSight::Card& card : sight_.Cards())
    cardFrames_.push_back(FrameOf(window.Page().cards[card.index], card.rect, window));
  if (hovered_) cardFrames_[*hovered_].hovered = true;
  frames_.Build(page, RegionOf(window.Placement()), cardFrames_);
  isWatching_ = false;
}

// The pointer went from one card to another, and the frames of no others are concerned.
void WindowOverlay::Hover(const PixelBuffer& page, const RVEditTemplateWnd& window,
                          std::optional<std::uint32_t> hovered) {
  const auto former = std::exchange(hovered_, hovered);
  if (former) cardFrames_[*former].hovered = false;
  if (hovered) cardFrames_[*hovered].hovered = true;
  if (former) RebuildCard(page, window, *former);
  if (hovered) RebuildCard(page, window, *hovered);
}

void WindowOverlay::RebuildCard(const PixelBuffer& page, const RVEditTemplateWnd& window, std::uint32_t place) {
  Rect frame = sight_.Cards()[place].rect;
  ++frame.right;
  ++frame.bottom;
  Rebuild(page, window, frame);
}

void WindowOverlay::Rebuild(const PixelBuffer& page, const RVEditTemplateWnd& window, const Rect& part) {
  frames_.Rebuild(page, RegionOf(window.Placement()), cardFrames_, sight_.Touching(part), part);
  isWatching_ = false;
}

void WindowOverlay::TakeParts(const PixelBuffer& page, const RVEditTemplateWnd& window, std::span<const Rect> parts) {
  for (const Rect& part : parts) Rebuild(page, window, part);
}

void WindowOverlay::Compose(PixelBuffer& shown, const RVEditTemplateWnd& window, Color guideColor) {
  phase_ = window.Phase();
  frames_.Compose(shown, phase_);
  const std::vector<Rect> outlines = window.DraggingRects();
  for (const GuideLine& guide : window.Guides()) DrawGuide(shown, guide, guideColor);
  for (const Rect& rect : outlines) DrawDraggingBox(shown, rect);
  isPlain_ = window.Guides().empty() && outlines.empty();
}

}  // namespace xrpt
