// Pictures as the painter takes them, kept at the sizes they were last drawn in: scaling well is slow, and a page is
// painted again and again. The shaped texts are kept along with them.
#pragma once

#include <QImage>
#include <list>

#include "host/qt/GlyphCache.h"
#include "platform/Picture.h"

namespace xrpt {

class PictureCache {
 public:
  static constexpr qsizetype kMaxBytes = 128 << 20;

  // The picture at its own size, or smoothly scaled. A null image for one that holds no pixels.
  const QImage& Whole(const PicturePtr& picture) { return Find(picture, {}); }
  const QImage& Scaled(const PicturePtr& picture, QSize size) { return Find(picture, size); }
  GlyphCache& Glyphs() { return glyphs_; }

 private:
  struct Entry {
    PicturePtr picture;  // keeps its address from being used again
    QSize size;
    QImage image;
  };
  const QImage& Find(const PicturePtr& picture, QSize size);
  void MakeRoom();

  std::list<Entry> entries_;  // last used first
  GlyphCache glyphs_;
};

}  // namespace xrpt
