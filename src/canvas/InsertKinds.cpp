#include "canvas/InsertKinds.h"

#include "model/RVAnalogBar.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardDate.h"
#include "model/RVCardFormule.h"
#include "model/RVCardImage.h"
#include "model/RVCardPrimitive.h"
#include "model/RVCardReportGraph.h"

namespace xrpt {

const InsertKindRow* FindInsertKind(int code) {
  static const InsertKindRow kRows[] = {
      {0, &RVCardLabel::Class, 0x0001, 0x000000},       {1, &RVCardImage::Class, 0x0002, std::nullopt},
      {3, &RVCardDate::Class, 0x0004, 0xC000C0},        {4, &RVCardFormule::Class, 0x0008, 0x6060C0},
      {8, &RVCardConditioned::Class, 0x0010, 0x60C060}, {9, &RVCardReportGraph::Class, 0x0020, 0x606060},
      {10, &RVAnalogBar::Class, 0x0040, 0x000000},      {136, &RVCardPrimitive::Class, 0x4000, std::nullopt},
  };
  for (const InsertKindRow& row : kRows) {
    if (row.code == code) return &row;
  }
  return nullptr;
}

}  // namespace xrpt
