// Copied cards as pictures, for programs that know nothing of cards.
#pragma once

#include <string>
#include <vector>

#include "platform/Host.h"

namespace xrpt {

class RVReportPage;

// Adds a PNG and an SVG of the cards, as large as the rectangle round them. Cards without extent, or more than a
// picture can hold, leave them empty.
void AddPictures(const RVReportPage& page, const std::vector<std::wstring>& ids, ClipboardContent& content);

}  // namespace xrpt
