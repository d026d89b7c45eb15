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

}  // namespace

PicturePtr ReadImageFile(const Host& host, const std::wstring& id, const std::wstring& path) {
  const std::optional<Path> where = ImageFile(host.setup->ImagesPath(), id, path);
  if (!where) return nullptr;
  const std::optional<std::string> file = host.files->Read(*where, kMaxImageFile);
  if (!file) return nullptr;
  const std::optional<std::string> bytes = DecodeBase64(Xml2Text(*file));
  return bytes ? host.pictures->Decode(*bytes) : nullptr;
}

bool HasImageFile(const Host& host, const std::wstring& id, const std::wstring& path) {
  const std::optional<Path> where = ImageFile(host.setup->ImagesPath(), id, path);
  return where && host.files->Stamp(*where).exists;
}

}  // namespace xrpt
