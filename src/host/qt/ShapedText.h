// A text as it is shaped at the reference size, once for measuring and painting: how wide it is and which glyphs stand
// where. Plain values that any thread may take; only what paints them belongs to one.
#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <QPointF>
#include <QString>

namespace xrpt {

struct ShapedText {
  double width = 0.0;  // reference units
  // Of the font itself, from the left end of the baseline on, in reference units.
  QList<quint32> glyphs;
  QList<QPointF> places;
  // The glyphs are all there is. Not so for a text that takes letters of other faces, or runs both ways.
  bool isWhole = false;
};

// With a font that no other thread uses meanwhile.
ShapedText ShapeText(const QFont& font, const QString& text);
// The same as the painter draws it, letters of other faces included; good in this thread.
QList<QGlyphRun> GlyphRunsOf(const QFont& font, const QString& text);

}  // namespace xrpt
