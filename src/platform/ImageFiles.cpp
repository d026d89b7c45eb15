#include "platform/ImageFiles.h"

#include "platform/Base64.h"
#include "platform/SystemNames.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

constexpr std::size_t kMaxImageFile = 128u << 20;

// Inside the folder, or nothing.
std::optional<Path> ImageFile(const Path& folder, const std::wstring& id, const std::wstring& path) {
  if (!IsSafeFileName(id) || !IsSafeSubPath(path)) return std::nullopt;
  return (path == L"./" ? folder : folder / Path(ToUtf8(path))) / Path(ToUtf8(id + std::wstring(kImageEnding)));
}

std::optional<std::string> ReadEncoded(const Host& host, const std::wstring& id, const std::wstring& path) {
  const std::optional<Path> where = ImageFile(host.setup->ImagesPath(), id, path);
  const std::optional<std::string> file = where ? host.files->Read(*where, kMaxImageFile) : std::nullopt;
  if (!file) return std::nullopt;
  return file->find('&') == file->npos ? DecodeBase64(*file) : DecodeBase64(Xml2Text(*file));
}

// A small one is decoded whole and made smaller well, in no time that anybody notices; a large one is made smaller
// while it is decoded.
class StoredPicture final : public PictureSource {
 public:
  StoredPicture(Host& host, std::wstring id, std::wstring path, bool isDecodedWhole)
      : host_(host), id_(std::move(id)), path_(std::move(path)), isDecodedWhole_(isDecodedWhole) {}
  PicturePtr Decode(int width, int height) const override {
    const std::optional<std::string> bytes = ReadEncoded(host_, id_, path_);
    PicturePtr picture = bytes ? Decode(*bytes, width, height) : nullptr;
    if (!picture) host_.pictureStore.Lose(id_, path_);
    return picture;
  }

 private:
  PicturePtr Decode(const std::string& bytes, int width, int height) const {
    return isDecodedWhole_ ? host_.pictures->Decode(bytes) : host_.pictures->DecodeScaled(bytes, width, height);
  }

  Host& host_;
  std::wstring id_;
  std::wstring path_;
  bool isDecodedWhole_;
};

}  // namespace

PicturePtr ReadImageFile(Host& host, const std::wstring& id, const std::wstring& path) {
  const std::optional<std::string> bytes = ReadEncoded(host, id, path);
  if (!bytes) return nullptr;
  const PicturePtr outline = host.pictures->Outline(*bytes);
  // A host whose pictures tell no size before they are decoded gives them decoded.
  if (!outline) return host.pictures->Decode(*bytes);
  auto picture = std::make_shared<Picture>(*outline);
  picture->source = std::make_shared<StoredPicture>(host, id, path, host.pictureStore.MayKeep(*outline));
  return picture;
}

std::optional<Path> ImageFilePath(const Host& host, const std::wstring& id, const std::wstring& path) {
  return ImageFile(host.setup->ImagesPath(), id, path);
}

bool HasImageFile(const Host& host, const std::wstring& id, const std::wstring& path) {
  const std::optional<Path> where = ImageFile(host.setup->ImagesPath(), id, path);
  return where && host.files->Stamp(*where).exists;
}

}  // namespace xrpt
