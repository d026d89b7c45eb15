// Makes the rows of a class's tables.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <type_traits>
#include <vector>

#include "model/FieldTable.h"

namespace xrpt {

// A row for a class somewhere in a tree.
template <class Owner>
using RowOf = FieldOf<typename Owner::FieldRoot>;

namespace detail {

// The member that a path of member pointers names.
template <auto First, auto... Rest, class Object>
auto& Follow(Object& object) {
  if constexpr (sizeof...(Rest) == 0) {
    return object.*First;
  } else {
    return Follow<Rest...>(object.*First);
  }
}

// The object as what its class's rows know it to be.
template <class Owner>
Owner& As(typename Owner::FieldRoot& object) {
  return static_cast<Owner&>(object);
}

template <class Owner>
const Owner& As(const typename Owner::FieldRoot& object) {
  return static_cast<const Owner&>(object);
}

template <class Owner, auto... Members>
auto& Get(typename Owner::FieldRoot& object) {
  return Follow<Members...>(As<Owner>(object));
}

template <class Owner, auto... Members>
const auto& Get(const typename Owner::FieldRoot& object) {
  return Follow<Members...>(As<Owner>(object));
}

// To the last bit, so that a number that is none is the same as its copy.
template <class T>
bool SameValue(const T& left, const T& right) {
  return left == right;
}
inline bool SameValue(double left, double right) {
  return std::bit_cast<std::uint64_t>(left) == std::bit_cast<std::uint64_t>(right);
}
inline bool SameValue(const std::vector<double>& left, const std::vector<double>& right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](double a, double b) { return SameValue(a, b); });
}

// What rows and lists alike are described by, and how their values compare.
template <class Owner, class Codec, auto... Members, class Row>
constexpr void Describe(Row& row, const char* group, const char* name, const char* missing, const FieldPanel& panel) {
  row.group = group;
  row.groupKey = group;
  row.name = name;
  row.key = name;
  row.missing = missing;
  row.panel = panel;
  row.words = Codec::Words();
  using Root = typename Owner::FieldRoot;
  row.equal = [](const Root& left, const Root& right) {
    return Get<Owner, Members...>(left) == Get<Owner, Members...>(right);
  };
  row.same = [](const Root& left, const Root& right) {
    return SameValue(Get<Owner, Members...>(left), Get<Owner, Members...>(right));
  };
}

}  // namespace detail

// A row for the member that `Members` lead to (`&RVCardLabel::font, &Font::size`), in a class `Owner`.
// `Codec` turns the member's type into text and back; see model/Codecs.h.
template <class Owner, class Codec, auto... Members>
constexpr RowOf<Owner> Field(const char* group, const char* name, const char* missing, FieldPanel panel = {}) {
  using Root = typename Owner::FieldRoot;
  RowOf<Owner> row;
  detail::Describe<Owner, Codec, Members...>(row, group, name, missing, panel);
  row.assign = [](Root& object, std::string_view text) { Codec::Assign(detail::Get<Owner, Members...>(object), text); };
  row.write = [](const Root& object, XmlWriter& out, const char* tag) {
    Codec::Write(detail::Get<Owner, Members...>(object), out, tag);
  };
  row.text = [](const Root& object) { return Codec::Text(detail::Get<Owner, Members...>(object)); };
  if constexpr (requires(const Root& object) { Codec::View(detail::Get<Owner, Members...>(object)); }) {
    row.view = [](const Root& object) { return Codec::View(detail::Get<Owner, Members...>(object)); };
  }
  return row;
}

// What the text is to searching and renaming. For rows of lists, too.
template <class Row>
constexpr Row Holding(TextRole role, Row row) {
  row.role = role;
  return row;
}

// The objects that a list of pointers holds are part of the object.
template <class Owner, auto Member>
constexpr RowOf<Owner> WithInner(RowOf<Owner> row) {
  using Root = typename Owner::FieldRoot;
  row.inner = [](const Root& object) {
    return std::span<const std::unique_ptr<Root>>(detail::Get<Owner, Member>(object));
  };
  return row;
}

// When the element is written.
template <class Owner, auto... Members>
constexpr RowOf<Owner> WhenNotEmpty(RowOf<Owner> row) {
  row.isWritten = [](const typename Owner::FieldRoot& object) {
    return !detail::Get<Owner, Members...>(object).empty();
  };
  return row;
}

template <class Owner, auto Condition>
constexpr RowOf<Owner> When(RowOf<Owner> row) {
  row.isWritten = [](const typename Owner::FieldRoot& object) { return (detail::As<Owner>(object).*Condition)(); };
  return row;
}

// For which objects the field is in the file at all.
template <class Owner, auto Condition>
constexpr RowOf<Owner> Only(RowOf<Owner> row) {
  row.applies = [](const typename Owner::FieldRoot& object) { return (detail::As<Owner>(object).*Condition)(); };
  return row;
}

// For which objects a panel shows the field.
template <class Owner, auto Condition>
constexpr RowOf<Owner> OfUse(RowOf<Owner> row) {
  row.isOfUse = [](const typename Owner::FieldRoot& object) { return (detail::As<Owner>(object).*Condition)(); };
  return row;
}

// What no codec can say: functions of the class read the row's own element or, for a row without a name, the object's,
// `void Read(const XmlNode&)`, and write into the latter, `void Write(XmlWriter&) const`.
template <class Owner, auto Read>
constexpr RowOf<Owner> ReadBy(RowOf<Owner> row) {
  row.readNode = [](typename Owner::FieldRoot& object, const XmlNode& node) {
    (detail::As<Owner>(object).*Read)(node);
  };
  return row;
}

template <class Owner, auto Write>
constexpr RowOf<Owner> WriteBy(RowOf<Owner> row) {
  row.writeNode = [](const typename Owner::FieldRoot& object, XmlWriter& out) {
    (detail::As<Owner>(object).*Write)(out);
  };
  return row;
}

// A choice whose words hang on another field: `void Assign(std::string_view)`, `const char* Show() const`, and
// `std::span<const Word> Words() const` for the panel.
template <class Owner, auto Assign, auto Show, auto Words>
constexpr RowOf<Owner> Through(RowOf<Owner> row) {
  using Root = typename Owner::FieldRoot;
  row.assign = [](Root& object, std::string_view text) { (detail::As<Owner>(object).*Assign)(text); };
  row.write = [](const Root& object, XmlWriter& out, const char* tag) {
    out.Plain(tag, (detail::As<Owner>(object).*Show)());
  };
  row.text = [](const Root& object) { return FromUtf8((detail::As<Owner>(object).*Show)()); };
  row.wordsOf = [](const Root& object) { return (detail::As<Owner>(object).*Words)(); };
  return row;
}

// A text field for which the panel offers words.
template <class Root>
constexpr FieldOf<Root> Offering(std::span<const Word> words, FieldOf<Root> row) {
  row.words = words;
  return row;
}

// Written at this place and read elsewhere, or not at all.
template <class Root>
constexpr FieldOf<Root> WrittenOnly(FieldOf<Root> row) {
  row.readNode = [](Root&, const XmlNode&) {};
  return row;
}

// Equality passes it over. For rows of lists, too.
template <class Row>
constexpr Row NotCompared(Row row) {
  row.counts = false;
  return row;
}

// Compared by functions of the class, `bool Equal(const Owner&) const`: as equality does, and as the history does.
template <class Owner, auto Equal, auto Same>
constexpr RowOf<Owner> ComparedBy(RowOf<Owner> row) {
  using Root = typename Owner::FieldRoot;
  row.counts = true;
  row.equal = [](const Root& left, const Root& right) {
    return (detail::As<Owner>(left).*Equal)(detail::As<Owner>(right));
  };
  row.same = [](const Root& left, const Root& right) {
    return (detail::As<Owner>(left).*Same)(detail::As<Owner>(right));
  };
  return row;
}

// What every object has in the file and nobody reads.
template <class Owner>
constexpr RowOf<Owner> Constant(const char* group, void (*write)(const typename Owner::FieldRoot&, XmlWriter&)) {
  RowOf<Owner> row;
  row.group = group;
  row.groupKey = group;
  row.writeNode = write;
  return NotCompared(row);
}

// A row for elements that are no single field: a picture, or, without a name, a list of alternatives. Compared when
// `ComparedBy` says how.
template <class Owner, auto Read, auto Write>
constexpr RowOf<Owner> Irregular(const char* name = nullptr) {
  RowOf<Owner> row;
  row.name = name;
  row.key = name;
  return NotCompared(ReadBy<Owner, Read>(WriteBy<Owner, Write>(row)));
}

// A value that people know by one text, however the file holds it: `void Assign(std::string_view)` and
// `std::wstring Text() const`.
template <class Owner, auto Assign, auto Text>
constexpr RowOf<Owner> KnownBy(RowOf<Owner> row, const FieldPanel& panel) {
  using Root = typename Owner::FieldRoot;
  row.panel = panel;
  row.assign = [](Root& object, std::string_view text) { (detail::As<Owner>(object).*Assign)(text); };
  row.text = [](const Root& object) { return (detail::As<Owner>(object).*Text)(); };
  return row;
}

// Another way to what other rows hold: without a name, for it is not in the file, and never what tells two objects
// apart.
template <class Owner>
constexpr RowOf<Owner> OtherWay() {
  using Root = typename Owner::FieldRoot;
  RowOf<Owner> row;
  row.equal = [](const Root&, const Root&) { return true; };
  row.same = row.equal;
  return row;
}

// Read after the rows before it, which it completes.
template <class Owner, auto Read>
constexpr RowOf<Owner> ReadAfter() {
  return NotCompared(ReadBy<Owner, Read>(RowOf<Owner>()));
}

// Joins arrays of rows into one array.
template <class Row, std::size_t... N>
constexpr auto JoinRows(const std::array<Row, N>&... parts) {
  std::array<Row, (N + ...)> all{};
  auto at = all.begin();
  ((at = std::copy(parts.begin(), parts.end(), at)), ...);
  return all;
}

template <class Row, class... Rows>
constexpr std::array<Row, 1 + sizeof...(Rows)> RowsOf(const Row& row, const Rows&... rows) {
  return {row, rows...};
}

}  // namespace xrpt
