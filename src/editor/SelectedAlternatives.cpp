#include "editor/SelectedAlternatives.h"

#include <algorithm>

#include "canvas/UndoTexts.h"
#include "editor/SelectedFields.h"
#include "model/CardRegistry.h"
#include "model/FieldTexts.h"
#include "model/RVCardConditioned.h"

namespace xrpt {
namespace {

// A file may hold fewer conditions than cards.
void FillUp(RVCardConditioned& card) {
  if (card.conditions.size() < card.cards.size()) card.conditions.resize(card.cards.size());
}

template <class Entries>
void MoveEntry(Entries& entries, std::size_t from, std::size_t to) {
  const auto at = [&entries](std::size_t index) { return entries.begin() + static_cast<std::ptrdiff_t>(index); };
  if (from < to) {
    std::rotate(at(from), at(from + 1), at(to + 1));
  } else {
    std::rotate(at(to), at(from), at(from + 1));
  }
}

}  // namespace

const RVCardConditioned* SelectedAlternatives::Card() const {
  return dynamic_cast<const RVCardConditioned*>(MeantCard(frame_, FieldsOf::Selection));
}

template <class Do>
void SelectedAlternatives::Change(int textId, const std::string& joins, const Do& change) {
  const int field = textId == text::kChangeField ? text::kCondition : 0;
  ChangeMeant(frame_, FieldsOf::Selection, {textId, 1, field}, joins, [&](RVCardControl& card) {
    auto& container = static_cast<RVCardConditioned&>(card);
    FillUp(container);
    change(container);
  });
}

std::size_t SelectedAlternatives::Size() const { return HasList() ? Card()->cards.size() : 0; }

std::wstring SelectedAlternatives::Condition(std::size_t index) const {
  const RVCardConditioned& card = *Card();
  return index < card.conditions.size() ? card.conditions[index] : std::wstring();
}

std::wstring SelectedAlternatives::Caption(std::size_t index) const { return CardCaption(*Card()->cards[index]); }

std::int32_t SelectedAlternatives::Shown() const { return HasList() ? Card()->current : -1; }

std::vector<const CardClass*> SelectedAlternatives::Kinds() {
  std::vector<const CardClass*> kinds;
  for (const RegistryRow& row : CardRegistry()) {
    if (row.inConditioned) kinds.push_back(&row.kind());
  }
  return kinds;
}

void SelectedAlternatives::SetCondition(std::size_t index, const std::wstring& condition) {
  if (index >= Size()) return;
  Change(text::kChangeField, "condition#" + std::to_string(index),
         [&](RVCardConditioned& card) { card.conditions[index] = condition; });
}

void SelectedAlternatives::Show(std::size_t index) {
  if (index >= Size() || static_cast<std::int32_t>(index) == Shown()) return;
  Change(text::kAlternativeShown, {},
         [&](RVCardConditioned& card) { card.current = static_cast<std::int32_t>(index); });
}

void SelectedAlternatives::Add(const CardClass& kind) {
  if (!HasList()) return;
  Change(text::kAlternativeAdded, {}, [&](RVCardConditioned& card) {
    std::unique_ptr<RVCardControl> inner = kind.Create(card.Services());
    inner->InitializeId();
    card.AddAlternative(std::move(inner));
  });
}

void SelectedAlternatives::Remove(std::size_t index) {
  if (index >= Size()) return;
  Change(text::kAlternativeRemoved, {},
         [&](RVCardConditioned& card) { card.DeleteCondition(static_cast<std::int32_t>(index)); });
}

bool SelectedAlternatives::Move(std::size_t from, std::size_t to) {
  if (from == to || std::max(from, to) >= Size()) return false;
  Change(text::kAlternativesReordered, {}, [&](RVCardConditioned& card) {
    MoveEntry(card.cards, from, to);
    MoveEntry(card.conditions, from, to);
    card.current = static_cast<std::int32_t>(to);
  });
  return true;
}

}  // namespace xrpt
