#include "host/qt/ShapedText.h"

#include <QFontMetricsF>
#include <QRawFont>
#include <QTextLayout>
#include <QTextOption>

namespace xrpt {
namespace {

constexpr double kUnbroken = 1e7;
// What the toolkit takes for the end of a text when it measures one.
constexpr QChar kVariantsEnd(0x9C);

QTextLine LayOut(QTextLayout& layout) {
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  option.setFlags(QTextOption::IncludeTrailingSpaces);
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
  if (text.isEmpty() || text.contains(kVariantsEnd)) {
    shaped.width = QFontMetricsF(font).horizontalAdvance(text);
    return shaped;
  }
  QTextLayout layout(text, font);
  shaped.width = LayOut(layout).horizontalAdvance();
  const QList<QGlyphRun> runs = layout.glyphRuns();
  shaped.isWhole = runs.isEmpty() || (runs.size() == 1 && runs[0].rawFont() == QRawFont::fromFont(font));
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
