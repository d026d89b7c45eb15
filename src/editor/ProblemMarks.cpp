#include "editor/ProblemMarks.h"

#include <algorithm>
#include <map>

#include "canvas/RVEditTemplateWnd.h"

namespace xrpt {
namespace {

Rect MarkRect(const Rect& card, const Rect& client, int side) {
  const int left = std::clamp(card.right - side, client.left, std::max(client.left, client.right - side));
  const int top = std::clamp(card.top, client.top, std::max(client.top, client.bottom - side));
  return {left, top, left + side, top + side};
}

}  // namespace

std::vector<CardMark> PlaceMarks(const RVEditTemplateWnd& window, const ProblemList& problems, const Rect& client,
                                 int side) {
  const PagePlacement place = window.Placement();
  if (!problems.HasMarks() || !place.IsValid()) return {};
  std::map<std::pair<int, int>, CardMark> marks;  // by squares of a mark's size
  const CardList& cards = window.Page().cards;
  for (std::size_t i = 0; i < cards.Size(); ++i) {
    const std::optional<Severity> severity = problems.WorstOf(cards[i].Key());
    if (!severity) continue;
    const Rect card = ToPixels(place, RectOf(cards[i]));
    if (!RVEditTemplateWnd::IsVisible(client, card)) continue;
    const CardMark mark{MarkRect(card, client, side), *severity, cards[i].Key()};
    const auto [at, isNew] = marks.try_emplace({mark.rect.top / side, mark.rect.left / side}, mark);
    if (!isNew && at->second.severity < mark.severity) at->second = mark;
  }
  std::vector<CardMark> placed;
  for (const auto& [square, mark] : marks) placed.push_back(mark);
  return placed;
}

}  // namespace xrpt
