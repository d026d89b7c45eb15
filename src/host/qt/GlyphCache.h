// Texts as the painter draws them: shaping one costs more than painting it, and a page is painted again and again.
#pragma once

#include <QGlyphRun>
#include <list>
#include <string>
#include <unordered_map>

#include "host/qt/TextHash.h"
#include "platform/Fonts.h"

namespace xrpt {

class GlyphCache {
 public:
  static constexpr std::size_t kMaxTexts = 20'000;
  static constexpr std::size_t kLongestText = 200;  // longer ones are shaped each time

  // The text at the reference size, from the left end of its baseline on. Good until the next call.
  const QList<QGlyphRun>& Runs(const Font& font, std::wstring_view text);

 private:
  struct Face {
    std::wstring name;
    FontStyle style;
    QFont font;
    TextMap<QList<QGlyphRun>> texts;
  };
  Face& FaceOf(const Font& font);

  std::list<Face> faces_;  // last used first
  std::size_t count_ = 0;  // texts of all faces
  QList<QGlyphRun> long_;
};

}  // namespace xrpt
