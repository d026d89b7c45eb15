#include "platform/PictureStore.h"

#include <condition_variable>
#include <vector>

namespace xrpt {
namespace {

// A picture of a million pixels is decoded anew in no time that anybody notices.
constexpr std::size_t kMaxKept = 4u << 20;
constexpr std::size_t kPaintedBytes = 4;  // a pixel, as painters keep it

// The records whose pictures are being read at the moment, of whatever store. Nobody holds a store's lock meanwhile, so
// that painting goes on; who wants the same picture waits for it.
class Readings {
 public:
  // False when another thread is at it; then it is done when this returns.
  bool Begin(const ImageRecord& record) {
    std::unique_lock guard(mutex_);
    if (isReloaded_.try_emplace(&record, false).second) return true;
    ended_.wait(guard, [&] { return !isReloaded_.contains(&record); });
    return false;
  }
  // False for one that was reloaded since.
  bool End(const ImageRecord& record) {
    const std::lock_guard guard(mutex_);
    const bool isStill = !isReloaded_.extract(&record).mapped();
    ended_.notify_all();
    return isStill;
  }
  void Reload(const ImageRecord& record) {
    const std::lock_guard guard(mutex_);
    const auto found = isReloaded_.find(&record);
    if (found != isReloaded_.end()) found->second = true;
  }

 private:
  std::mutex mutex_;
  std::condition_variable ended_;
  std::map<const ImageRecord*, bool> isReloaded_;
};

Readings& AllReadings() {
  static Readings readings;
  return readings;
}

}  // namespace

ImageRecord::~ImageRecord() {
  Keep(nullptr);
  store_.Forget(*this);
}

PicturePtr ImageRecord::Current() const {
  const auto isRead = [this] {
    const std::lock_guard guard(store_.memory_->Lock());
    return read_;
  };
  // Whatever goes wrong, there is no picture then, and nobody waits for it in vain.
  const auto readQuietly = [this]() -> PicturePtr {
    try {
      return store_.Read(*this);
    } catch (...) {
      return nullptr;
    }
  };
  while (!isRead()) {
    if (!AllReadings().Begin(*this)) continue;
    const bool isMine = !isRead();  // else another thread was done just now
    PicturePtr picture = isMine ? readQuietly() : nullptr;
    const std::lock_guard guard(store_.memory_->Lock());
    if (!AllReadings().End(*this) || !isMine) continue;
    Keep(std::move(picture));
    read_ = true;
  }
  const std::lock_guard guard(store_.memory_->Lock());
  return picture_;
}

void ImageRecord::Reload() {
  const std::lock_guard guard(store_.memory_->Lock());
  AllReadings().Reload(*this);
  Keep(nullptr);
  read_ = false;
}

void ImageRecord::Keep(PicturePtr picture) const {
  const std::lock_guard guard(store_.memory_->Lock());
  const std::size_t former = picture_ ? picture_->Bytes() : 0;
  const std::size_t now = picture ? picture->Bytes() : 0;
  picture_ = std::move(picture);
  store_.kept_ += now - former;
  store_.memory_->Give(former);
  store_.memory_->Take(now);
}

ImageRecordPtr PictureStore::Attach(const std::wstring& id, const std::wstring& path) {
  const std::lock_guard guard(memory_->Lock());
  std::weak_ptr<ImageRecord>& entry = records_[{id, path}];
  ImageRecordPtr record = entry.lock();
  if (!record) {
    record = std::make_shared<ImageRecord>(*this, id, path);
    entry = record;
  }
  return record;
}

// The records are held until the walk is over: the last holder of one may let go meanwhile, and with it the entry goes.
void PictureStore::ReloadAll() {
  std::vector<ImageRecordPtr> held;
  const std::lock_guard guard(memory_->Lock());
  for (const auto& [key, entry] : records_) held.push_back(entry.lock());
  for (const ImageRecordPtr& record : held) {
    if (record) record->Reload();
  }
}

std::size_t PictureStore::Count() const {
  const std::lock_guard guard(memory_->Lock());
  return records_.size();
}

bool PictureStore::MayKeep(const Picture& outline) const {
  const std::lock_guard guard(memory_->Lock());
  const std::size_t bytes =
      kPaintedBytes * static_cast<std::size_t>(outline.width) * static_cast<std::size_t>(outline.height);
  return bytes <= kMaxKept && kept_ + bytes <= memory_->Limit() / 2;
}

void PictureStore::Lose(const std::wstring& id, const std::wstring& path) {
  const std::lock_guard guard(memory_->Lock());
  const auto entry = records_.find({id, path});
  const ImageRecordPtr record = entry == records_.end() ? nullptr : entry->second.lock();
  if (record) record->Keep(nullptr);
}

// A record may have been made anew under the same key while its predecessor was dying; that one stays.
void PictureStore::Forget(const ImageRecord& record) {
  const std::lock_guard guard(memory_->Lock());
  const auto entry = records_.find({record.id_, record.path_});
  if (entry != records_.end() && entry->second.expired()) records_.erase(entry);
}

}  // namespace xrpt
