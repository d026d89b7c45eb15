#include "model/draw/TextLayout.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace xrpt {
namespace {

// A card shows a page of text at most; what files hold may be megabytes.
constexpr std::size_t kMostCharacters = 20000;
constexpr std::size_t kMostLines = 1000;
// Rounding must not decide a line break.
constexpr double kTolerance = 1e-6;

class LineBreaker {
 public:
  LineBreaker(FontService& fonts, const Font& font, double width) : fonts_(fonts), font_(font), width_(width) {}

  void Paragraph(std::wstring_view text, bool wrap) {
    const double width = fonts_.Width(font_, text);
    if (!wrap || width <= Limit()) return Add(text, width);
    while (lines_.size() < kMostLines) {
      const std::size_t end = LineEnd(text);
      const std::wstring_view line = TrimRight(text.substr(0, end));
      Add(line, fonts_.Width(font_, line));
      text.remove_prefix(end);
      text.remove_prefix(std::min(text.find_first_not_of(L' '), text.size()));
      if (text.empty()) return;
    }
  }
  std::vector<TextLine> Take() { return std::move(lines_); }

 private:
  void Add(std::wstring_view text, double width) {
    if (lines_.size() < kMostLines) lines_.push_back({std::wstring(text), 0.0, 0.0, width});
  }
  double Limit() const { return width_ * (1.0 + kTolerance); }
  bool Fits(std::wstring_view text) { return fonts_.Width(font_, text) <= Limit(); }

  static std::wstring_view TrimRight(std::wstring_view text) { return text.substr(0, text.find_last_not_of(L' ') + 1); }

  // How many characters the next line takes; at least one.
  std::size_t LineEnd(std::wstring_view text) {
    if (text.size() < 2) return text.size();
    const std::size_t room = CharactersThatFit(text);
    if (room == text.size()) return room;
    const std::size_t space = text.rfind(L' ', room);
    return space == text.npos || space == 0 ? room : space;
  }

  std::size_t CharactersThatFit(std::wstring_view text) {
    std::size_t fits = 1;
    std::size_t tooMany = std::min<std::size_t>(16, text.size());
    while (Fits(text.substr(0, tooMany))) {
      fits = tooMany;
      if (fits == text.size()) return fits;
      tooMany = std::min(tooMany * 2, text.size());
    }
    while (tooMany > fits + 1) {
      const std::size_t middle = (fits + tooMany) / 2;
      (Fits(text.substr(0, middle)) ? fits : tooMany) = middle;
    }
    return fits;
  }

  FontService& fonts_;
  const Font& font_;
  double width_;
  std::vector<TextLine> lines_;
};

// Line ends of every system become one; other control characters are blanks.
std::wstring Cleaned(std::wstring_view text) {
  std::wstring out;
  for (std::size_t i = 0; i < std::min(text.size(), kMostCharacters); ++i) {
    const wchar_t c = text[i];
    if (c == L'\r' && i + 1 < text.size() && text[i + 1] == L'\n') continue;
    if (c == L'\r' || c == L'\n') {
      out += L'\n';
    } else {
      out += c < L' ' ? L' ' : c;
    }
  }
  return out;
}

bool IsClean(std::wstring_view text) {
  return text.size() <= kMostCharacters && std::none_of(text.begin(), text.end(), [](wchar_t c) { return c < L' '; });
}

std::vector<TextLine> BreakLines(FontService& fonts, const Font& font, std::wstring_view text, double width,
                                 bool wrap) {
  LineBreaker breaker(fonts, font, width);
  std::wstring cleaned;
  if (!IsClean(text)) text = cleaned = Cleaned(text);
  std::wstring_view rest = text;
  for (;;) {
    const std::size_t end = rest.find(L'\n');
    breaker.Paragraph(rest.substr(0, end), wrap);
    if (end == rest.npos) return breaker.Take();
    rest.remove_prefix(end + 1);
  }
}

// Where something `length` long begins in a box of `room`.
double Aligned(double room, double length, int align, int endCode, bool keepStart) {
  if (keepStart && length > room) return 0.0;
  if (align == endCode) return room - length;
  return align == kAlignCenter ? (room - length) * 0.5 : 0.0;
}

double BlockHeight(const FontMetrics& metrics, std::size_t lines) {
  return metrics.ascent + metrics.descent + metrics.lineSpacing * static_cast<double>(lines - 1);
}

RectD BoundsOf(const std::vector<TextLine>& lines, double top, double height) {
  RectD bounds(lines.front().left, top, lines.front().left, top + height);
  for (const TextLine& line : lines) {
    bounds.left = std::min(bounds.left, line.left);
    bounds.right = std::max(bounds.right, line.left + line.width);
  }
  return bounds;
}

// A turn counter-clockwise on a device whose y grows downwards.
class Turn {
 public:
  explicit Turn(double degrees) {
    const double angle = std::isfinite(degrees) ? std::remainder(degrees, 360.0) * std::numbers::pi / 180.0 : 0.0;
    cos_ = std::cos(angle);
    sin_ = std::sin(angle);
  }
  // Never 0, so that what is parallel to an edge is infinitely far from crossing it.
  double Along() const { return std::max(std::abs(cos_), kFlat); }
  double Across() const { return std::max(std::abs(sin_), kFlat); }
  // From turned axes to the page's, and back.
  PointD There(PointD p) const { return {p.x * cos_ + p.y * sin_, p.y * cos_ - p.x * sin_}; }
  PointD Back(PointD p) const { return {p.x * cos_ - p.y * sin_, p.x * sin_ + p.y * cos_}; }
  // What a turned block takes in the page's axes.
  SizeD Extent(SizeD block) const {
    return {block.width * std::abs(cos_) + block.height * std::abs(sin_),
            block.width * std::abs(sin_) + block.height * std::abs(cos_)};
  }
  // The longest lines a turned block of a height can have inside the box; below 0 when not even its height fits.
  double WidthInside(SizeD box, double height) const {
    return std::min((box.width - height * std::abs(sin_)) / Along(), (box.height - height * std::abs(cos_)) / Across());
  }

 private:
  static constexpr double kFlat = 1e-9;
  double cos_;
  double sin_;
};

// Lines side by side in a block as wide as the longest.
void AlignLines(std::vector<TextLine>& lines, int align) {
  const RectD bounds = BoundsOf(lines, 0.0, 0.0);
  for (TextLine& line : lines) line.left = Aligned(bounds.Width(), line.width, align, kAlignRight, true);
}

// The more lines, the shorter they must be to fit: tried from one line on, each time with as many as were needed last.
std::vector<TextLine> BreakTurned(FontService& fonts, const Font& font, std::wstring_view text, const TextBox& box,
                                  const Turn& turn, const FontMetrics& metrics) {
  const auto widthOf = [&](std::size_t lines) { return turn.WidthInside(box.size, BlockHeight(metrics, lines)); };
  const bool wrap = box.wrap && widthOf(2) > 0.0;
  std::vector<TextLine> lines = BreakLines(fonts, font, text, wrap ? widthOf(1) : box.size.width, wrap);
  for (std::size_t allowed = 1; wrap && lines.size() > allowed && widthOf(lines.size()) > 0.0;) {
    allowed = lines.size();
    lines = BreakLines(fonts, font, text, widthOf(allowed), true);
  }
  AlignLines(lines, box.horizontalAlign);
  return lines;
}

// Along one axis of the box, from its middle: where the middle of something `length` long stands. Of what is too long
// the side on which it `begins` (below 0: the low one) stays in sight.
double TurnedPlace(double room, double length, int align, int startCode, int endCode, double begins) {
  const double slack = (room - length) * 0.5;
  if (slack < 0.0) return begins < 0.0 ? -slack : slack;
  return align == startCode ? -slack : align == endCode ? slack : 0.0;
}

PointD TurnedPlace(const TextBox& box, const Turn& turn, SizeD block, double lineHeight) {
  const SizeD extent = turn.Extent(block);
  const PointD begins = turn.There({-block.width, lineHeight - block.height});
  return {TurnedPlace(box.size.width, extent.width, box.horizontalAlign, kAlignLeft, kAlignRight, begins.x),
          TurnedPlace(box.size.height, extent.height, box.verticalAlign, kAlignTop, kAlignBottom, begins.y)};
}

RectD Moved(const RectD& rect, PointD by) {
  return {rect.left + by.x, rect.top + by.y, rect.right + by.x, rect.bottom + by.y};
}

}  // namespace

TextLayout LayOutText(FontService& fonts, const Font& font, std::wstring_view text, const TextBox& box) {
  TextLayout out;
  if (text.empty()) return out;
  const FontMetrics metrics = fonts.Metrics(font);
  const double oneLine = metrics.ascent + metrics.descent;
  const bool wrap = box.wrap && box.size.height * (1.0 + kTolerance) >= oneLine + metrics.lineSpacing;
  out.lines = BreakLines(fonts, font, text, box.size.width, wrap);
  const double height = BlockHeight(metrics, out.lines.size());
  const double top = Aligned(box.size.height, height, box.verticalAlign, kAlignBottom, out.lines.size() > 1);
  double baseline = top + metrics.ascent;
  for (TextLine& line : out.lines) {
    line.left = Aligned(box.size.width, line.width, box.horizontalAlign, kAlignRight, true);
    line.baseline = baseline;
    baseline += metrics.lineSpacing;
  }
  out.bounds = BoundsOf(out.lines, top, height);
  return out;
}

std::wstring FitText(FontService& fonts, const Font& font, std::wstring_view text, double width) {
  text = text.substr(0, kMostCharacters);
  if (fonts.Width(font, text) <= width) return std::wstring(text);
  std::size_t fits = 0;
  std::size_t tooMany = text.size();
  while (tooMany > fits + 1) {
    const std::size_t middle = (fits + tooMany) / 2;
    const std::wstring cut = std::wstring(text.substr(0, middle)) + L'\x2026';
    (fonts.Width(font, cut) <= width ? fits : tooMany) = middle;
  }
  return fits == 0 ? std::wstring() : std::wstring(text.substr(0, fits)) + L'\x2026';
}

SizeD TurnedRoom(SizeD card, double degrees) {
  const Turn turn(degrees);
  return {std::min(card.width / turn.Along(), card.height / turn.Across()),
          std::min(card.width / turn.Across(), card.height / turn.Along())};
}

TextLayout LayOutTurnedText(FontService& fonts, const Font& font, std::wstring_view text, const TextBox& box,
                            double degrees) {
  TextLayout out;
  if (text.empty()) return out;
  const Turn turn(degrees);
  const FontMetrics metrics = fonts.Metrics(font);
  out.lines = BreakTurned(fonts, font, text, box, turn, metrics);
  const double height = BlockHeight(metrics, out.lines.size());
  out.bounds = BoundsOf(out.lines, 0.0, height);
  const PointD middle = turn.Back(TurnedPlace(box, turn, {out.bounds.Width(), height}, metrics.lineSpacing));
  const PointD shift{middle.x - out.bounds.Center().x, middle.y - out.bounds.Center().y};
  out.bounds = Moved(out.bounds, shift);
  double baseline = shift.y + metrics.ascent;
  for (TextLine& line : out.lines) {
    line.left += shift.x;
    line.baseline = baseline;
    baseline += metrics.lineSpacing;
  }
  return out;
}

}  // namespace xrpt
