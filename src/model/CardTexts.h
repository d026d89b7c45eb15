// The texts of a card that are searched or name what the card depends on: those of its rows that have a role, of its
// lists, and of the cards inside it, in the order of the rows.
#pragma once

#include <optional>

#include "model/ListTable.h"
#include "model/RVCardControl.h"
#include "platform/TextFinder.h"

namespace xrpt {

// One of them. `card` holds it: the card asked, or one inside it.
template <class Card>
struct CardTextOf {
  Card& card;
  const FieldRow& row;
  std::wstring_view text;
  const CardRow* field;
  const ListOf<RVCardControl>* list;  // null for a field of its own
  std::size_t entry;                  // of the list

  void Assign(std::wstring_view now) const {
    const std::string utf8 = ToUtf8(now);
    list ? list->assign(card, entry, utf8) : field->assign(card, utf8);
  }
};
using CardText = CardTextOf<const RVCardControl>;
using EditedCardText = CardTextOf<RVCardControl>;

namespace detail {

template <class Card, class Visit>
void VisitLists(Card& card, const CardRow& field, const Visit& visit) {
  for (const ListOf<RVCardControl>& row : field.list().rows) {
    if (row.role == TextRole::None) continue;
    for (std::size_t i = 0; i < row.size(card); ++i) {
      visit(CardTextOf<Card>{card, row, row.view(card, i), &field, &row, i});
    }
  }
}

template <class Card, class Visit>
void VisitRow(Card& card, const CardRow& row, const Visit& visit);

}  // namespace detail

// Calls `visit` with each text. Its view is good until the card changes.
template <class Card, class Visit>
void ForEachText(Card& card, const Visit& visit) {
  ForEachField(card.GetRuntimeClass().table, [&](const CardRow& row) {
    if (row.role != TextRole::None || row.list || row.inner) detail::VisitRow(card, row, visit);
  });
}

template <class Card, class Visit>
void detail::VisitRow(Card& card, const CardRow& row, const Visit& visit) {
  if (!row.Applies(card)) return;
  if (row.list) VisitLists(card, row, visit);
  if (row.role != TextRole::None) visit(CardTextOf<Card>{card, row, row.view(card), &row, nullptr, 0});
  if (!row.inner) return;
  for (const std::unique_ptr<RVCardControl>& inner : row.inner(card)) ForEachText<Card>(*inner, visit);
}

// Gives each text what `becomes` makes of it (nothing: it stays as it is). How many texts changed.
template <class Becomes>
std::size_t ChangeTexts(RVCardControl& card, const Becomes& becomes) {
  std::size_t changed = 0;
  ForEachText(card, [&](const EditedCardText& text) {
    const std::optional<std::wstring> now = becomes(text);
    if (!now || *now == text.text) return;
    text.Assign(*now);
    ++changed;
  });
  return changed;
}

// How often a pattern stands in a card's searched texts.
std::size_t CountMatches(const RVCardControl& card, const TextFinder& finder);
// Replaces every match; gives how many there were. Texts that would become too long stay as they are.
std::size_t ReplaceMatches(RVCardControl& card, const TextFinder& finder, std::wstring_view replacement);

}  // namespace xrpt
