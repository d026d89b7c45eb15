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

// Puts a picture file (PNG, JPEG, BMP, GIF, SVG or whatever the host can read) into the store, in one of its folders
// (none: the images folder itself), under its own name, or the first of name_1, name_2, ... that is free. What is no
// picture, or is too large, is refused.
AddedPicture AddPicture(const Path& file, const std::wstring& folder = {});
// The same with the bytes of such a file, from the clipboard or a drop.
AddedPicture AddPictureBytes(const std::string& bytes, const std::wstring& id, const std::wstring& folder = {});

// Each gives one sentence for people when it could not be done, and is empty when it was.
//
// The picture keeps its name, so that every card that shows it shows the new one.
std::wstring ReplacePicture(const std::wstring& name, const Path& file);
std::wstring RemovePicture(const std::wstring& name);

}  // namespace xrpt
