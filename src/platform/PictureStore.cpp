#include "platform/PictureStore.h"

#include "platform/Base64.h"
#include "platform/Host.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

constexpr std::size_t kMaxImageFile = 128u << 20;

// Inside the folder, or nothing.
std::optional<Path> ImageFile(const std::wstring& id, const std::wstring& path) {
  if (!IsSafeFileName(id) || !IsSafeSubPath(path)) return std::nullopt;
  const Path folder = CurrentHost().setup->ImagesPath();
  return (path == L"./" ? folder : folder / Path(ToUtf8(path))) / Path(ToUtf8(id + L".img"));
}

}  // namespace

ImageRecord::~ImageRecord() { store_.Forget(*this); }

PicturePtr ImageRecord::Current() const {
  const std::lock_guard guard(store_.lock_);
  if (!read_) picture_ = PictureStore::ReadImageFile(id_, path_);
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

void PictureStore::ReloadAll() {
  const std::lock_guard guard(lock_);
  for (const auto& [key, entry] : records_) {
    if (const ImageRecordPtr record = entry.lock()) record->Reload();
  }
}

std::size_t PictureStore::Count() const {
  const std::lock_guard guard(lock_);
  return records_.size();
}

PicturePtr PictureStore::ReadImageFile(const std::wstring& id, const std::wstring& path) {
  const std::optional<Path> name = ImageFile(id, path);
  if (!name) return nullptr;
  const std::optional<std::string> file = CurrentHost().files->Read(*name, kMaxImageFile);
  if (!file) return nullptr;
  const std::optional<std::string> bytes = DecodeBase64(Xml2Text(*file));
  return bytes ? CurrentHost().pictures->Decode(*bytes) : nullptr;
}

bool PictureStore::HasImageFile(const std::wstring& id, const std::wstring& path) {
  const std::optional<Path> name = ImageFile(id, path);
  return name && CurrentHost().files->Stamp(*name).exists;
}

// A record may have been made anew under the same key while its predecessor was dying; that one stays.
void PictureStore::Forget(const ImageRecord& record) {
  const std::lock_guard guard(lock_);
  const auto entry = records_.find({record.id_, record.path_});
  if (entry != records_.end() && entry->second.expired()) records_.erase(entry);
}

}  // namespace xrpt
