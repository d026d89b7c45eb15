// Pictures as the painter takes them, kept at the sizes they were last drawn in: scaling well is slow, and a page is
// painted again and again. All caches together keep to the memory of the host's pictures. The shaped texts are kept
// along with them.
#pragma once

#include <QImage>
#include <list>

#include "host/qt/GlyphCache.h"
#include "platform/Host.h"

namespace xrpt {

class PictureCache final : public PictureHolder {
 public:
  // Within the installed host's limit.
  PictureCache() : PictureCache(CurrentHost().pictureStore.Memory()) {}
  explicit PictureCache(std::shared_ptr<PictureMemory> memory);
  ~PictureCache() override;
  PictureCache(const PictureCache&) = delete;
  PictureCache& operator=(const PictureCache&) = delete;

  // The picture at its own size, or smoothly scaled. A null image for one that holds no pixels.
  QImage Whole(const PicturePtr& picture) { return Find(picture, {}); }
  QImage Scaled(const PicturePtr& picture, QSize size) { return Find(picture, size); }
  GlyphCache& Glyphs() { return glyphs_; }

  std::uint64_t OldestUse() const override { return entries_.empty() ? kNothing : entries_.back().used; }
  void DropOldest() override;

 private:
  struct Entry {
    PicturePtr picture;  // keeps its address from being used again
    QSize size;
    QImage image;
    std::uint64_t used = 0;
  };
  QImage Find(const PicturePtr& picture, QSize size);
  // No larger than half the memory, for a picture wanted whole.
  QSize WholeSize(const Picture& picture) const;

  std::shared_ptr<PictureMemory> memory_;
  std::list<Entry> entries_;  // last used first
  GlyphCache glyphs_;
};

}  // namespace xrpt
