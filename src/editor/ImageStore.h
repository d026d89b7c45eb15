// The pictures of the images folder: which there are, and adding one from a file.
#pragma once

#include <string>
#include <vector>

#include "platform/Files.h"

namespace xrpt {

// The names of all pictures (see PictureName), those of the folder itself first, then by folder. Links are not
// followed.
std::vector<std::wstring> ListPictures();

// What became of a picture to be added: its name in the store, or one sentence for people why it has none.
struct AddedPicture {
  std::wstring name;
  std::wstring problem;
};

// Puts a picture file (PNG, JPEG, BMP, GIF, SVG or whatever the host can read) into the folder under its own name, or
// the first of name_1, name_2, ... that is free. What is no picture, or is too large, is refused.
AddedPicture AddPicture(const Path& file);

}  // namespace xrpt
