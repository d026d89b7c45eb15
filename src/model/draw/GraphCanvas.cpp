#include "model/draw/GraphCanvas.h"

#include "model/NumberFormat.h"
#include "model/draw/Shades.h"

namespace xrpt {

GraphCanvas::GraphCanvas(Graphics& g, const RVCardReportGraph& c, const CardArea& a)
    : graphics(g),
      card(c),
      area(a),
      fonts(*a.fonts),
      font(PageFont(c.font, a.scale)),
      gridColor(Mix(c.foregroundColor, c.transparent ? kWhite : c.backgroundColor, 0.82)),
      periods(PeriodLabels(c.period, PeriodCount(c), *c.Services().locale)) {
  const FontMetrics metrics = fonts.Metrics(font);
  lineHeight = metrics.ascent + metrics.descent;
  ascent = metrics.ascent;
}

Pen GraphCanvas::PenOf(Color color, double points, PenStyle style) const {
  return {color, area.scale.PenWidth(points), style};
}

std::wstring GraphCanvas::Number(double value, int decimals) const {
  const LocaleService& locale = *card.Services().locale;
  return FormatDouble(value, {-1, decimals, true, false, true},
                      {locale.DecimalSeparator(), locale.ThousandsSeparator()});
}

void GraphCanvas::Text(std::wstring_view text, double left, double middle, Color color) const {
  const TextLine line{std::wstring(text), left, middle - lineHeight * 0.5 + ascent, Width(text)};
  DrawTextLine(graphics, area, font, color, line);
}

void GraphCanvas::UpwardText(std::wstring_view text, PointD middle) const {
  const GraphicsState state(graphics);
  const PointD center = area.ToDevice(middle);
  graphics.Translate(center.x, center.y);
  graphics.Rotate(90.0);
  CardArea origin = area;
  origin.device = {};
  const double width = Width(text);
  const TextLine line{std::wstring(text), -width * 0.5, ascent - lineHeight * 0.5, width};
  DrawTextLine(graphics, origin, font, card.fontColor, line);
}

}  // namespace xrpt
