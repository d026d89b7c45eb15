#include "host/qt/ShapedText.h"

#include <QFontMetricsF>
#include <QRawFont>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>

namespace xrpt {
namespace {

constexpr double kUnbroken = 1e7;

// True for a text that is as wide as the line it makes: not one with blanks at its ends, which a line lets hang over,
// one that may run both ways, or one with signs that end or bind a text.
bool IsAsWideAsItsLine(const QString& text) {
  const auto isLetter = [](QChar c) {
    return (c >= u' ' && c <= u'~') || (c > u'\u00A0' && c < u'\u0590' && c != u'\u00AD');
  };
  return !text.isEmpty() && text.front() != u' ' && text.back() != u' ' &&
         std::all_of(text.begin(), text.end(), isLetter);
}

QTextLine LayOut(QTextLayout& layout) {
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  layout.setTextOption(option);
  layout.beginLayout();
  QTextLine line = layout.createLine();
  line.setLineWidth(kUnbroken);  // shapes the text; its ascent is known from then on
  line.setPosition({0.0, -line.ascent()});
  layout.endLayout();
  return line;
}

}  // namespace

ShapedText ShapeText(const QFont& font, const QString& text) {
  ShapedText shaped;
  QTextLayout layout(text, font);
  shaped.width = LayOut(layout).horizontalAdvance();
  if (!IsAsWideAsItsLine(text)) shaped.width = QFontMetricsF(font).horizontalAdvance(text);
  const QList<QGlyphRun> runs = layout.glyphRuns();
  shaped.isWhole =
      (runs.isEmpty() && text.isEmpty()) || (runs.size() == 1 && runs[0].rawFont() == QRawFont::fromFont(font));
  if (shaped.isWhole && !runs.isEmpty()) {
    shaped.glyphs = runs[0].glyphIndexes();
    shaped.places = runs[0].positions();
  }
  return shaped;
}

QList<QGlyphRun> GlyphRunsOf(const QFont& font, const QString& text) {
  QTextLayout layout(text, font);
  LayOut(layout);
  return layout.glyphRuns();
}

}  // namespace xrpt
