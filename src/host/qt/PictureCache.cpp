#include "host/qt/PictureCache.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "host/qt/QtFonts.h"

namespace xrpt {
namespace {

std::size_t BytesOf(const QImage& image) { return static_cast<std::size_t>(image.sizeInBytes()); }

}  // namespace

PictureCache::PictureCache(std::shared_ptr<PictureMemory> memory, FontService* fonts)
    : memory_(std::move(memory)), glyphs_(dynamic_cast<QtFonts*>(fonts)) {
  memory_->Add(*this);
}

PictureCache::~PictureCache() {
  loader_.reset();
  const std::lock_guard guard(memory_->Lock());
  while (!entries_.empty()) DropOldest();
  memory_->Remove(*this);
}

const QImage* PictureCache::Look(const Key& key) {
  const auto found = places_.find(key);
  if (found == places_.end()) return nullptr;
  entries_.splice(entries_.begin(), entries_, found->second);
  entries_.front().used = memory_->NextUse();
  return &entries_.front().image;
}

// The lock is not held while a picture is decoded: others paint and check meanwhile.
QImage PictureCache::Find(const PicturePtr& picture, QSize size) {
  {
    const std::lock_guard guard(memory_->Lock());
    if (const QImage* image = Look(KeyOf(picture, size))) return *image;
  }
  const QImage image = PreparedPicture(picture, size.isEmpty() ? WholeSize(*picture) : size);
  ++preparations_;
  Keep(picture, size, image);
  return image;
}

void PictureCache::Keep(const PicturePtr& picture, QSize size, const QImage& image) {
  const std::lock_guard guard(memory_->Lock());
  const Key key = KeyOf(picture, size);
  if (Look(key)) return;
  entries_.push_front({picture, size, image, memory_->NextUse()});
  places_.emplace(key, entries_.begin());
  memory_->Take(BytesOf(image));
}

void PictureCache::DropOldest() {
  const Entry& oldest = entries_.back();
  memory_->Give(BytesOf(oldest.image));
  places_.erase(KeyOf(oldest.picture, oldest.size));
  entries_.pop_back();
}

QSize PictureCache::WholeSize(const Picture& picture) const {
  const double pixels = double(picture.width) * picture.height;
  const double most = double(memory_->Limit()) / 8.0;  // half of it, four bytes a pixel
  if (!picture.source || pixels <= most) return {};
  const double factor = std::sqrt(most / pixels);
  return QSize(int(picture.width * factor), int(picture.height * factor)).expandedTo({1, 1});
}

// --- Without waiting ---

void PictureCache::LoadApart(std::function<void()> arrived) {
  loader_ = std::make_unique<PictureLoader>(std::move(arrived));
}

QImage PictureCache::Soon(const PicturePtr& picture, QSize size, const QRectF& place) {
  if (!loader_ || !picture->source) return Scaled(picture, size);
  {
    const std::lock_guard guard(memory_->Lock());
    if (const QImage* image = Look(KeyOf(picture, size))) return *image;
  }
  wanted_.push_back({KeyOf(picture, size), place});
  if (asked_.insert(KeyOf(picture, size)).second) loader_->Ask(picture, size);
  return InAnySize(picture);
}

QImage PictureCache::InAnySize(const PicturePtr& picture) const {
  const std::lock_guard guard(memory_->Lock());
  const auto found = places_.lower_bound({picture.get(), 0, 0});
  const bool isThere = found != places_.end() && std::get<0>(found->first) == picture.get();
  return isThere ? found->second->image : QImage();
}

std::set<PictureCache::Key> PictureCache::KeepArrived() {
  std::set<Key> arrived;
  if (!loader_) return arrived;
  for (const PictureLoader::Prepared& one : loader_->TakeArrived()) {
    ++preparations_;
    Keep(one.picture, one.size, one.image);
    arrived.insert(KeyOf(one.picture, one.size));
    asked_.erase(KeyOf(one.picture, one.size));
  }
  return arrived;
}

std::vector<QRectF> PictureCache::TakeArrived() {
  const std::set<Key> arrived = KeepArrived();
  const auto there = std::stable_partition(wanted_.begin(), wanted_.end(),
                                           [&](const Wanted& wanted) { return !arrived.contains(wanted.key); });
  std::vector<QRectF> places;
  std::transform(there, wanted_.end(), std::back_inserter(places), [](const Wanted& wanted) { return wanted.place; });
  wanted_.erase(there, wanted_.end());
  return places;
}

void PictureCache::ForgetWanted() {
  if (loader_) loader_->Clear();
  KeepArrived();
  wanted_.clear();
  asked_.clear();
}

}  // namespace xrpt
