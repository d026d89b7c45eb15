// One row per field. A class states each of its fields once, in a table of rows; reading, writing, comparing, the
// property panel, editing several cards at once and the name of an undo step all walk the rows. What no row can say
// stands as an irregular row: plain functions, with a comment that says why. Rows are made in model/FieldRows.h and
// walked in model/FieldWalk.h.
#pragma once

#include <algorithm>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "platform/Text.h"
#include "platform/Xml.h"
#include "platform/XmlWriter.h"

namespace xrpt {

// How a property panel lets the user edit a field.
enum class FieldEditor {
  None,
  Text,
  Lines,
  Check,
  Decimal,
  Integer,
  Color,
  Choice,
  FontFace,
  Style,
  Angle,
  Variable,
  Picture,
  Expression,
  Threshold
};

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
  int number = 0;  // what a "%d" of that text becomes
};

// The word of a list that stands for the value, or is the text; null when none does.
const Word* WordOf(std::span<const Word> words, int value);
const Word* WordOf(std::span<const Word> words, std::wstring_view text);
// What people read for it.
std::wstring NameOf(const Word& word);

// What a field's text is to whoever looks through the texts of a report, or renames what they refer to.
enum class TextRole {
  None,
  Words,       // for people: searched
  Expression,  // searched; names formulas and, in brackets, variables
  Variable,    // searched; a variable's full name
  Binding,     // a variable's full name, renamed along with it but not searched
};
constexpr bool IsSearched(TextRole role) { return role != TextRole::None && role != TextRole::Binding; }

// What a row says of its field, or of a list of such fields, whatever class it belongs to.
struct FieldRow {
  const char* group = nullptr;  // element that holds this one and its neighbours of the same group ("font")
  const char* name = nullptr;   // element; null for a field that is not in the file
  XmlName groupKey;             // the two, made ready to be looked for
  XmlName key;
  const char* missing = nullptr;  // what a missing element reads as; null keeps the value the field has
  bool counts = true;             // whether equality looks at it
  TextRole role = TextRole::None;
  FieldPanel panel;
  std::span<const Word> words;  // of a Choice

  // "font/size", or "x".
  std::string FullName() const;
};

template <class Root>
struct ListTable;

// A row with its way to the value. `Root` is the class at the root of the object's class tree, which names itself as
// `FieldRoot`: so all kinds of card have rows of one type.
template <class Root>
struct FieldOf : FieldRow {
  // Set where the words of a choice hang on another field of the object.
  std::span<const Word> (*wordsOf)(const Root& object) = nullptr;
  // The parallel lists that this row reads and writes, an element an item; see model/ListTable.h.
  const ListTable<Root>& (*list)() = nullptr;
  // The objects of the same tree that are part of this one.
  std::span<const std::unique_ptr<Root>> (*inner)(const Root& object) = nullptr;

  // Null: every object has the field in the file. An object to which it does not apply neither reads nor writes it.
  bool (*applies)(const Root& object) = nullptr;
  // Null: panels show every field that applies. Nothing in the file hangs on it.
  bool (*isOfUse)(const Root& object) = nullptr;
  // Null: always written.
  bool (*isWritten)(const Root& object) = nullptr;
  void (*assign)(Root& object, std::string_view text) = nullptr;
  void (*write)(const Root& object, XmlWriter& out, const char* name) = nullptr;
  std::wstring (*text)(const Root& object) = nullptr;
  // The same without a copy, for a field that is a text.
  std::wstring_view (*view)(const Root& object) = nullptr;
  // As cards are compared: NaN differs from everything.
  bool (*equal)(const Root& left, const Root& right) = nullptr;
  // As steps of the history are: to the last bit. Null for a row that has no value.
  bool (*same)(const Root& left, const Root& right) = nullptr;

  // An irregular row reads by itself: its own element when it has a name (a handle on nothing when it is missing), else
  // the whole element of the object. And it writes into the latter.
  void (*readNode)(Root& object, const XmlNode& element) = nullptr;
  void (*writeNode)(const Root& object, XmlWriter& out) = nullptr;

  bool Applies(const Root& object) const { return !applies || applies(object); }
  bool IsOfUse(const Root& object) const { return Applies(object) && (!isOfUse || isOfUse(object)); }
  std::span<const Word> WordsFor(const Root& object) const { return wordsOf ? wordsOf(object) : words; }
};

// The tables of a class and its bases. In the file the base's rows come first, save for a class that says otherwise.
template <class Root>
struct FieldTable {
  const FieldTable* base = nullptr;
  std::span<const FieldOf<Root>> rows;
  bool writesOwnFirst = false;
};

// Visits every row, base first.
template <class Root, class Visit>
void ForEachField(const FieldTable<Root>& table, const Visit& visit) {
  if (table.base) ForEachField(*table.base, visit);
  for (const FieldOf<Root>& row : table.rows) visit(row);
}

// The row of which this is the description; null when the table has no such row.
template <class Root>
const FieldOf<Root>* RowOfTable(const FieldTable<Root>& table, const FieldRow& row) {
  const FieldOf<Root>* found = nullptr;
  ForEachField(table, [&](const FieldOf<Root>& candidate) {
    if (&candidate == &row) found = &candidate;
  });
  return found;
}

// Picks a row by the name that people and scripts use.
class FieldFinder {
 public:
  explicit FieldFinder(std::string_view name) : name_(name) {}
  void Add(const FieldRow& row);
  const FieldRow* Found() const;

 private:
  // A row that counts only when it is the only one.
  struct OneOfSeveral {
    const FieldRow* first = nullptr;
    int count = 0;
    void Add(const FieldRow& row);
    const FieldRow* Only() const { return count == 1 ? first : nullptr; }
  };

  std::string_view name_;
  const FieldRow* whole_ = nullptr;
  OneOfSeveral bare_;
  OneOfSeveral grouped_;
};

// The row of a field by its full name ("font/size"), by its bare name when no other row has it ("size"), or by its
// group when that holds nothing else ("text"); null otherwise.
template <class Root>
const FieldOf<Root>* FindField(const FieldTable<Root>& table, std::string_view name) {
  FieldFinder finder(name);
  ForEachField(table, [&finder](const FieldOf<Root>& row) {
    if (row.name && row.assign) finder.Add(row);
  });
  return static_cast<const FieldOf<Root>*>(finder.Found());
}

}  // namespace xrpt
