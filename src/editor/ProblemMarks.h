// Marks on the cards of the shown page that have problems. They belong to the editor's view alone.
#pragma once

#include <vector>

#include "editor/ProblemList.h"
#include "platform/Geometry.h"

namespace xrpt {

class RVEditTemplateWnd;

struct CardMark {
  Rect rect;  // client pixels, a square
  Severity severity;
  CardKey card;
};

// One at the upper right corner of each card with problems that is in sight, `side` pixels wide, none beyond the
// client. Where cards crowd, one mark, that of the worst, stands for all whose marks would lie on it.
std::vector<CardMark> PlaceMarks(const RVEditTemplateWnd& window, const ProblemList& problems, const Rect& client,
                                 int side);

}  // namespace xrpt
