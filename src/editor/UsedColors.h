// The colours a report uses already, for choosers that show them first.
#pragma once

#include <vector>

#include "platform/Color.h"

namespace xrpt {

class RVEditControlWnd;

// Those of the page shown by how often they are used, then those of the other pages; each once, "no colour" never.
std::vector<Color> UsedColors(const RVEditControlWnd& frame, std::size_t most = 16);

}  // namespace xrpt
