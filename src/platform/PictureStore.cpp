#include "platform/PictureStore.h"

namespace xrpt {

ImageRecord::~ImageRecord() { store_.Forget(*this); }

PicturePtr ImageRecord::Current() const {
  const std::lock_guard guard(store_.lock_);
  if (!read_) picture_ = store_.Read(*this);
  read_ = true;
  return picture_;
}

void ImageRecord::Reload() {
  const std::lock_guard guard(store_.lock_);
  picture_.reset();
  read_ = false;
}

ImageRecordPtr PictureStore::Attach(const std::wstring& id, const std::wstring& path) {
  const std::lock_guard guard(lock_);
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
  const std::lock_guard guard(lock_);
  for (const auto& [key, entry] : records_) held.push_back(entry.lock());
  for (const ImageRecordPtr& record : held) {
    if (record) record->Reload();
  }
}

std::size_t PictureStore::Count() const {
  const std::lock_guard guard(lock_);
  return records_.size();
}

// A record may have been made anew under the same key while its predecessor was dying; that one stays.
void PictureStore::Forget(const ImageRecord& record) {
  const std::lock_guard guard(lock_);
  const auto entry = records_.find({record.id_, record.path_});
  if (entry != records_.end() && entry->second.expired()) records_.erase(entry);
}

}  // namespace xrpt
