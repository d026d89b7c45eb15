#include "canvas/WindowPainter.h"

#include <utility>

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

std::function<bool(const RVCardControl&)> ShowsOf(const RVEditTemplateWnd& window) {
  if (window.IsPreview() || !window.HidesAny()) return {};
  return [&window](const RVCardControl& card) { return !window.IsHidden(card); };
}

void DrawGuide(PixelBuffer& pixels, const GuideLine& guide, Color color) {
  Rect line{guide.from.x, guide.from.y, guide.to.x, guide.to.y};
  line.Normalize();
  for (int y = line.top; y <= line.bottom; ++y) {
    for (int x = line.left; x <= line.right; ++x) pixels.SetPixel(x, y, color);
  }
}

// Lines the user has drawn over the page to place cards by, as long as the window.
void DrawLines(PixelBuffer& pixels, const PageLines& lines, const PagePlacement& place, const Rect& client,
               Color color) {
  if (!place.IsValid()) return;
  for (const double x : lines.down) {
    const int at = ToPixels(place, {x, 0.0, 0.0, 0.0}).left;
    pixels.Fill({at, client.top, at + 1, client.bottom}, color);
  }
  for (const double y : lines.across) {
    const int at = ToPixels(place, {0.0, y, 0.0, 0.0}).top;
    pixels.Fill({client.left, at, client.right, at + 1}, color);
  }
}

// Cards in sight only.
std::vector<Rect> MarkedCards(const RVEditTemplateWnd& window, const Rect& client) {
  if (!window.Options().showsHandles || window.Selection().IsEmpty()) return {};
  std::vector<Rect> rects = window.SelectedRects();
  std::erase_if(rects, [&](const Rect& rect) { return rect == Rect() || !RVEditTemplateWnd::IsVisible(client, rect); });
  return rects;
}

PagePaint PaintOf(const RVEditTemplateWnd& window, PixelBuffer& pixels) {
  const bool shown = window.IsGridShown() && !window.IsPreview();
  return {true, window.Surround(), shown ? &pixels : nullptr, shown, {}, nullptr};
}

void PaintWith(Graphics& graphics, const RVEditTemplateWnd& window, const Rect& clip, const PagePaint& how) {
  const tagDraw draw = window.MakeDraw(clip);
  PaintPage(graphics, window.Page(), draw, how);
  if (window.Options().hintsAtCards && !window.IsPreview()) DrawCardHints(graphics, window.Page().cards, draw, how);
}

}  // namespace

void PaintWindowPage(Graphics& graphics, PixelBuffer& pixels, RVEditTemplateWnd& window, const Rect& client) {
  PagePaint how = PaintOf(window, pixels);
  how.shows = ShowsOf(window);
  PaintWith(graphics, window, client, how);
  window.BackgroundDrawn();
}

CardsInSight SightOf(const RVEditTemplateWnd& window, const Rect& client) {
  return CardsInSight(window.Page().cards, window.Placement(), client, ShowsOf(window));
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
  PagePaint how = PaintOf(window, pixels);
  how.part = &part;
  // On dense screens a part may end amid a pixel: what is behind the cards covers that one as it does elsewhere.
  const Rect ground{part.rect.left - 1, part.rect.top - 1, part.rect.right + 1, part.rect.bottom + 1};
  PaintWith(graphics, window, ground, how);
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
  MakeFrames(page, painting, window, client);
  Compose(shown, window, LaidOver(window, client), client, colors);
}

void WindowOverlay::PaintMoved(PixelBuffer& shown, const PixelBuffer& page, int painting,
                               const RVEditTemplateWnd& window, const Rect& client, const OverlayColors& colors,
                               std::span<const Rect> moved) {
  const bool isNew = MakeFrames(page, painting, window, client);
  if (!isWatching_) frames_.Watch(moved);
  isWatching_ = true;
  frames_.TakeWatched(page);
  Laid laid = LaidOver(window, client);
  if (isNew || phase_ != window.Phase() || !laid.outlines.empty() || laid != laid_)
    return Compose(shown, window, std::move(laid), client, colors);
  frames_.ComposeWatched(shown, phase_);
  // Over what is there, which makes no difference to what was not filled in.
  Lay(shown, window.Placement(), client, colors);
}

bool WindowOverlay::MakeFrames(const PixelBuffer& page, int painting, const RVEditTemplateWnd& window,
                               const Rect& client) {
  Scene scene = SceneOf(window, painting);
  if (scene == scene_) return false;
  if (scene.window != scene_.window || scene.painting != scene_.painting)
    sight_ = window.IsPreview() ? CardsInSight() : SightOf(window, client);  // readers see no frames
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

WindowOverlay::Laid WindowOverlay::LaidOver(const RVEditTemplateWnd& window, const Rect& client) {
  if (window.IsPreview()) return {};
  return {window.Lines(), MarkedCards(window, client), window.Guides(), window.DraggingRects()};
}

void WindowOverlay::Compose(PixelBuffer& shown, const RVEditTemplateWnd& window, Laid laid, const Rect& client,
                            const OverlayColors& colors) {
  phase_ = window.Phase();
  laid_ = std::move(laid);
  frames_.Compose(shown, phase_);
  Lay(shown, window.Placement(), client, colors);
}

void WindowOverlay::Lay(PixelBuffer& shown, const PagePlacement& place, const Rect& client,
                        const OverlayColors& colors) const {
  DrawLines(shown, laid_.lines, place, client, colors.guide);
  DrawSelectionMarks(shown, laid_.marks, colors.selection);
  for (const GuideLine& guide : laid_.guides) DrawGuide(shown, guide, colors.guide);
  for (const Rect& outline : laid_.outlines) DrawDraggingBox(shown, outline);
}

}  // namespace xrpt
