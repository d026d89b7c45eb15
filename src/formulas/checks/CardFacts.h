// What the checks over a whole page or report need to know of a card, gathered once for each card.
#pragma once

#include <string>
#include <vector>

#include "model/RVCardControl.h"
#include "platform/Geometry.h"

namespace xrpt {

struct CardFacts {
  std::wstring id;
  int kindTextId = 0;
  RectD area;             // millimetres
  bool isOpaque = false;  // nothing behind it shows through
  // Of the card and of the cards inside it.
  std::vector<std::wstring> faces;     // of fonts
  std::vector<std::wstring> formulas;  // names its expressions use, and whatever else may be one
};

CardFacts FactsOf(const RVCardControl& card);

}  // namespace xrpt
