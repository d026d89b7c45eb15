#include "editor/UsedColors.h"

#include <algorithm>
#include <map>
#include <utility>

#include "editor/RVEditControlWnd.h"
#include "model/ListTable.h"
#include "model/RVCardConditioned.h"
#include "platform/Numbers.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

using Counts = std::map<Color, int>;

void Count(const std::wstring& text, Counts& counts) {
  const Color color = ParseColor(ToUtf8(text));
  if (!text.empty() && color != kNoColor) ++counts[color];
}

void CountItems(const ListTable<RVCardControl>& table, const RVCardControl& card, Counts& counts) {
  for (const ListOf<RVCardControl>& row : table.rows) {
    if (row.panel.editor != FieldEditor::Color) continue;
    for (std::size_t item = 0; item < row.size(card); ++item) Count(row.text(card, item), counts);
  }
}

void CountCard(const RVCardControl& card, Counts& counts) {
  ForEachField(card.GetRuntimeClass().table, [&](const CardRow& row) {
    if (row.list) CountItems(row.list(), card, counts);
    if (row.panel.editor == FieldEditor::Color && row.Applies(card)) Count(row.text(card), counts);
  });
  const auto* container = dynamic_cast<const RVCardConditioned*>(&card);
  if (!container) return;
  for (const auto& inner : container->cards) CountCard(*inner, counts);
}

void AddByUse(const Counts& counts, std::vector<Color>& colors) {
  std::vector<std::pair<Color, int>> sorted(counts.begin(), counts.end());
  std::stable_sort(sorted.begin(), sorted.end(), [](const auto& a, const auto& b) { return a.second > b.second; });
  for (const auto& [color, count] : sorted) {
    if (std::find(colors.begin(), colors.end(), color) == colors.end()) colors.push_back(color);
  }
}

Counts CountsOf(const RVReportPage& page) {
  Counts counts;
  for (std::size_t i = 0; i < page.cards.Size(); ++i) CountCard(page.cards[i], counts);
  return counts;
}

}  // namespace

std::vector<Color> UsedColors(const RVEditControlWnd& frame, std::size_t most) {
  std::vector<Color> colors;
  AddByUse(CountsOf(frame.CurrentPage().Page()), colors);
  Counts others;
  for (std::size_t page = 0; page < frame.Report().pages.size() && colors.size() < most; ++page) {
    if (page == frame.CurrentPageIndex()) continue;
    for (const auto& [color, count] : CountsOf(*frame.Report().pages[page])) others[color] += count;
  }
  AddByUse(others, colors);
  if (colors.size() > most) colors.resize(most);
  return colors;
}

}  // namespace xrpt
