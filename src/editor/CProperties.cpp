#include "editor/CProperties.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "model/RVAnalogBar.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardDate.h"
#include "model/RVCardFormule.h"
#include "model/RVCardImage.h"
#include "model/RVCardLabel.h"
#include "model/RVCardPrimitive.h"
#include "model/RVCardReportGraph.h"
#include "platform/Characters.h"
#include "platform/Host.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

constexpr PropertyPanelRow kPanels[] = {
    {2, &RVCardDate::Class, "RVCardDateProperties", L"DateProperties", 252},
    {3, &RVCardFormule::Class, "RVCardFormuleProperties", L"FormuleProperties", 255},
    {1, &RVCardLabel::Class, "RVCardLabelProperties", L"LabelProperties", 251},
    {4, &RVCardImage::Class, "RVCardImageProperties", L"ImageProperties", 253},
    {5, &RVCardConditioned::Class, "RVCardConditionedProperties", L"ConditionedProperties", 256},
    {6, &RVCardReportGraph::Class, "RVCardReportGraphProperties", L"ReportGraphProperties", 257},
    {7, &RVAnalogBar::Class, "RVAnalogBarProperties", L"AnalogBarProperties", 258},
    {8, &RVCardPrimitive::Class, "RVCardPrimitiveProperties", L"PrimitiveProperties", 259},
    {CProperties::kPageSlot, nullptr, "RVCardNullProperties", L"BackgroundProperties", 254},
};

const PropertyPanelRow* PanelOf(const RVCardControl& card) {
  const auto found = std::find_if(std::begin(kPanels), std::end(kPanels), [&card](const PropertyPanelRow& row) {
    return row.kind && card.IsKindOf(row.kind());
  });
  return found == std::end(kPanels) ? nullptr : found;
}

constexpr std::pair<const wchar_t*, int PropertyBarSizes::*> kSizes[] = {
    {L"sizeHorzCX", &PropertyBarSizes::horzCX},
    {L"sizeHorzCY", &PropertyBarSizes::horzCY},
    {L"sizeFloatCX", &PropertyBarSizes::floatCX},
    {L"sizeFloatCY", &PropertyBarSizes::floatCY},
};

constexpr std::size_t kLongestValue = 256;  // characters

}  // namespace

std::span<const PropertyPanelRow> PropertyPanels() { return kPanels; }

CProperties::CProperties(int childId) : childId_(childId), shown_(std::end(kPanels) - 1) {
  SetDatabaseFields(CreateDatabaseFields());
}

void CProperties::SetControl(const RVCardControl* card, const RVGlobalProperties* page, bool flag) {
  const PropertyPanelRow* panel = card ? PanelOf(*card) : std::end(kPanels) - 1;
  if (!panel) return;
  shown_ = panel;
  card_ = card;
  page_ = card ? nullptr : page;
  flag_ = flag;
  ++serial_;
}

bool CProperties::InvalidatePropertiesCtrl(const RVCardControl* card) {
  if (card != card_) return false;
  ++serial_;
  return true;
}

void CProperties::SetDatabaseFields(const XmlDocument& fields) {
  databaseFields_ = NamesOfFields(fields);
  ++serial_;
}

void CProperties::SetFontList(std::vector<std::wstring> faces) {
  faces_ = std::move(faces);
  ++serial_;
}

void CProperties::SetFormules(const XmlDocument& formules) {
  formules_ = formules.Clone();
  ++serial_;
}

void CProperties::SetVirtualDevices(const XmlDocument& devices) {
  virtualDevices_ = devices.Clone();
  ++serial_;
}

void CProperties::SetGoBackVariables(const XmlDocument& variables) {
  goBackVariables_ = variables.Clone();
  ++serial_;
}

// --- The bar's size ---

std::wstring CProperties::SectionOf(const std::wstring& section) const {
  return section + L"-SCBar-" + std::to_wstring(childId_);
}

void CProperties::LoadState(const std::wstring& section) {
  for (const auto& [name, member] : kSizes)
    sizes.*member = CurrentHost().settings->ProfileInt(SectionOf(section), name, sizes.*member);
}

void CProperties::SaveState(const std::wstring& section) const {
  for (const auto& [name, member] : kSizes)
    CurrentHost().settings->SetProfileInt(SectionOf(section), name, sizes.*member);
}

// --- Rules of single panels ---

std::wstring CheckValidValue(std::wstring_view typed) {
  std::wstring valid;
  bool hasPoint = false;
  for (std::size_t at = 0; at < std::min(typed.size(), kLongestValue); ++at) {
    const wchar_t c = typed[at];
    const bool isPoint = c == L'.' && !hasPoint;
    const bool isMinus = c == L'-' && at == 0;
    if (IsDecimalDigit(c) || isPoint || isMinus) valid += c;
    hasPoint = hasPoint || isPoint;
  }
  return valid;
}

std::span<const Word> PeriodItems() { return kPeriodWords; }

std::wstring PeriodText(int item) {
  const Word* word = WordOf(kPeriodWords, item);
  return FromUtf8((word ? *word : kPeriodWords[0]).text);
}

bool IsControlEnabled(const RVCardReportGraph& graph, int control) {
  const bool wantsPie = control == kPieControl;
  if (!wantsPie && control != kAxisControl) return true;
  for (std::size_t i = 0; i < graph.types.size(); ++i) {
    const SeriesType type = graph.TypeOf(i);
    const bool isPie = type == SeriesType::CheeseVariable || type == SeriesType::CheesePeriod;
    if (isPie == wantsPie) return true;
  }
  return false;
}

}  // namespace xrpt
