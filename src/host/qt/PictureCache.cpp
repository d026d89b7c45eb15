#include "host/qt/PictureCache.h"

#include <algorithm>

#include "host/qt/QtPictures.h"

namespace xrpt {

const QImage& PictureCache::Find(const PicturePtr& picture, QSize size) {
  const auto found = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const Entry& entry) { return entry.picture == picture && entry.size == size; });
  if (found != entries_.end()) {
    entries_.splice(entries_.begin(), entries_, found);
    return entries_.front().image;
  }
  QImage image = ToImage(*picture);
  if (!size.isEmpty() && !image.isNull()) image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  entries_.push_front({picture, size, std::move(image)});
  MakeRoom();
  return entries_.front().image;
}

void PictureCache::MakeRoom() {
  qsizetype used = 0;
  auto at = entries_.begin();
  while (at != entries_.end() && (used == 0 || used + at->image.sizeInBytes() <= kMaxBytes)) {
    used += at->image.sizeInBytes();
    ++at;
  }
  entries_.erase(at, entries_.end());
}

}  // namespace xrpt
