// Pictures of the images folder as cards refer to them, and as people name them.
#pragma once

#include <string>
#include <string_view>

namespace xrpt {

struct PictureKey {
  std::wstring id;    // file name without ending
  std::wstring path;  // sub-folder of the images folder
  bool operator==(const PictureKey&) const = default;
};

// The path of a picture that lies in the images folder itself.
inline constexpr std::wstring_view kImagesRoot = L"./";

// The id, behind its folder and a slash when it lies in one ("plants/boiler"). Empty for no picture.
std::wstring PictureName(const PictureKey& key);
// The other way; nothing for an empty name.
PictureKey ParsePictureName(std::wstring_view name);

}  // namespace xrpt
