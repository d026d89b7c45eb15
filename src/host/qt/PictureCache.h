// Pictures as the painter takes them, kept at the sizes they were last drawn in: decoding is slow and so is scaling
// well, and a page is painted again and again. All caches together keep to the memory of the host's pictures. The
// shaped texts are kept along with them.
#pragma once

#include <QImage>
#include <atomic>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <set>
#include <tuple>
#include <vector>

#include "host/qt/GlyphCache.h"
#include "host/qt/PictureLoader.h"
#include "platform/Host.h"

namespace xrpt {

class PictureCache final : public PictureHolder {
 public:
  // Within the installed host's limit, with the texts that its fonts have shaped.
  PictureCache() : PictureCache(CurrentHost().pictureStore.Memory(), CurrentHost().fonts.get()) {}
  explicit PictureCache(std::shared_ptr<PictureMemory> memory, FontService* fonts = nullptr);
  ~PictureCache() override;
  PictureCache(const PictureCache&) = delete;
  PictureCache& operator=(const PictureCache&) = delete;

  // The picture at its own size, or smoothly scaled. A null image for one that holds no pixels.
  QImage Whole(const PicturePtr& picture) { return Find(picture, {}); }
  QImage Scaled(const PicturePtr& picture, QSize size) { return Find(picture, size); }
  GlyphCache& Glyphs() { return glyphs_; }

  // From now on pictures that `Soon` has none of are decoded in a thread of their own. `arrived` is called there, once
  // for all that arrive until they are taken.
  void LoadApart(std::function<void()> arrived);
  // As `Scaled`; what is not there is on its way to `place`, and until then it is what there is of the picture in
  // another size, or null. Without `LoadApart`, or for a picture with pixels of its own, as `Scaled`.
  QImage Soon(const PicturePtr& picture, QSize size, const QRectF& place);
  // Where pictures were wanted that have arrived since.
  std::vector<QRectF> TakeArrived();
  // What is on its way and not begun is wanted no more: everything is painted anew.
  void ForgetWanted();

  // How many pictures were decoded or scaled so far.
  int Preparations() const { return preparations_; }

  std::uint64_t OldestUse() const override { return entries_.empty() ? kNothing : entries_.back().used; }
  void DropOldest() override;

 private:
  using Key = std::tuple<const Picture*, int, int>;
  struct Entry {
    PicturePtr picture;  // keeps its address from being used again
    QSize size;
    QImage image;
    std::uint64_t used = 0;
  };
  using Entries = std::list<Entry>;
  struct Wanted {
    Key key;
    QRectF place;
  };
  static Key KeyOf(const PicturePtr& picture, QSize size) { return {picture.get(), size.width(), size.height()}; }

  QImage Find(const PicturePtr& picture, QSize size);
  const QImage* Look(const Key& key);
  QImage InAnySize(const PicturePtr& picture) const;
  void Keep(const PicturePtr& picture, QSize size, const QImage& image);
  std::set<Key> KeepArrived();
  // No larger than half the memory, for a picture wanted whole.
  QSize WholeSize(const Picture& picture) const;

  std::shared_ptr<PictureMemory> memory_;
  // Guarded by the memory's lock.
  Entries entries_;  // last used first
  std::map<Key, Entries::iterator> places_;
  std::atomic<int> preparations_ = 0;

  GlyphCache glyphs_;
  // The painting thread's.
  std::vector<Wanted> wanted_;
  std::set<Key> asked_;                    // of the loader
  std::unique_ptr<PictureLoader> loader_;  // the first to go: it calls back
};

}  // namespace xrpt
