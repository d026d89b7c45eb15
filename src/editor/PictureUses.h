// Where the pictures of the image store are shown: in a report, card by card, and in the reports of the folder at all.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/Files.h"

namespace xrpt {

class RVReport;

struct PictureUse {
  std::size_t page = 0;
  std::wstring cardId;   // empty: the page's background; of an inner card, the one that stands on the page
  std::wstring caption;  // of the card, for people
};

// By the picture's name (see PictureName), in the order of pages and cards.
using PictureUses = std::map<std::wstring, std::vector<PictureUse>>;
PictureUses UsesOfPictures(const RVReport& report);

// What the report files of the configuration folder name as their pictures.
struct NamedPictures {
  std::set<std::wstring> ids;    // without their folders
  std::vector<Path> unreadable;  // reports that may name others
};
NamedPictures PicturesOfReports();

}  // namespace xrpt
