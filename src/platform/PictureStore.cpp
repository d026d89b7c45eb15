#include "platform/PictureStore.h"

#include "platform/Base64.h"
#include "platform/Host.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

constexpr std::size_t kMaxImageFile = 128u << 20;
// A picture of a million pixels is decoded anew in no time that anybody notices.
constexpr std::size_t kMaxKept = 4u << 20;

Path ImageFile(const std::wstring& id, const std::wstring& path) {
  const Path folder = CurrentHost().setup->ImagesPath();
  return (path == L"./" ? folder : folder / Path(ToUtf8(path))) / Path(ToUtf8(id + L".img"));
}

std::optional<std::string> ReadEncoded(const std::wstring& id, const std::wstring& path) {
  if (!IsSafeFileName(id) || !IsSafeSubPath(path)) return std::nullopt;
  const std::optional<std::string> file = CurrentHost().files->Read(ImageFile(id, path), kMaxImageFile);
  return file ? DecodeBase64(Xml2Text(*file)) : std::nullopt;
}

// Four bytes a pixel, as painters keep it.
std::size_t PixelBytes(const Picture& picture) {
  return 4 * static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height);
}

class StoredPicture final : public PictureSource {
 public:
  StoredPicture(std::wstring id, std::wstring path) : id_(std::move(id)), path_(std::move(path)) {}
  PicturePtr Decode(int width, int height) const override {
    const std::optional<std::string> bytes = ReadEncoded(id_, path_);
    PicturePtr picture = bytes ? CurrentHost().pictures->DecodeScaled(*bytes, width, height) : nullptr;
    if (!picture) CurrentHost().pictureStore.Lose(id_, path_);
    return picture;
  }

 private:
  std::wstring id_;
  std::wstring path_;
};

}  // namespace

ImageRecord::~ImageRecord() {
  Keep(nullptr);
  store_.Forget(*this);
}

PicturePtr ImageRecord::Current() const {
  const std::lock_guard guard(store_.memory_->Lock());
  if (!read_) Keep(store_.ReadImageFile(id_, path_));
  read_ = true;
  return picture_;
}

void ImageRecord::Reload() {
  const std::lock_guard guard(store_.memory_->Lock());
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

void PictureStore::ReloadAll() {
  const std::lock_guard guard(memory_->Lock());
  for (const auto& [key, entry] : records_) {
    if (const ImageRecordPtr record = entry.lock()) record->Reload();
  }
}

std::size_t PictureStore::Count() const {
  const std::lock_guard guard(memory_->Lock());
  return records_.size();
}

// The painters need the other half.
bool PictureStore::MayKeep(std::size_t bytes) const {
  return bytes <= kMaxKept && kept_ + bytes <= memory_->Limit() / 2;
}

PicturePtr PictureStore::ReadImageFile(const std::wstring& id, const std::wstring& path) const {
  const std::optional<std::string> bytes = ReadEncoded(id, path);
  if (!bytes) return nullptr;
  const PicturePtr outline = CurrentHost().pictures->Outline(*bytes);
  if (!outline || MayKeep(PixelBytes(*outline))) return CurrentHost().pictures->Decode(*bytes);
  auto picture = std::make_shared<Picture>(*outline);
  picture->source = std::make_shared<StoredPicture>(id, path);
  return picture;
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
