#include "canvas/PagePainter.h"

#include <algorithm>

#include "model/RVCardImage.h"

namespace xrpt {
namespace {

bool IsRounded(const tagDraw& draw) { return draw.roundedPxX > 0.0 && draw.roundedPxY > 0.0; }

RectD PageRect(const tagDraw& draw) {
  return RectD(Rect{trunci(draw.offsetX), trunci(draw.offsetY), trunci(draw.offsetX + draw.pageWidthPx),
                    trunci(draw.offsetY + draw.pageHeightPx)});
}

// Where cards are seen: on the page, its far edges included, because a card's edges are rounded apart from the page's.
void ClipToPage(Graphics& graphics, const tagDraw& draw) {
  RectD page(CardPixelRect(draw, 0.0, 0.0, draw.pageWidth, draw.pageHeight));
  page.right += 1.0;
  page.bottom += 1.0;
  if (IsRounded(draw)) return graphics.ClipRoundRect(page, draw.roundedPxX, draw.roundedPxY);
  graphics.ClipRect(page);
}

void DrawBackground(Graphics& graphics, const RVReportPage& page, const tagDraw& draw, const PagePaint& how) {
  const Color behind = how.surroundColor.value_or(page.properties.backcolor);
  if (how.surround && behind != kNoColor) graphics.FillRect(RectD(draw.clip), behind);
  const RectD paper = PageRect(draw);
  const bool rounded = IsRounded(draw);
  if (rounded) {
    graphics.FillRoundRect(paper, draw.roundedPxX, draw.roundedPxY, kWhite);
  } else {
    graphics.FillRect(paper, kWhite);
  }
  if (!page.properties.ThereAreBackground()) return;
  const GraphicsState state(graphics);
  if (rounded) graphics.ClipRoundRect(paper, draw.roundedPxX, draw.roundedPxY);
  tagDraw plain = draw;
  plain.flag1 = 0;  // a stand-in as large as the page would hide it
  PaintCard(graphics, page.properties.Background(), plain);
}

// A dot drawn twice is none, so they stay inside the part that is painted anew to the pixel.
void DrawPageGrid(const RVReportPage& page, const tagDraw& draw, const PagePaint& how) {
  if (!how.grid) return;
  GridSteps steps = GridOf(page.properties);
  if (how.gridWhenOff) steps = {std::abs(steps.x), std::abs(steps.y)};
  tagDraw where = draw;
  if (how.part) where.clip = how.part->rect;
  DrawGrid(*how.grid, steps, where);
}

void DrawFailure(Graphics& graphics, const Rect& card) {
  constexpr Color kAlarm = Rgb(0xC8, 0x28, 0x28);
  constexpr Color kGround = Rgb(0xFD, 0xEC, 0xEA);
  const RectD box(card);
  const GraphicsState state(graphics);
  graphics.ClipRect(box);
  graphics.FillRect(box, kGround);
  graphics.DrawLine({box.left, box.top}, {box.right, box.bottom}, {kAlarm, 1.0});
  graphics.DrawLine({box.left, box.bottom}, {box.right, box.top}, {kAlarm, 1.0});
  graphics.DrawRect({box.left, box.top, box.right - 1.0, box.bottom - 1.0}, {kAlarm, 1.0});
}

// The grid crossings of one axis that lie inside the clip, in pixels.
struct GridAxis {
  double step;    // millimetres
  double extent;  // of the page, millimetres
  double pixels;  // of the page
  double offset;  // of the page, pixels
  int clipFrom;
  int clipTo;

  bool IsVisible() const { return step > 0.0 && step * pixels / extent >= 1.0; }
  template <class Visit>
  void ForEach(const Visit& visit) const {
    double i = std::max(0.0, std::floor((clipFrom - offset) * extent / pixels / step) - 1.0);
    // At least a pixel apart, so there are no more of them than pixels.
    for (int left = clipTo - clipFrom + 3; left > 0 && i * step < extent; --left, ++i) {
      const int at = roundi(i * step * pixels / extent + offset);
      if (at >= clipTo) return;
      if (at >= clipFrom) visit(at);
    }
  }
};

}  // namespace

bool Touches(const Rect& a, const Rect& b) {
  return b.bottom >= a.top && b.top <= a.bottom && b.right >= a.left && b.left <= a.right;
}

void DrawGrid(PixelBuffer& buffer, const GridSteps& steps, const tagDraw& draw) {
  const int right = std::min(draw.clip.right, buffer.CanvasWidth());
  const int bottom = std::min(draw.clip.bottom, buffer.CanvasHeight());
  const GridAxis columns{steps.x, draw.pageWidth, draw.pageWidthPx, draw.offsetX, std::max(0, draw.clip.left), right};
  const GridAxis rows{steps.y, draw.pageHeight, draw.pageHeightPx, draw.offsetY, std::max(0, draw.clip.top), bottom};
  if (!columns.IsVisible() || !rows.IsVisible()) return;
  rows.ForEach([&](int y) { columns.ForEach([&](int x) { buffer.XorPixel(x, y, kWhite); }); });
}

void PaintCard(Graphics& graphics, const RVCardControl& card, const tagDraw& draw) {
  const Rect rect = CardPixelRect(draw, card.x, card.y, card.width, card.height);
  if (!Touches(draw.clip, rect)) return;
  try {
    card.Draw(graphics, draw);
  } catch (...) {
    // Whatever went wrong in one card, the others are still worth seeing.
    DrawFailure(graphics, rect);
  }
}

void PaintCards(Graphics& graphics, const CardList& cards, const tagDraw& draw) {
  for (std::size_t i = cards.Size(); i-- > 0;) PaintCard(graphics, cards[i], draw);
}

void ForEachShown(const CardList& cards, const PagePaint& how, const std::function<void(const RVCardControl&)>& visit) {
  const auto show = [&](std::size_t index) {
    // A place that is not there any more: the page is about to be painted anew.
    if (index < cards.Size() && (!how.shows || how.shows(cards[index]))) visit(cards[index]);
  };
  if (how.part) {
    std::for_each(how.part->cards.rbegin(), how.part->cards.rend(), show);
  } else {
    for (std::size_t i = cards.Size(); i-- > 0;) show(i);
  }
}

void PaintPage(Graphics& graphics, const RVReportPage& page, const tagDraw& draw, const PagePaint& how) {
  DrawBackground(graphics, page, draw, how);
  DrawPageGrid(page, draw, how);
  const GraphicsState state(graphics);
  if (how.surround || IsRounded(draw)) ClipToPage(graphics, draw);  // else the device ends with the page
  ForEachShown(page.cards, how, [&](const RVCardControl& card) { PaintCard(graphics, card, draw); });
}

}  // namespace xrpt
