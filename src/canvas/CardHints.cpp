#include "canvas/CardHints.h"

#include <algorithm>

#include "model/RVAnalogBar.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardDate.h"
#include "model/RVCardFormule.h"
#include "model/RVCardImage.h"
#include "model/RVCardReportGraph.h"
#include "model/draw/CardDrawing.h"

namespace xrpt {
namespace {

// One kind of card: what it lacks, and when.
struct MissingRow {
  const CardClass& (*kind)();
  int textId;
  bool (*isMissing)(const RVCardControl& card);
};

template <class Card, auto Member>
bool IsEmpty(const RVCardControl& card) {
  return (static_cast<const Card&>(card).*Member).empty();
}

const MissingRow kRows[] = {
    {&RVCardLabel::Class, text::kNoText, IsEmpty<RVCardLabel, &RVCardLabel::text>},
    {&RVCardFormule::Class, text::kNoFormula, IsEmpty<RVCardFormule, &RVCardFormule::value>},
    {&RVCardDate::Class, text::kNoPattern, IsEmpty<RVCardDate, &RVCardDate::pattern>},
    {&RVCardImage::Class, text::kNoPictureYet,
     [](const RVCardControl& card) { return !static_cast<const RVCardImage&>(card).HasImageId(); }},
    {&RVCardConditioned::Class, text::kNoAlternatives, IsEmpty<RVCardConditioned, &RVCardConditioned::cards>},
    {&RVCardReportGraph::Class, text::kNoSeries, IsEmpty<RVCardReportGraph, &RVCardReportGraph::variables>},
    {&RVAnalogBar::Class, text::kNoBarVariable, IsEmpty<RVAnalogBar, &RVAnalogBar::variable>},
};

constexpr Color kWord = Rgb(0x6B, 0x72, 0x80);
constexpr Color kOutline = Rgb(0xB4, 0xBA, 0xC4);
constexpr Color kCutMark = Rgb(0xC8, 0x28, 0x28);
constexpr double kWordPixels = 12.0;
constexpr double kMarkPixels = 9.0;
constexpr double kSlack = 0.5;  // page points

void DrawMissing(Graphics& graphics, const CardArea& area, int textId) {
  const GraphicsState state(graphics);
  graphics.ClipRect(area.device);
  graphics.DrawRect({area.device.left, area.device.top, area.device.right - 1.0, area.device.bottom - 1.0},
                    {kOutline, 1.0, PenStyle::Dash});
  Font font;
  font.size = kWordPixels / area.scale.y;  // the same on the screen at every zoom
  const std::wstring word = FitText(*area.fonts, font, HostText(textId), area.points.width);
  const TextLayout layout = LayOutText(*area.fonts, font, word, {area.points, kAlignCenter, kAlignCenter, false});
  for (const TextLine& line : layout.lines) DrawTextLine(graphics, area, font, kWord, line);
}

void DrawCutMark(Graphics& graphics, const RectD& card) {
  const double size = std::min({kMarkPixels, card.Width() * 0.5, card.Height() * 0.5});
  const RectD box{card.right - size, card.bottom - size, card.right, card.bottom};
  graphics.FillRect(box, kCutMark);
  const PointD middle = box.Center();
  graphics.DrawLine({box.left + 2.0, middle.y}, {box.right - 3.0, middle.y}, {kWhite, 1.0});
  graphics.DrawLine({middle.x, box.top + 2.0}, {middle.x, box.bottom - 3.0}, {kWhite, 1.0});
}

}  // namespace

int MissingTextId(const RVCardControl& card) {
  for (const MissingRow& row : kRows) {
    if (&card.GetRuntimeClass() == &row.kind()) return row.isMissing(card) ? row.textId : 0;
  }
  return 0;
}

bool IsTextCut(const RVCardControl& card, const tagDraw& draw) {
  if (!card.IsKindOf(RVCardLabel::Class()) || card.IsAnimated()) return false;
  const auto& label = static_cast<const RVCardLabel&>(card);
  const CardArea area = AreaOf(label, draw);
  if (label.orientation != 0.0 || area.IsEmpty()) return false;
  const TextBox box{area.points, label.horizontalAlign, label.verticalAlign, true};
  const RectD bounds = LayOutText(*area.fonts, PageFont(label.font, area.scale), label.ShownText(), box).bounds;
  return bounds.Width() > area.points.width + kSlack || bounds.Height() > area.points.height + kSlack;
}

void DrawCardHints(Graphics& graphics, const CardList& cards, const tagDraw& draw, const PagePaint& how) {
  ForEachShown(cards, how, [&](const RVCardControl& card) {
    const CardArea area = AreaOf(card, draw);
    if (area.IsEmpty() || !Touches(draw.clip, CardPixelRect(draw, card.x, card.y, card.width, card.height))) return;
    if (const int missing = MissingTextId(card)) {
      DrawMissing(graphics, area, missing);
    } else if (IsTextCut(card, draw)) {
      DrawCutMark(graphics, area.device);
    }
  });
}

}  // namespace xrpt
