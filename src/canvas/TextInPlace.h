// The text of a card as it is edited where it stands: what an editor laid over the card needs to look like it.
#pragma once

#include <string>

#include "model/RVCardControl.h"
#include "platform/Fonts.h"
#include "platform/Geometry.h"

namespace xrpt {

struct TextInPlace {
  CardKey card = 0;
  std::wstring text;
  Rect rect;  // client pixels
  Font font;
  double pixelSize = 0.0;  // of the font, at the zoom
  Color color = kBlack;
  Color ground = kWhite;
  int horizontalAlign = 0;
  int verticalAlign = 0;
};

}  // namespace xrpt
