#include "model/RVCardForceValues.h"

#include "model/ListRows.h"

namespace xrpt {
namespace {

using Force = RVCardForceValues;

// One pair of brackets is added on reading and one taken off on writing, whatever the name itself holds.
struct BracketedCodec {
  static constexpr std::span<const Word> Words() { return {}; }
  static void Assign(std::wstring& value, std::string_view text) { value = L"[" + FromUtf8(text) + L"]"; }
  static std::wstring_view View(std::wstring_view value) {
    const bool bracketed = value.size() >= 2 && value.front() == L'[' && value.back() == L']';
    return bracketed ? value.substr(1, value.size() - 2) : value;
  }
  static std::wstring Text(const std::wstring& value) { return std::wstring(View(value)); }
  static void Write(const std::wstring& value, XmlWriter& out, const char* name) { out.Value(name, View(value)); }
};

// All but exactly "USER" is direct.
struct DirectCodec : codec::PlainCodec<DirectCodec> {
  static constexpr Word kWords[] = {{"DIRECT", 1, 60195}, {"USER", 0, 60196}};
  static constexpr std::span<const Word> Words() { return kWords; }
  static void Assign(bool& value, std::string_view text) { value = text != "USER"; }
  static std::string_view Show(bool value) { return value ? "DIRECT" : "USER"; }
};

constexpr FieldPanel VariablePanel(int textId, FieldEditor editor) { return {textId, FieldGroup::Series, editor}; }

}  // namespace

const ListTable<RVCardControl>& RVCardForceValues::Variables() {
  static constexpr ListOf<RVCardControl> kRows[] = {
      Holding(TextRole::Variable, List<Force, BracketedCodec, &Force::variables>(
                                      nullptr, "id", "", VariablePanel(text::kVariable, FieldEditor::Variable))),
      Holding(TextRole::Words, List<Force, codec::String, &Force::values>(
                                   nullptr, "value", "", VariablePanel(text::kForcedValue, FieldEditor::Text))),
      List<Force, DirectCodec, &Force::direct>(nullptr, "type", "", VariablePanel(text::kDirect, FieldEditor::Choice)),
      List<Force, codec::Integer, &Force::decimals>(nullptr, "decimals", "",
                                                    VariablePanel(text::kDecimals, FieldEditor::Integer)),
  };
  static constexpr ListTable<RVCardControl> kTable{"variable", kRows};
  return kTable;
}

std::span<const CardRow> RVCardForceValues::Rows() {
  static constexpr CardRow kRows[] = {
      ReadBy<Force, &Force::ReadVariables>(Items<&Force::Variables>()),
      Field<Force, codec::Integer, &Force::current>(nullptr, nullptr, nullptr),
  };
  return kRows;
}

const CardClass& RVCardForceValues::Class() {
  static const CardClass kind = [] {
    CardClass made =
        DeriveCard<RVCardForceValues>("forceValues", text::kForceValuesCard, RVCardButton::Class(), Rows());
    made.table.writesOwnFirst = true;  // the variables stand before the card's common values
    return made;
  }();
  return kind;
}

bool RVCardForceValues::DeleteVariable(std::int32_t index) {
  if (!RemoveItem(Variables(), *this, index)) return false;
  current = std::min(index, static_cast<std::int32_t>(variables.size()) - 1);
  return true;
}

void RVCardForceValues::Clear() {
  ClearItems(Variables(), *this);
  current = -1;
}

// A variable without an id is skipped.
void RVCardForceValues::ReadVariables(const XmlNode& node) {
  ClearItems(Variables(), *this);
  for (const XmlNode& child : node) {
    const bool named = child.Tag() == "variable" && !child.Node("id").Value().empty();
    if (named) AppendItem(Variables(), *this, child);
  }
  if (!variables.empty()) current = 0;
}

}  // namespace xrpt
