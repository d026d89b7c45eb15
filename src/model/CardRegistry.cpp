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

// The rows' tags made ready, because every element of every page is looked up.
const std::vector<XmlName>& Tags() {
  static const std::vector<XmlName> tags = [] {
    std::vector<XmlName> made;
    for (const RegistryRow& row : kRows) made.emplace_back(row.kind().tag);
    return made;
  }();
  return tags;
}

const CardClass* FindCard(std::string_view tag, bool RegistryRow::*place) {
  const XmlName name(tag);
  const std::vector<XmlName>& tags = Tags();
  for (std::size_t i = 0; i < tags.size(); ++i) {
    if (kRows[i].*place && name.head == tags[i].head && name.text == tags[i].text) return &kRows[i].kind();
  }
  return nullptr;
}

std::unique_ptr<RVCardControl> NewCard(const CardClass* kind, ModelServices& services) {
  return kind ? kind->Create(services) : nullptr;
}

}  // namespace

std::span<const RegistryRow> CardRegistry() { return kRows; }

const CardClass* PageCardKind(std::string_view tag) { return FindCard(tag, &RegistryRow::onPage); }
const CardClass* InnerCardKind(std::string_view tag) { return FindCard(tag, &RegistryRow::inConditioned); }

std::unique_ptr<RVCardControl> NewPageCard(std::string_view tag, ModelServices& services) {
  return NewCard(PageCardKind(tag), services);
}

std::unique_ptr<RVCardControl> NewInnerCard(std::string_view tag, ModelServices& services) {
  return NewCard(InnerCardKind(tag), services);
}

}  // namespace xrpt
