#include "canvas/InsertKinds.h"

#include "canvas/InsertTools.h"
#include "model/RVAnalogBar.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardDate.h"
#include "model/RVCardFormule.h"
#include "model/RVCardImage.h"
#include "model/RVCardPrimitive.h"
#include "model/RVCardReportGraph.h"

namespace xrpt {

namespace {

const InsertKindRow kRows[] = {
    {tool::kLabel, &RVCardLabel::Class, 0x0001, 0x000000, {40.0, 8.0}},
    {tool::kImage, &RVCardImage::Class, 0x0002, std::nullopt, {40.0, 30.0}},
    {tool::kDate, &RVCardDate::Class, 0x0004, 0xC000C0, {40.0, 8.0}},
    {tool::kFormule, &RVCardFormule::Class, 0x0008, 0x6060C0, {30.0, 8.0}},
    {tool::kConditioned, &RVCardConditioned::Class, 0x0010, 0x60C060, {40.0, 8.0}},
    {tool::kReportGraph, &RVCardReportGraph::Class, 0x0020, 0x606060, {100.0, 60.0}},
    {tool::kAnalogBar, &RVAnalogBar::Class, 0x0040, 0x000000, {60.0, 12.0}},
    {tool::kPrimitive, &RVCardPrimitive::Class, 0x4000, std::nullopt, {40.0, 20.0}},
};

}  // namespace

std::span<const InsertKindRow> InsertKinds() { return kRows; }

const InsertKindRow* FindInsertKind(int code) {
  for (const InsertKindRow& row : kRows) {
    if (row.code == code) return &row;
  }
  return nullptr;
}

unsigned AllInsertKinds() {
  unsigned all = 0;
  for (const InsertKindRow& row : kRows) all |= row.support;
  return all;
}

}  // namespace xrpt
