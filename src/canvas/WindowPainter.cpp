#include "canvas/WindowPainter.h"

#include "canvas/Frames.h"
#include "canvas/PagePainter.h"
#include "canvas/RVEditTemplateWnd.h"

namespace xrpt {

namespace {

RoundRegion RegionOf(const PagePlacement& place) {
  return {place.PageRect(), roundi(place.roundedPxX), roundi(place.roundedPxY)};
}

CardFrame FrameOf(const RVCardControl& card, const Rect& rect, const RVEditTemplateWnd& window) {
  CardFrame frame;
  frame.rect = rect;
  frame.color = card.color;
  frame.selected = window.Selection().IsSelected(card.id);
  frame.lastSelected = frame.selected && window.Selection().IsLastSelected(card.id);
  frame.picked = !card.id.empty() && card.id == window.PickedCardId();
  return frame;
}

// Top card first; those out of sight are left out. Only the top one under the pointer is hovered. While nothing is
// dragged the selection takes its rectangles from here.
std::vector<CardFrame> FramesOf(RVEditTemplateWnd& window, const PagePlacement& place, const Rect& client) {
  std::vector<CardFrame> frames;
  const bool isDragging = !window.DraggingRects().empty();
  const Point pointer = window.LastMousePoint();
  bool isHovered = !client.Contains(pointer);
  const CardList& cards = window.Page().cards;
  for (std::size_t i = 0; i < cards.Size(); ++i) {
    const Rect rect = ToPixels(place, RectOf(cards[i]));
    if (!isDragging) window.UpdateRect(cards[i].id, rect);
    if (!RVEditTemplateWnd::IsVisible(client, rect)) continue;
    frames.push_back(FrameOf(cards[i], rect, window));
    frames.back().hovered = !isHovered && rect.Contains(pointer);
    isHovered = isHovered || frames.back().hovered;
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

}  // namespace

void PaintWindowPage(Graphics& graphics, PixelBuffer& pixels, RVEditTemplateWnd& window, const Rect& client) {
  PagePaint how;
  how.grid = &pixels;
  PaintPage(graphics, window.Page(), window.MakeDraw(client), how);
  window.BackgroundDrawn();
}

void PaintWindowOverlay(PixelBuffer& pixels, RVEditTemplateWnd& window, const Rect& client, Color guideColor) {
  const PagePlacement place = window.Placement();
  if (!place.IsValid()) return;
  DrawFrames(pixels, RegionOf(place), FramesOf(window, place, client), window.Phase());
  for (const GuideLine& guide : window.Guides()) DrawGuide(pixels, guide, guideColor);
  for (const Rect& rect : window.DraggingRects()) DrawDraggingBox(pixels, rect);
}

}  // namespace xrpt
