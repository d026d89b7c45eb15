// Pictures as PNG files, for what is embedded in SVG.
#pragma once

#include <string>

#include "platform/Picture.h"

namespace xrpt {

// Empty for a picture without pixels, or one whose planes are shorter than its size says.
std::string EncodePng(const Picture& picture);

}  // namespace xrpt
