#include "host/qt/PictureCache.h"

#include <algorithm>
#include <cmath>

#include "host/qt/QtPictures.h"

namespace xrpt {
namespace {

std::size_t BytesOf(const QImage& image) { return static_cast<std::size_t>(image.sizeInBytes()); }

QImage Prepared(const PicturePtr& picture, QSize wanted) {
  const PicturePtr pixels = WithPixels(picture, wanted.width(), wanted.height());
  QImage image = pixels ? ToImage(*pixels) : QImage();
  const bool fits = image.isNull() || wanted.isEmpty() || image.size() == wanted;
  return fits ? image : image.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

PictureCache::PictureCache(std::shared_ptr<PictureMemory> memory) : memory_(std::move(memory)) { memory_->Add(*this); }

PictureCache::~PictureCache() {
  const std::lock_guard guard(memory_->Lock());
  while (!entries_.empty()) DropOldest();
  memory_->Remove(*this);
}

QImage PictureCache::Find(const PicturePtr& picture, QSize size) {
  const std::lock_guard guard(memory_->Lock());
  const auto found = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const Entry& entry) { return entry.picture == picture && entry.size == size; });
  if (found != entries_.end()) {
    entries_.splice(entries_.begin(), entries_, found);
    entries_.front().used = memory_->NextUse();
    return entries_.front().image;
  }
  const QImage image = Prepared(picture, size.isEmpty() ? WholeSize(*picture) : size);
  entries_.push_front({picture, size, image, memory_->NextUse()});
  memory_->Take(BytesOf(image));
  return image;
}

void PictureCache::DropOldest() {
  memory_->Give(BytesOf(entries_.back().image));
  entries_.pop_back();
}

QSize PictureCache::WholeSize(const Picture& picture) const {
  const double pixels = double(picture.width) * picture.height;
  const double most = double(memory_->Limit()) / 8.0;  // half of it, four bytes a pixel
  if (!picture.source || pixels <= most) return {};
  const double factor = std::sqrt(most / pixels);
  return QSize(int(picture.width * factor), int(picture.height * factor)).expandedTo({1, 1});
}

}  // namespace xrpt
