// Rows over parallel lists: entry i of each list belongs to item i (a series of a graph, a variable to force). One row
// a list; reading, writing, removing an item, emptying, comparing and editing all walk the rows. Lists may differ in
// length: an item that lacks an entry in the file leaves that one list shorter, and writes without it.
#pragma once

#include <cstdint>
#include <vector>

#include "model/FieldTable.h"
#include "platform/Text.h"

namespace xrpt {

// Objects are passed as pointers to the root of their class tree, as in `FieldRow`.
struct ListRow {
  const char* group = nullptr;  // element inside the item's that holds this one and its neighbours of the same group
  const char* name = nullptr;   // element of an entry
  XmlName groupKey;             // the two, made ready to be looked for
  XmlName key;
  const char* missing = nullptr;  // what a missing element adds; null adds no entry
  const char* needs = nullptr;    // a group is read only when the item has this element too
  bool counts = true;             // whether equality looks at the list
  bool removed = true;            // whether the entry goes with its item
  FieldPanel panel;
  std::span<const Word> words;  // of a Choice
  std::span<const Word> (*wordsOf)(const void* object, std::size_t index) = nullptr;

  std::size_t (*size)(const void* object) = nullptr;
  void (*append)(void* object, std::string_view text) = nullptr;
  void (*assign)(void* object, std::size_t index, std::string_view text) = nullptr;
  void (*write)(const void* object, std::size_t index, XmlWriter& out, const char* name) = nullptr;
  std::wstring (*text)(const void* object, std::size_t index) = nullptr;
  void (*erase)(void* object, std::size_t index) = nullptr;
  void (*clear)(void* object) = nullptr;
  bool (*equal)(const void* left, const void* right) = nullptr;

  bool Has(const void* object, std::size_t index) const { return index < size(object); }
  std::span<const Word> WordsFor(const void* object, std::size_t index) const {
    return wordsOf ? wordsOf(object, index) : words;
  }
};

// The first row's list decides how many items there are.
struct ListTable {
  const char* element;  // one an item
  std::span<const ListRow> rows;

  std::size_t Size(const void* object) const { return rows.front().size(object); }
};

// Adds the entries that one element holds.
void AppendItem(const ListTable& table, void* object, const XmlNode& element);
// Adds those of every such element, in document order; what the lists hold stays.
void ReadItems(const ListTable& table, void* object, const XmlNode& node);
void WriteItems(const ListTable& table, const void* object, XmlWriter& out);
// False for an index that names no item.
bool RemoveItem(const ListTable& table, void* object, std::int32_t index);
void ClearItems(const ListTable& table, void* object);
bool EqualItems(const ListTable& table, const void* left, const void* right);

// A row for the list that `Members` lead to.
template <class Owner, class Codec, auto... Members>
constexpr ListRow List(const char* group, const char* name, const char* missing, FieldPanel panel = {}) {
  using Entries = std::decay_t<decltype(detail::Get<Owner, Members...>(static_cast<void*>(nullptr)))>;
  using Entry = typename Entries::value_type;
  ListRow row;
  row.group = group;
  row.groupKey = group;
  row.name = name;
  row.key = name;
  row.missing = missing;
  row.panel = panel;
  row.words = Codec::Words();
  row.size = [](const void* object) { return detail::Get<Owner, Members...>(object).size(); };
  row.append = [](void* object, std::string_view text) {
    Entry entry{};
    Codec::Assign(entry, text);
    detail::Get<Owner, Members...>(object).push_back(std::move(entry));
  };
  row.assign = [](void* object, std::size_t index, std::string_view text) {
    Entry entry = detail::Get<Owner, Members...>(object)[index];
    Codec::Assign(entry, text);
    detail::Get<Owner, Members...>(object)[index] = std::move(entry);
  };
  row.write = [](const void* object, std::size_t index, XmlWriter& out, const char* tag) {
    const Entry& entry = detail::Get<Owner, Members...>(object)[index];
    Codec::Write(entry, out, tag);
  };
  row.text = [](const void* object, std::size_t index) {
    const Entry& entry = detail::Get<Owner, Members...>(object)[index];
    return Codec::Text(entry);
  };
  row.erase = [](void* object, std::size_t index) {
    auto& entries = detail::Get<Owner, Members...>(object);
    entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(index));
  };
  row.clear = [](void* object) { detail::Get<Owner, Members...>(object).clear(); };
  row.equal = [](const void* left, const void* right) {
    return detail::Get<Owner, Members...>(left) == detail::Get<Owner, Members...>(right);
  };
  return row;
}

// Entries whose word hangs on another list: `const char* Show(std::size_t) const` gives the word to write, null for
// none, and `std::span<const Word> Words(std::size_t) const` what a panel offers.
template <class Owner, auto Show, auto Words>
constexpr ListRow ShownBy(ListRow row) {
  row.wordsOf = [](const void* object, std::size_t index) { return (detail::As<Owner>(object).*Words)(index); };
  row.write = [](const void* object, std::size_t index, XmlWriter& out, const char* tag) {
    if (const char* word = (detail::As<Owner>(object).*Show)(index)) out.Plain(tag, word);
  };
  row.text = [](const void* object, std::size_t index) {
    const char* word = (detail::As<Owner>(object).*Show)(index);
    return word ? FromUtf8(word) : std::wstring();
  };
  return row;
}

constexpr ListRow NotCompared(ListRow row) {
  row.counts = false;
  return row;
}

// Its entries stay where they are when an item is removed, and so shift against the other lists.
constexpr ListRow NotRemoved(ListRow row) {
  row.removed = false;
  return row;
}

constexpr ListRow Needs(const char* name, ListRow row) {
  row.needs = name;
  return row;
}

// The field row that stands for all the items of an object. `Table` gives their table.
template <auto Table>
constexpr FieldRow Items() {
  FieldRow row;
  row.list = Table;
  row.readNode = [](void* object, const XmlNode& node) { ReadItems(Table(), object, node); };
  row.writeNode = [](const void* object, XmlWriter& out) { WriteItems(Table(), object, out); };
  row.equal = [](const void* left, const void* right) { return EqualItems(Table(), left, right); };
  return row;
}

}  // namespace xrpt
