// Texts as the painter draws them: shaping one costs more than painting it, and a page is painted again and again. What
// the fonts have shaped to measure a text is not shaped again.
#pragma once

#include <QGlyphRun>
#include <QRawFont>
#include <list>
#include <string>

#include "host/qt/TextHash.h"
#include "platform/Fonts.h"

namespace xrpt {

class QtFonts;

class GlyphCache {
 public:
  static constexpr std::size_t kMostTexts = 20'000;  // of each face, up to twice as many
  static constexpr std::size_t kLongestText = 200;   // longer ones are shaped each time

  // Without fonts that measure, texts are shaped here. They must outlive this.
  explicit GlyphCache(QtFonts* fonts = nullptr) : fonts_(fonts) {}

  // The text at the reference size, from the left end of its baseline on. Good until the next call.
  const QList<QGlyphRun>& Runs(const Font& font, std::wstring_view text);

 private:
  struct Face {
    std::wstring name;
    FontStyle style;
    QFont font;
    QRawFont raw;  // its own glyphs
    RecentTexts<QList<QGlyphRun>> texts{kMostTexts};
  };
  Face& FaceOf(const Font& font);
  QList<QGlyphRun> Shaped(const Face& face, const Font& font, std::wstring_view text) const;

  QtFonts* fonts_;
  std::list<Face> faces_;  // last used first
  QList<QGlyphRun> long_;
};

}  // namespace xrpt
