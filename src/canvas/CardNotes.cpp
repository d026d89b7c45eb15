#include "canvas/CardNotes.h"

#include <algorithm>

namespace xrpt {
namespace {

template <class Value>
const Value& Find(const std::map<std::wstring, Value, std::less<>>& values, std::wstring_view id) {
  static const Value kNone;
  const auto found = values.find(id);
  return found == values.end() ? kNone : found->second;
}

template <class Value>
void Put(std::map<std::wstring, Value, std::less<>>& values, std::wstring_view id, Value value) {
  if (id.empty()) return;
  if (value.IsEmpty()) {
    if (const auto found = values.find(id); found != values.end()) values.erase(found);
  } else {
    values.insert_or_assign(std::wstring(id), std::move(value));
  }
}

}  // namespace

const CardNote& CardNotes::Of(std::wstring_view card) const { return Find(cards_, card); }

bool CardNotes::HasAny(bool CardNote::*what) const {
  return std::any_of(cards_.begin(), cards_.end(), [what](const auto& card) { return card.second.*what; });
}

void CardNotes::Set(std::wstring_view card, const CardNote& note) { Put(cards_, card, note); }

const PageLines& CardNotes::LinesOf(std::wstring_view page) const { return Find(pages_, page); }

void CardNotes::SetLines(std::wstring_view page, PageLines lines) { Put(pages_, page, std::move(lines)); }

int CardNotes::FreeGroup() const {
  int most = 0;
  for (const auto& [id, note] : cards_) most = std::max(most, note.group);
  return most + 1;
}

}  // namespace xrpt
