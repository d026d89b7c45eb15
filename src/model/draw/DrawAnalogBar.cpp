// Analog bars: coloured bands along a scale, the value as a bar over them with its number beside it.
#include "model/RVAnalogBar.h"
#include "model/draw/AnalogScale.h"
#include "model/draw/CardDrawing.h"
#include "model/draw/Shades.h"
#include "platform/Host.h"

namespace xrpt {
namespace {

constexpr double kGap = 2.0;
constexpr double kPointer = 5.0;  // length of the triangle at the value
constexpr double kShortestMargin = 1.5;

Color ColorOf(BandLevel level) {
  switch (level) {
    case BandLevel::PreAlarm:
      return Rgb(0xE6, 0xA1, 0x2E);
    case BandLevel::Alarm:
      return Rgb(0xC9, 0x3C, 0x37);
    default:
      return Rgb(0x3F, 0x94, 0x5C);
  }
}

double Clamped(double value, double low, double high) { return std::max(low, std::min(value, high)); }

class BarPainter {
 public:
  BarPainter(Graphics& graphics, const RVAnalogBar& card, const CardArea& area)
      : graphics_(graphics), card_(card), area_(area), fonts_(*area.fonts) {
    const LocaleService& locale = *card.Services().locale;
    scale_ = ScaleOf(card, {locale.DecimalSeparator(), locale.ThousandsSeparator()});
    ChooseFonts();
    PlaceTrack();
  }

  void Paint() {
    for (const BarBand& band : scale_.bands) {
      graphics_.FillRect(Part(band.from, band.to, 0.0), Mix(ColorOf(band.level), kWhite, 0.55));
    }
    const Color valueColor = Mix(ColorOf(LevelAt(scale_, scale_.value)), kBlack, 0.15);
    graphics_.FillRect(Part(std::min(scale_.origin, scale_.value), std::max(scale_.origin, scale_.value), 0.28),
                       valueColor);
    const double pen = area_.scale.PenWidth(0.5);
    graphics_.DrawRect(StrokedInside(area_.ToDevice(track_), pen), {Mix(card_.color, kWhite, 0.35), pen});
    PaintPointer();
    PaintValue();
    if (marksShown_) PaintMarks();
  }

 private:
  bool IsBefore() const { return card_.positionValue == ValuePosition::Before; }
  double Along() const { return card_.IsVertical() ? area_.points.height : area_.points.width; }
  double Across() const { return card_.IsVertical() ? area_.points.width : area_.points.height; }

  // The bar has no font of its own: it writes as large as its size allows.
  void ChooseFonts() {
    const double most = 9.0 * area_.scale.font;
    const double room = card_.IsVertical() ? area_.points.width * 0.22 : area_.points.height * 0.26;
    valueFont_.size = Clamped(room, 3.0, most);
    valueFont_.style = FontStyle::Bold;
    markFont_.size = valueFont_.size * 0.78;
  }

  double Extent(const Font& font, const std::wstring& text) {
    if (card_.IsVertical()) return fonts_.Width(font, text);
    const FontMetrics metrics = fonts_.Metrics(font);
    return metrics.ascent + metrics.descent;
  }

  double MarksExtent() {
    double most = 0.0;
    for (const BarMark& mark : scale_.marks) most = std::max(most, Extent(markFont_, mark.text));
    return most + 2.0 * kGap;
  }

  // The track takes what value and marks leave of the card; marks give way before the track gets too thin.
  void PlaceTrack() {
    const double forValue = Extent(valueFont_, scale_.valueText) + kGap + kPointer;
    const double forMarks = card_.showAnnotation ? MarksExtent() : 0.0;
    marksShown_ = card_.showAnnotation && Across() - forValue - forMarks >= Across() * 0.2;
    const double before = std::min(IsBefore() ? forValue : (marksShown_ ? forMarks : kShortestMargin), Across() * 0.8);
    const double after = IsBefore() ? (marksShown_ ? forMarks : kShortestMargin) : forValue;
    const double from = before;
    const double to = std::max(Across() - after, from + Across() * 0.15);
    const double end = std::min(EndMargin(), Along() * 0.2);
    track_ = card_.IsVertical() ? RectD(from, end, to, Along() - end) : RectD(end, from, Along() - end, to);
  }

  // Room for half of what is written at the scale's ends.
  double EndMargin() {
    const Font& font = marksShown_ ? markFont_ : valueFont_;
    const FontMetrics metrics = fonts_.Metrics(font);
    return card_.IsVertical() ? (metrics.ascent + metrics.descent) * 0.5 : kGap;
  }

  double Position(double at) const {
    return card_.IsVertical() ? track_.bottom - at * track_.Height() : track_.left + at * track_.Width();
  }

  // A stretch of the track, narrowed on both sides by a share of its thickness.
  RectD Part(double from, double to, double narrowed) const {
    RectD part = track_;
    if (card_.IsVertical()) {
      const double inset = track_.Width() * narrowed;
      part = {track_.left + inset, Position(to), track_.right - inset, Position(from)};
    } else {
      const double inset = track_.Height() * narrowed;
      part = {Position(from), track_.top + inset, Position(to), track_.bottom - inset};
    }
    return area_.ToDevice(part);
  }

  // A point `along` the scale and `out` points away from the track, on the value's side or the other.
  PointD Beside(double along, double out, bool before) const {
    if (card_.IsVertical()) return {before ? track_.left - out : track_.right + out, along};
    return {along, before ? track_.top - out : track_.bottom + out};
  }

  void PaintPointer() {
    const double at = Position(scale_.value);
    const double half = kPointer * 0.55;
    const PointD triangle[] = {area_.ToDevice(Beside(at, 0.0, IsBefore())),
                               area_.ToDevice(Beside(at - half, kPointer, IsBefore())),
                               area_.ToDevice(Beside(at + half, kPointer, IsBefore()))};
    graphics_.FillPolygon(triangle, card_.color);
  }

  // A text beside the track with its middle at `at`, moved as far as it takes to stay on the card.
  struct Label {
    TextLine line;
    double from = 0.0;  // along the scale
    double to = 0.0;
  };
  Label Place(const Font& font, const std::wstring& text, double at, double out, bool before) {
    const FontMetrics metrics = fonts_.Metrics(font);
    const double width = fonts_.Width(font, text);
    const double height = metrics.ascent + metrics.descent;
    const double length = card_.IsVertical() ? height : width;
    Label label;
    label.from = Clamped(at - length * 0.5, 0.0, std::max(0.0, Along() - length));
    label.to = label.from + length;
    const PointD anchor = Beside(label.from, out, before);
    const double back = before ? Extent(font, text) : 0.0;
    label.line = card_.IsVertical() ? TextLine{text, anchor.x - back, label.from + metrics.ascent, width}
                                    : TextLine{text, label.from, anchor.y - back + metrics.ascent, width};
    return label;
  }

  void PaintValue() {
    const Label label = Place(valueFont_, scale_.valueText, Position(scale_.value), kPointer + kGap * 0.5, IsBefore());
    DrawTextLine(graphics_, area_, valueFont_, card_.color, label.line);
  }

  // What was placed first stays; what would touch it is left out, its tick included.
  void PaintMarks() {
    std::vector<Label> placed;
    const double pen = area_.scale.PenWidth(0.5);
    for (const BarMark& mark : scale_.marks) {
      const double at = Position(mark.at);
      const Label label = Place(markFont_, mark.text, at, kGap * 1.5, !IsBefore());
      const auto touches = [&label](const Label& other) {
        return label.from < other.to + kGap && label.to > other.from - kGap;
      };
      if (std::any_of(placed.begin(), placed.end(), touches)) continue;
      placed.push_back(label);
      graphics_.DrawLine(area_.ToDevice(Beside(at, 0.0, !IsBefore())), area_.ToDevice(Beside(at, kGap, !IsBefore())),
                         {card_.color, pen});
      DrawTextLine(graphics_, area_, markFont_, card_.color, label.line);
    }
  }

  Graphics& graphics_;
  const RVAnalogBar& card_;
  const CardArea& area_;
  FontService& fonts_;
  AnalogScale scale_;
  Font valueFont_;
  Font markFont_;
  RectD track_;  // page points
  bool marksShown_ = false;
};

}  // namespace

void RVAnalogBar::Draw(Graphics& graphics, const tagDraw& draw) const {
  const CardArea area = AreaOf(*this, draw);
  if (area.IsEmpty()) return;
  const GraphicsState state(graphics);
  graphics.ClipRect(area.device);
  DrawGround(graphics, area, backcolor);
  BarPainter(graphics, *this, area).Paint();
}

}  // namespace xrpt
