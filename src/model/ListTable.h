// Rows over parallel lists: entry i of each list belongs to item i (a series of a graph, a variable to force). One row
// a list; reading, writing, removing an item, emptying, comparing and editing all walk the rows. Lists may differ in
// length: an item that lacks an entry in the file leaves that one list shorter, and writes without it. Rows are made in
// model/ListRows.h.
#pragma once

#include <cstdint>

#include "model/FieldWalk.h"

namespace xrpt {

// `missing` is what a missing element adds; null adds no entry. A group is the element inside the item's own.
template <class Root>
struct ListOf : FieldRow {
  const char* needs = nullptr;  // a group is read only when the item has this element too
  const char* fresh = nullptr;  // what a new item begins with; null: as a missing element
  bool removed = true;          // whether the entry goes with its item
  std::span<const Word> (*wordsOf)(const Root& object, std::size_t index) = nullptr;

  std::size_t (*size)(const Root& object) = nullptr;
  void (*append)(Root& object, std::string_view text) = nullptr;
  void (*assign)(Root& object, std::size_t index, std::string_view text) = nullptr;
  void (*write)(const Root& object, std::size_t index, XmlWriter& out, const char* name) = nullptr;
  std::wstring (*text)(const Root& object, std::size_t index) = nullptr;
  std::wstring_view (*view)(const Root& object, std::size_t index) = nullptr;  // of texts
  void (*erase)(Root& object, std::size_t index) = nullptr;
  void (*clear)(Root& object) = nullptr;
  bool (*equal)(const Root& left, const Root& right) = nullptr;  // as in a field's row
  bool (*same)(const Root& left, const Root& right) = nullptr;

  const char* Fresh() const { return fresh ? fresh : missing ? missing : ""; }
  bool Has(const Root& object, std::size_t index) const { return index < size(object); }
  std::span<const Word> WordsFor(const Root& object, std::size_t index) const {
    return wordsOf ? wordsOf(object, index) : words;
  }
};

// The first row's list decides how many items there are.
template <class Root>
struct ListTable {
  using Object = Root;

  const char* element;  // one an item
  std::span<const ListOf<Root>> rows;

  std::size_t Size(const Root& object) const { return rows.front().size(object); }
};

namespace detail {

template <class Root>
void ReadEntry(const ListOf<Root>& row, Root& object, XmlCursor& cursor) {
  const XmlNode element = cursor.Find(row.key);
  std::string joined;
  if (element) {
    row.append(object, element.WholeText(joined));
  } else if (row.missing) {
    row.append(object, row.missing);
  }
}

template <class Root>
void WriteEntries(std::span<const ListOf<Root>> rows, const Root& object, std::size_t index, XmlWriter& out) {
  const auto has = [&](const ListOf<Root>& row) { return row.Has(object, index); };
  if (std::none_of(rows.begin(), rows.end(), has)) return;
  const bool grouped = rows.front().group != nullptr;
  if (grouped) out.Start(rows.front().group);
  for (const ListOf<Root>& row : rows) {
    if (has(row)) row.write(object, index, out, row.name);
  }
  if (grouped) out.End(rows.front().group);
}

}  // namespace detail

// Adds the entries that one element holds. Those of a missing group read as missing ones do: there is nothing to leave
// alone yet.
template <class Root>
void AppendItem(const ListTable<Root>& table, std::type_identity_t<Root>& object, const XmlNode& element) {
  XmlCursor cursor(element);
  ForEachGroup(table.rows, [&](std::span<const ListOf<Root>> group) {
    const ListOf<Root>& first = group.front();
    if (first.needs && !element.Node(first.needs)) return;
    if (!first.group) return detail::ReadEntry(first, object, cursor);
    XmlCursor inside(cursor.Find(first.groupKey));
    for (const ListOf<Root>& row : group) detail::ReadEntry(row, object, inside);
  });
}

// Adds those of every such element, in document order; what the lists hold stays.
template <class Root>
void ReadItems(const ListTable<Root>& table, std::type_identity_t<Root>& object, const XmlNode& node) {
  for (const XmlNode& element : node) {
    if (element.Tag() == table.element) AppendItem(table, object, element);
  }
}

template <class Root>
void WriteItems(const ListTable<Root>& table, const std::type_identity_t<Root>& object, XmlWriter& out) {
  const std::size_t count = table.Size(object);
  for (std::size_t index = 0; index < count; ++index) {
    const XmlElement element(out, table.element);
    ForEachGroup(table.rows,
                 [&](std::span<const ListOf<Root>> group) { detail::WriteEntries(group, object, index, out); });
  }
}

// False for an index that names no item.
template <class Root>
bool RemoveItem(const ListTable<Root>& table, std::type_identity_t<Root>& object, std::int32_t index) {
  if (index < 0 || static_cast<std::size_t>(index) >= table.Size(object)) return false;
  const auto at = static_cast<std::size_t>(index);
  for (const ListOf<Root>& row : table.rows) {
    if (row.removed && row.Has(object, at)) row.erase(object, at);
  }
  return true;
}

template <class Root>
void ClearItems(const ListTable<Root>& table, std::type_identity_t<Root>& object) {
  for (const ListOf<Root>& row : table.rows) row.clear(object);
}

// The lists that count.
template <class Root>
bool EqualItems(const ListTable<Root>& table, const std::type_identity_t<Root>& left,
                const std::type_identity_t<Root>& right) {
  const auto equal = [&](const ListOf<Root>& row) { return !row.counts || row.equal(left, right); };
  return std::all_of(table.rows.begin(), table.rows.end(), equal);
}

// All of them.
template <class Root>
bool SameItems(const ListTable<Root>& table, const std::type_identity_t<Root>& left,
               const std::type_identity_t<Root>& right) {
  const auto same = [&](const ListOf<Root>& row) { return row.same(left, right); };
  return std::all_of(table.rows.begin(), table.rows.end(), same);
}

}  // namespace xrpt
