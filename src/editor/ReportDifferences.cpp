#include "editor/ReportDifferences.h"

#include <algorithm>
#include <unordered_map>

#include "editor/SelectedFields.h"
#include "platform/FileTexts.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

constexpr std::size_t kMostCharacters = 200;

class Collector {
 public:
  Collector(std::size_t most, std::size_t& left) : most_(most), left_(left) { left_ = 0; }

  void Add(const std::wstring& where, std::wstring onDisk, std::wstring here) {
    if (found_.size() >= most_) {
      ++left_;
      return;
    }
    found_.push_back({where, OneLine(std::move(onDisk)), OneLine(std::move(here))});
  }
  void AddMissing(const std::wstring& where, bool isHere) {
    const std::wstring there = HostText(text::kPresent);
    Add(where, isHere ? std::wstring() : there, isHere ? there : std::wstring());
  }
  std::vector<Difference> Take() { return std::move(found_); }

 private:
  static std::wstring OneLine(std::wstring text) {
    std::replace(text.begin(), text.end(), L'\n', L' ');
    return text.substr(0, kMostCharacters);
  }

  std::size_t most_;
  std::size_t& left_;
  std::vector<Difference> found_;
};

std::wstring NameOf(const FieldRow& row) {
  return row.panel.textId != 0 ? HostText(row.panel.textId) : FromUtf8(row.FullName());
}

template <class Root>
void CompareFields(const FieldTable<Root>& table, const Root& onDisk, const Root& here, const std::wstring& where,
                   Collector& out) {
  ForEachField(table, [&](const FieldOf<Root>& row) {
    if (!row.same || row.same(onDisk, here)) return;
    const std::wstring field = where + L", " + NameOf(row);
    if (row.text) return out.Add(field, row.text(onDisk), row.text(here));
    out.Add(field, HostText(text::kPresent), HostText(text::kPresent));
  });
}

void CompareCard(const RVCardControl& onDisk, const RVCardControl& here, const std::wstring& page, Collector& out) {
  const std::wstring where = page + L", " + CardCaption(here);
  if (&onDisk.GetRuntimeClass() != &here.GetRuntimeClass())
    return out.Add(where, CardCaption(onDisk), CardCaption(here));
  CompareFields(here.GetRuntimeClass().table, onDisk, here, where, out);
}

std::unordered_map<std::wstring, std::size_t> PlacesOf(const CardList& cards) {
  std::unordered_map<std::wstring, std::size_t> places;
  for (std::size_t i = 0; i < cards.Size(); ++i) places.emplace(cards[i].id, i);
  return places;
}

// The cards of both in the same order?
bool IsSameOrder(const CardList& onDisk, const CardList& here) {
  if (onDisk.Size() != here.Size()) return true;  // those that are missing are told one by one
  for (std::size_t i = 0; i < here.Size(); ++i) {
    if (onDisk[i].id != here[i].id) return false;
  }
  return true;
}

void CompareCards(const CardList& onDisk, const CardList& here, const std::wstring& page, Collector& out) {
  const auto onDiskAt = PlacesOf(onDisk);
  const auto hereAt = PlacesOf(here);
  bool isComplete = true;
  for (std::size_t i = 0; i < here.Size(); ++i) {
    const auto other = onDiskAt.find(here[i].id);
    if (other != onDiskAt.end()) {
      CompareCard(onDisk[other->second], here[i], page, out);
      continue;
    }
    isComplete = false;
    out.AddMissing(page + L", " + CardCaption(here[i]), true);
  }
  for (std::size_t i = 0; i < onDisk.Size(); ++i) {
    if (hereAt.count(onDisk[i].id) != 0) continue;
    isComplete = false;
    out.AddMissing(page + L", " + CardCaption(onDisk[i]), false);
  }
  if (isComplete && !IsSameOrder(onDisk, here)) out.Add(page + L", " + HostText(text::kOtherOrder), {}, {});
}

std::wstring PageName(std::size_t index) { return FillIn(HostText(text::kPageOf), {std::to_wstring(index + 1)}); }

void ComparePages(const RVReport& onDisk, const RVReport& here, Collector& out) {
  const std::size_t both = std::min(onDisk.pages.size(), here.pages.size());
  for (std::size_t i = 0; i < both; ++i) {
    const RVReportPage& left = *onDisk.pages[i];
    const RVReportPage& right = *here.pages[i];
    CompareFields(RVGlobalProperties::Table(), left.properties, right.properties, PageName(i), out);
    CompareCards(left.cards, right.cards, PageName(i), out);
  }
  for (std::size_t i = both; i < onDisk.pages.size(); ++i) out.AddMissing(PageName(i), false);
  for (std::size_t i = both; i < here.pages.size(); ++i) out.AddMissing(PageName(i), true);
}

void CompareTables(const RVReport& onDisk, const RVReport& here, Collector& out) {
  const std::pair<int, const XmlDocument RVReport::*> tables[] = {{text::kFormulasDiffer, &RVReport::formules},
                                                                  {text::kDevicesDiffer, &RVReport::virtualDevices},
                                                                  {text::kGoBacksDiffer, &RVReport::goBackVariables}};
  for (const auto& [name, table] : tables) {
    if ((onDisk.*table).Text() == (here.*table).Text()) continue;
    out.Add(HostText(name), std::to_wstring((onDisk.*table).Root().Size()),
            std::to_wstring((here.*table).Root().Size()));
  }
}

}  // namespace

std::vector<Difference> DifferencesOf(const RVReport& onDisk, const RVReport& here, std::size_t most,
                                      std::size_t& left) {
  Collector out(most, left);
  if (onDisk.name != here.name) out.Add(HostText(text::kReportDiffers), onDisk.name, here.name);
  if (onDisk.id != here.id) out.Add(HostText(text::kReportDiffers), onDisk.id, here.id);
  ComparePages(onDisk, here, out);
  CompareTables(onDisk, here, out);
  return out.Take();
}

}  // namespace xrpt
