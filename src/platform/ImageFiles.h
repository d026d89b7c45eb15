// The pictures of the images folder, as they lie on disk.
#pragma once

#include "platform/Host.h"

namespace xrpt {

// The decoded file of the host's images folder: base64 text, XML-escaped, named id + ".img", in the sub-folder `path`
// ("./": in none). It comes without its pixels (`WithPixels`) when its size can be told without them. Null when there
// is no such file, when it is no picture, and when id or path would leave the folder.
PicturePtr ReadImageFile(Host& host, const std::wstring& id, const std::wstring& path);
// Where such a picture lies, whether it is there or not. Nothing when id or path would leave the folder.
std::optional<Path> ImageFilePath(const Host& host, const std::wstring& id, const std::wstring& path);
// Whether there is such a file, whatever it holds.
bool HasImageFile(const Host& host, const std::wstring& id, const std::wstring& path);

}  // namespace xrpt
