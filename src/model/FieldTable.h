// One row per field. A class states each of its fields once, in a table of rows; reading, writing, comparing, the
// property panel, editing several cards at once and the name of an undo step all walk the rows. What no row can say
// stands as an irregular row: plain functions, with a comment that says why.
#pragma once

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "platform/Text.h"
#include "platform/Xml.h"
#include "platform/XmlWriter.h"

namespace xrpt {

// How a property panel lets the user edit a field.
enum class FieldEditor { None, Text, Lines, Check, Decimal, Integer, Color, Choice, FontFace, Style, Angle, Variable };

// Panels show fields in these groups, in this order.
enum class FieldGroup { Geometry, Content, Font, Alignment, Colors, Format, Animation, Scale, Series, Page };

// Text id 0 keeps the field off the panel.
struct FieldPanel {
  int textId = 0;
  FieldGroup group = FieldGroup::Content;
  FieldEditor editor = FieldEditor::None;
  double minimum = 0.0;
  double maximum = 0.0;  // equal to minimum: no range
};

// One word of a list: its text in the file, its value, its text id on a panel (0: the file's word is shown).
struct Word {
  const char* text;
  int value;
  int textId = 0;
};

struct ListTable;

// Objects are passed as pointers to the root of their class tree (`FieldRoot`).
struct FieldRow {
  const char* group = nullptr;  // element that holds this one and its neighbours of the same group ("font")
  const char* name = nullptr;   // element; null for a field that is not in the file
  XmlName groupKey;             // the two, made ready to be looked for
  XmlName key;
  const char* missing = nullptr;  // what a missing element reads as; null keeps the value the field has
  bool counts = true;             // whether equality looks at it
  FieldPanel panel;
  std::span<const Word> words;  // of a Choice
  // Set where the words of a choice hang on another field of the object.
  std::span<const Word> (*wordsOf)(const void* object) = nullptr;
  // The parallel lists that this row reads and writes, an element an item; see model/ListTable.h.
  const ListTable& (*list)() = nullptr;

  // Null: every object has the field in the file. An object to which it does not apply neither reads nor writes it.
  bool (*applies)(const void* object) = nullptr;
  // Null: always written.
  bool (*isWritten)(const void* object) = nullptr;
  void (*assign)(void* object, std::string_view text) = nullptr;
  void (*write)(const void* object, XmlWriter& out, const char* name) = nullptr;
  std::wstring (*text)(const void* object) = nullptr;
  bool (*equal)(const void* left, const void* right) = nullptr;

  // An irregular row reads by itself: its own element when it has a name (a handle on nothing when it is missing), else
  // the whole element of the object. And it writes into the latter.
  void (*readNode)(void* object, const XmlNode& element) = nullptr;
  void (*writeNode)(const void* object, XmlWriter& out) = nullptr;

  // "font/size", or "x".
  std::string FullName() const;
  bool Applies(const void* object) const { return !applies || applies(object); }
  std::span<const Word> WordsFor(const void* object) const { return wordsOf ? wordsOf(object) : words; }
};

// The tables of a class and its bases. In the file the base's rows come first, save for a class that says otherwise.
struct FieldTable {
  const FieldTable* base = nullptr;
  std::span<const FieldRow> rows;
  bool writesOwnFirst = false;
};

void ReadFields(const FieldTable& table, void* object, const XmlNode& node);
void WriteFields(const FieldTable& table, const void* object, XmlWriter& out);
// The same with the rows of the root of the class tree taken from another object.
void WriteFields(const FieldTable& table, const void* object, const void* rootObject, XmlWriter& out);
bool EqualFields(const FieldTable& table, const void* left, const void* right);

// Own rows only, for what stands between other things.
void ReadRows(std::span<const FieldRow> rows, void* object, XmlCursor& cursor, const XmlNode& node);
void WriteRows(std::span<const FieldRow> rows, const void* object, XmlWriter& out);

// The row of a field by its full name ("font/size"), by its bare name when no other row has it ("size"), or by its
// group when that holds nothing else ("text"); null otherwise.
const FieldRow* FindField(const FieldTable& table, std::string_view name);

// Visits every row, base first.
template <class Visit>
void ForEachField(const FieldTable& table, const Visit& visit) {
  if (table.base) ForEachField(*table.base, visit);
  for (const FieldRow& row : table.rows) visit(row);
}

namespace detail {

template <class T>
struct MemberOf;
template <class C, class T>
struct MemberOf<T C::*> {
  using Class = C;
  using Type = T;
};

template <auto First, auto...>
struct Path {
  using Class = typename MemberOf<decltype(First)>::Class;
};

template <auto First, auto... Rest>
auto& Follow(typename Path<First>::Class& object) {
  if constexpr (sizeof...(Rest) == 0) {
    return object.*First;
  } else {
    return Follow<Rest...>(object.*First);
  }
}

// From the type-erased root to the object.
template <class Owner>
Owner& As(void* object) {
  return static_cast<Owner&>(*static_cast<typename Owner::FieldRoot*>(object));
}

template <class Owner>
const Owner& As(const void* object) {
  return static_cast<const Owner&>(*static_cast<const typename Owner::FieldRoot*>(object));
}

// And to the member that a path of member pointers names.
template <class Owner, auto... Members>
auto& Get(void* object) {
  return Follow<Members...>(As<Owner>(object));
}

template <class Owner, auto... Members>
const auto& Get(const void* object) {
  return Get<Owner, Members...>(const_cast<void*>(object));
}

}  // namespace detail

// A row for the member that `Members` lead to (`&RVCardLabel::font, &Font::size`), in a class `Owner`.
// `Codec` turns the member's type into text and back; see model/Codecs.h.
template <class Owner, class Codec, auto... Members>
constexpr FieldRow Field(const char* group, const char* name, const char* missing, FieldPanel panel = {}) {
  FieldRow row;
  row.group = group;
  row.groupKey = group;
  row.name = name;
  row.key = name;
  row.missing = missing;
  row.panel = panel;
  row.words = Codec::Words();
  row.assign = [](void* object, std::string_view text) { Codec::Assign(detail::Get<Owner, Members...>(object), text); };
  row.write = [](const void* object, XmlWriter& out, const char* tag) {
    Codec::Write(detail::Get<Owner, Members...>(object), out, tag);
  };
  row.text = [](const void* object) { return Codec::Text(detail::Get<Owner, Members...>(object)); };
  row.equal = [](const void* left, const void* right) {
    return detail::Get<Owner, Members...>(left) == detail::Get<Owner, Members...>(right);
  };
  return row;
}

// When the element is written.
template <class Owner, auto... Members>
constexpr FieldRow WhenNotEmpty(FieldRow row) {
  row.isWritten = [](const void* object) { return !detail::Get<Owner, Members...>(object).empty(); };
  return row;
}

template <class Owner, auto Condition>
constexpr FieldRow When(FieldRow row) {
  row.isWritten = [](const void* object) { return (detail::As<Owner>(object).*Condition)(); };
  return row;
}

// For which objects the field is in the file at all.
template <class Owner, auto Condition>
constexpr FieldRow Only(FieldRow row) {
  row.applies = [](const void* object) { return (detail::As<Owner>(object).*Condition)(); };
  return row;
}

// What no codec can say: functions of the class read the row's own element or, for a row without a name, the object's,
// `void Read(const XmlNode&)`, and write into the latter, `void Write(XmlWriter&) const`.
template <class Owner, auto Read>
constexpr FieldRow ReadBy(FieldRow row) {
  row.readNode = [](void* object, const XmlNode& node) { (detail::As<Owner>(object).*Read)(node); };
  return row;
}

template <class Owner, auto Write>
constexpr FieldRow WriteBy(FieldRow row) {
  row.writeNode = [](const void* object, XmlWriter& out) { (detail::As<Owner>(object).*Write)(out); };
  return row;
}

// A choice whose words hang on another field: `void Assign(std::string_view)`, `const char* Show() const`, and
// `std::span<const Word> Words() const` for the panel.
template <class Owner, auto Assign, auto Show, auto Words>
constexpr FieldRow Through(FieldRow row) {
  row.assign = [](void* object, std::string_view text) { (detail::As<Owner>(object).*Assign)(text); };
  row.write = [](const void* object, XmlWriter& out, const char* tag) {
    out.Plain(tag, (detail::As<Owner>(object).*Show)());
  };
  row.text = [](const void* object) { return FromUtf8((detail::As<Owner>(object).*Show)()); };
  row.wordsOf = [](const void* object) { return (detail::As<Owner>(object).*Words)(); };
  return row;
}

// A text field for which the panel offers words.
constexpr FieldRow Offering(std::span<const Word> words, FieldRow row) {
  row.words = words;
  return row;
}

// Written at this place and read elsewhere, or not at all.
constexpr FieldRow WrittenOnly(FieldRow row) {
  row.readNode = [](void*, const XmlNode&) {};
  return row;
}

// What every object has in the file and nobody reads.
constexpr FieldRow Constant(const char* group, void (*write)(const void*, XmlWriter&)) {
  FieldRow row;
  row.group = group;
  row.groupKey = group;
  row.counts = false;
  row.writeNode = write;
  return row;
}

constexpr FieldRow NotCompared(FieldRow row) {
  row.counts = false;
  return row;
}

// A row for elements that are no single field: a picture, or, without a name, a list of alternatives.
template <class Owner, auto Read, auto Write>
constexpr FieldRow Irregular(const char* name = nullptr) {
  FieldRow row;
  row.name = name;
  row.key = name;
  return NotCompared(ReadBy<Owner, Read>(WriteBy<Owner, Write>(row)));
}

// Read after the rows before it, which it completes.
template <class Owner, auto Read>
constexpr FieldRow ReadAfter() {
  return NotCompared(ReadBy<Owner, Read>(FieldRow()));
}

// Joins arrays of rows into one array.
template <std::size_t... N>
constexpr auto JoinRows(const std::array<FieldRow, N>&... parts) {
  std::array<FieldRow, (N + ...)> all{};
  auto at = all.begin();
  ((at = std::copy(parts.begin(), parts.end(), at)), ...);
  return all;
}

template <class... Rows>
constexpr std::array<FieldRow, sizeof...(Rows)> RowsOf(const Rows&... rows) {
  return {rows...};
}

}  // namespace xrpt
