#include "model/CardRegistry.h"

#include "model/RVAnalogBar.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardDate.h"
#include "model/RVCardDynamicImage.h"
#include "model/RVCardForceValues.h"
#include "model/RVCardFormule.h"
#include "model/RVCardImage.h"
#include "model/RVCardLabel.h"
#include "model/RVCardPrimitive.h"
#include "model/RVCardReportGraph.h"

namespace xrpt {
namespace {

constexpr RegistryRow kRows[] = {
    {&RVCardImage::Class, true, true},         {&RVCardLabel::Class, true, true},
    {&RVCardDate::Class, true, true},          {&RVCardFormule::Class, true, true},
    {&RVCardDynamicImage::Class, false, true}, {&RVCardConditioned::Class, true, false},
    {&RVCardForceValues::Class, false, true},  {&RVCardReportGraph::Class, true, false},
    {&RVAnalogBar::Class, true, false},        {&RVCardPrimitive::Class, true, false},
};

std::unique_ptr<RVCardControl> NewCard(std::string_view tag, bool RegistryRow::*place) {
  for (const RegistryRow& row : kRows) {
    if (row.*place && tag == row.kind().tag) return row.kind().create();
  }
  return nullptr;
}

}  // namespace

std::span<const RegistryRow> CardRegistry() { return kRows; }

std::unique_ptr<RVCardControl> NewPageCard(std::string_view tag) { return NewCard(tag, &RegistryRow::onPage); }

std::unique_ptr<RVCardControl> NewInnerCard(std::string_view tag) { return NewCard(tag, &RegistryRow::inConditioned); }

}  // namespace xrpt
