// Makes the rows of a class's parallel lists, and the field row that stands for them.
#pragma once

#include "model/FieldRows.h"
#include "model/ListTable.h"

namespace xrpt {

template <class Owner>
using ListRowOf = ListOf<typename Owner::FieldRoot>;

// A row for the list that `Members` lead to.
template <class Owner, class Codec, auto... Members>
constexpr ListRowOf<Owner> List(const char* group, const char* name, const char* missing, FieldPanel panel = {}) {
  using Root = typename Owner::FieldRoot;
  using Entries = std::decay_t<decltype(detail::Get<Owner, Members...>(std::declval<Root&>()))>;
  using Entry = typename Entries::value_type;
  ListRowOf<Owner> row;
  detail::Describe<Owner, Codec, Members...>(row, group, name, missing, panel);
  row.size = [](const Root& object) { return detail::Get<Owner, Members...>(object).size(); };
  row.append = [](Root& object, std::string_view text) {
    Entry entry{};
    Codec::Assign(entry, text);
    detail::Get<Owner, Members...>(object).push_back(std::move(entry));
  };
  row.assign = [](Root& object, std::size_t index, std::string_view text) {
    Entry entry = detail::Get<Owner, Members...>(object)[index];
    Codec::Assign(entry, text);
    detail::Get<Owner, Members...>(object)[index] = std::move(entry);
  };
  row.write = [](const Root& object, std::size_t index, XmlWriter& out, const char* tag) {
    const Entry& entry = detail::Get<Owner, Members...>(object)[index];
    Codec::Write(entry, out, tag);
  };
  row.text = [](const Root& object, std::size_t index) {
    const Entry& entry = detail::Get<Owner, Members...>(object)[index];
    return Codec::Text(entry);
  };
  if constexpr (requires(const Entry& entry) { Codec::View(entry); }) {
    row.view = [](const Root& object, std::size_t index) {
      return Codec::View(detail::Get<Owner, Members...>(object)[index]);
    };
  }
  row.erase = [](Root& object, std::size_t index) {
    auto& entries = detail::Get<Owner, Members...>(object);
    entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(index));
  };
  row.clear = [](Root& object) { detail::Get<Owner, Members...>(object).clear(); };
  return row;
}

// Entries whose word hangs on another list: `const char* Show(std::size_t) const` gives the word to write, null for
// none, and `std::span<const Word> Words(std::size_t) const` what a panel offers.
template <class Owner, auto Show, auto Words>
constexpr ListRowOf<Owner> ShownBy(ListRowOf<Owner> row) {
  using Root = typename Owner::FieldRoot;
  row.wordsOf = [](const Root& object, std::size_t index) { return (detail::As<Owner>(object).*Words)(index); };
  row.write = [](const Root& object, std::size_t index, XmlWriter& out, const char* tag) {
    if (const char* word = (detail::As<Owner>(object).*Show)(index)) out.Plain(tag, word);
  };
  row.text = [](const Root& object, std::size_t index) {
    const char* word = (detail::As<Owner>(object).*Show)(index);
    return word ? FromUtf8(word) : std::wstring();
  };
  return row;
}

// Its entries stay where they are when an item is removed, and so shift against the other lists.
template <class Root>
constexpr ListOf<Root> NotRemoved(ListOf<Root> row) {
  row.removed = false;
  return row;
}

// What a new item's entry begins with.
template <class Root>
constexpr ListOf<Root> Beginning(const char* fresh, ListOf<Root> row) {
  row.fresh = fresh;
  return row;
}

template <class Root>
constexpr ListOf<Root> Needs(const char* name, ListOf<Root> row) {
  row.needs = name;
  return row;
}

// Names the lists that an irregular row reads and writes.
template <auto Table, class Root>
constexpr FieldOf<Root> WithList(FieldOf<Root> row) {
  row.list = Table;
  return row;
}

// The field row that stands for all the items of an object. `Table` gives their table.
template <auto Table>
constexpr auto Items() {
  using Root = typename std::decay_t<decltype(Table())>::Object;
  FieldOf<Root> row;
  row.list = Table;
  row.readNode = [](Root& object, const XmlNode& node) { ReadItems(Table(), object, node); };
  row.writeNode = [](const Root& object, XmlWriter& out) { WriteItems(Table(), object, out); };
  row.equal = [](const Root& left, const Root& right) { return EqualItems(Table(), left, right); };
  row.same = [](const Root& left, const Root& right) { return SameItems(Table(), left, right); };
  return row;
}

}  // namespace xrpt
