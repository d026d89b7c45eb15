#include "platform/PictureName.h"

namespace xrpt {

std::wstring PictureName(const PictureKey& key) {
  const bool inRoot = key.path.empty() || key.path == kImagesRoot;
  if (key.id.empty() || inRoot) return key.id;
  return key.path + (key.path.back() == L'/' ? L"" : L"/") + key.id;
}

PictureKey ParsePictureName(std::wstring_view name) {
  if (name.empty()) return {};
  const std::size_t slash = name.rfind(L'/');
  if (slash == std::wstring_view::npos) return {std::wstring(name), std::wstring(kImagesRoot)};
  return {std::wstring(name.substr(slash + 1)), std::wstring(name.substr(0, slash))};
}

}  // namespace xrpt
