#include "editor/SelectedItems.h"

#include <algorithm>
#include <iterator>

#include "canvas/UndoTexts.h"
#include "platform/Numbers.h"

namespace xrpt {
namespace {

using ItemRow = ListOf<RVCardControl>;
using ItemTable = ListTable<RVCardControl>;

// Colours that can be told apart beside each other, also by people who see few of them.
constexpr Color kItemColors[] = {Rgb(0x1F, 0x77, 0xB4), Rgb(0xE6, 0x7E, 0x22), Rgb(0x2C, 0xA0, 0x2C),
                                 Rgb(0xC0, 0x39, 0x2B), Rgb(0x8E, 0x44, 0xAD), Rgb(0x7F, 0x60, 0x00),
                                 Rgb(0xD6, 0x5D, 0xB1), Rgb(0x60, 0x60, 0x60)};

// Null for a card without, and for one whose list cannot be edited by itself: conditions go with their cards.
const ItemTable* ListOfCard(const RVCardControl& card) {
  const ItemTable* found = nullptr;
  ForEachField(card.GetRuntimeClass().table, [&found](const CardRow& row) {
    if (row.list && row.list().rows.front().panel.editor != FieldEditor::None) found = &row.list();
  });
  return found;
}

// Lists that a file left short get the entries they lack, so that each item has its own.
void FillUp(const ItemTable& table, const ItemRow& row, RVCardControl& card) {
  while (row.size(card) < table.Size(card)) row.append(card, row.Fresh());
}

void FillUp(const ItemTable& table, RVCardControl& card) {
  for (const ItemRow& row : table.rows) FillUp(table, row, card);
}

std::string FreshText(const ItemRow& row, std::size_t item) {
  if (row.panel.editor != FieldEditor::Color) return row.Fresh();
  return FormatColor(kItemColors[item % std::size(kItemColors)]);
}

std::wstring TextOf(const ItemRow& row, const RVCardControl& card, std::size_t item) {
  return row.Has(card, item) ? row.text(card, item) : FromUtf8(row.Fresh());
}

void Exchange(const ItemRow& row, RVCardControl& card, std::size_t one, std::size_t other) {
  const std::wstring former = row.text(card, one);
  row.assign(card, one, ToUtf8(row.text(card, other)));
  row.assign(card, other, ToUtf8(former));
}

}  // namespace

const ItemTable* SelectedItems::Table() const {
  const RVCardControl* card = Card();
  return card ? ListOfCard(*card) : nullptr;
}

std::size_t SelectedItems::Size() const { return HasList() ? Table()->Size(*Card()) : 0; }

std::wstring SelectedItems::Caption(std::size_t item) const { return TextOf(Table()->rows.front(), *Card(), item); }

std::optional<Color> SelectedItems::ColorOf(std::size_t item) const {
  for (const ItemRow& row : Table()->rows) {
    if (row.panel.editor == FieldEditor::Color) return ParseColor(TextOf(row, *Card(), item));
  }
  return std::nullopt;
}

std::vector<FieldState> SelectedItems::Fields(const ItemNumbers& items) const {
  std::vector<FieldState> fields;
  if (!HasList() || items.empty() || items.back() >= Size()) return fields;
  const RVCardControl& card = *Card();
  for (const ItemRow& row : Table()->rows) {
    if (row.panel.textId == 0) continue;
    const std::wstring first = TextOf(row, card, items.front());
    const bool same =
        std::all_of(items.begin(), items.end(), [&](std::size_t item) { return TextOf(row, card, item) == first; });
    fields.push_back({&row, same ? std::optional(first) : std::nullopt, row.WordsFor(card, items.front())});
  }
  return fields;
}

void SelectedItems::Change(int textId, int fieldTextId, const JoinKey& joins,
                           const std::function<void(RVCardControl&)>& change) {
  ChangeMeant(frame_, whose_, {textId, 1, fieldTextId}, joins, change);
}

void SelectedItems::Assign(const ItemNumbers& items, const FieldRow& row, std::string_view text) {
  const ItemTable* table = Table();
  if (!table) return;
  const auto own = std::find_if(table->rows.begin(), table->rows.end(), [&](const ItemRow& r) { return &r == &row; });
  if (own == table->rows.end()) return;
  JoinKey joins = row.FullName();
  for (const std::size_t item : items) joins += "#" + std::to_string(item);
  Change(text::kChangeField, row.panel.textId, joins, [&](RVCardControl& card) {
    FillUp(*table, *own, card);
    for (const std::size_t item : items) {
      if (own->Has(card, item)) own->assign(card, item, text);
    }
  });
}

void SelectedItems::Add() {
  const ItemTable* table = Table();
  if (!table) return;
  Change(text::kItemAdded, 0, {}, [&](RVCardControl& card) {
    FillUp(*table, card);
    const std::size_t item = table->Size(card);
    for (const ItemRow& row : table->rows) {
      if (row.size(card) == item) row.append(card, FreshText(row, item));
    }
  });
}

void SelectedItems::Remove(ItemNumbers items) {
  const ItemTable* table = Table();
  if (!table || items.empty()) return;
  std::sort(items.rbegin(), items.rend());
  Change(text::kItemRemoved, 0, {}, [&](RVCardControl& card) {
    FillUp(*table, card);
    for (const std::size_t item : items) {
      for (const ItemRow& row : table->rows) {
        if (row.Has(card, item)) row.erase(card, item);
      }
    }
  });
}

bool SelectedItems::Move(std::size_t from, std::size_t to) {
  const ItemTable* table = Table();
  if (!table || from == to || std::max(from, to) >= Size()) return false;
  Change(text::kItemsReordered, 0, {}, [&](RVCardControl& card) {
    FillUp(*table, card);
    for (std::size_t at = from; at != to; at += from < to ? 1 : std::size_t(-1)) {
      const std::size_t next = from < to ? at + 1 : at - 1;
      for (const ItemRow& row : table->rows) Exchange(row, card, at, next);
    }
  });
  return true;
}

}  // namespace xrpt
