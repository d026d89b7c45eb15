#include "editor/SelectedFields.h"

#include <algorithm>
#include <memory>
#include <set>

#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"
#include "editor/RVEditControlWnd.h"
#include "model/FieldTexts.h"
#include "model/RVCardDate.h"
#include "platform/Host.h"
#include "platform/Text.h"

namespace xrpt {

namespace {

// Rows of the first card's tables that the others' tables have too: kinds share the rows of the kind they derive from.
std::vector<const CardRow*> CommonRows(const std::vector<const RVCardControl*>& cards) {
  std::vector<const CardRow*> common;
  ForEachField(cards.front()->GetRuntimeClass().table, [&common](const CardRow& row) {
    if (row.panel.textId != 0) common.push_back(&row);
  });
  std::set<const CardClass*> kinds;
  for (const RVCardControl* card : cards) {
    if (!kinds.insert(&card->GetRuntimeClass()).second) continue;
    std::set<const CardRow*> rows;
    ForEachField(card->GetRuntimeClass().table, [&rows](const CardRow& row) { rows.insert(&row); });
    std::erase_if(common, [&rows](const CardRow* row) { return rows.count(row) == 0; });
  }
  return common;
}

// A background is its picture and where that lies: it has no data, no colours and no movement.
bool IsOfBackground(const CardRow& row) {
  const FieldGroup group = row.panel.group;
  return row.panel.editor == FieldEditor::Picture || group == FieldGroup::Geometry || group == FieldGroup::Alignment ||
         group == FieldGroup::Scale;
}

// Fields that none of the cards has a use for are left out. An inner card fills its container, whatever its own place.
bool IsOfUse(const CardRow& row, const std::vector<const RVCardControl*>& cards, FieldsOf whose) {
  if (whose == FieldsOf::Alternative && row.panel.group == FieldGroup::Geometry) return false;
  if (whose == FieldsOf::Background && !IsOfBackground(row)) return false;
  return std::any_of(cards.begin(), cards.end(), [&](const RVCardControl* card) { return row.IsOfUse(*card); });
}

std::optional<std::wstring> CommonText(const CardRow& row, const std::vector<const RVCardControl*>& cards) {
  const auto same = [&](const RVCardControl* card) {
    return row.same ? row.same(*cards.front(), *card) : row.text(*cards.front()) == row.text(*card);
  };
  return std::all_of(cards.begin() + 1, cards.end(), same) ? std::optional(row.text(*cards.front())) : std::nullopt;
}

FieldState StateOf(const CardRow& row, const std::vector<const RVCardControl*>& cards) {
  return {&row, CommonText(row, cards), row.WordsFor(*cards.front())};
}

// Date cards are bound to the dates that the host knows, not to variables of the plant.
bool IsDateField(const CardRow& row, const RVCardControl& card) {
  return row.panel.textId == text::kField && card.IsKindOf(RVCardDate::Class());
}

bool IsDateField(const CardRow& row, const std::vector<const RVCardControl*>& cards) {
  return std::all_of(cards.begin(), cards.end(), [&row](const RVCardControl* card) { return IsDateField(row, *card); });
}

// What people read: a word of a list in their language.
std::wstring ShownText(const CardRow& row, const RVCardControl& card) {
  const std::wstring text = row.text(card);
  if (IsDateField(row, card)) return NameOfDateField(text);
  const Word* word = WordOf(row.words, text);
  return word ? NameOf(*word) : text;
}

}  // namespace

const CardRow* StyleRow(const RVCardControl& card) {
  const CardRow* found = nullptr;
  ForEachField(card.GetRuntimeClass().table, [&found](const CardRow& row) {
    if (row.panel.editor == FieldEditor::Style) found = &row;
  });
  return found;
}

namespace {

// What the card's style says of a field holds when the report is read again: an edit that it would take back lets go of
// the style.
void LetGoOfStyle(RVCardControl& card, const CardRow& edited) {
  const CardRow* style = StyleRow(card);
  if (!style || style->text(card).empty()) return;
  const std::unique_ptr<RVCardControl> styled = card.GetClone();
  styled->UpdateStyleFromFile();
  if (edited.text(*styled) != edited.text(card)) style->assign(card, "");
}

}  // namespace

void AssignToCard(RVCardControl& card, const CardRow& row, std::string_view text) {
  row.assign(card, text);
  if (row.panel.editor == FieldEditor::Style) {
    card.UpdateStyleFromFile();
  } else {
    LetGoOfStyle(card, row);
  }
}

std::vector<std::size_t> SelectedIndexes(const RVEditTemplateWnd& page) {
  std::vector<std::size_t> indexes = page.SelectedIndexes();
  std::erase(indexes, CardList::kNowhere);
  return indexes;
}

int SelectedFields::KindTextId() const {
  const auto cards = Cards();
  if (cards.empty()) return 0;
  const CardClass& kind = cards.front()->GetRuntimeClass();
  const bool same =
      std::all_of(cards.begin(), cards.end(), [&](auto* card) { return &card->GetRuntimeClass() == &kind; });
  return same ? kind.textId : 0;
}

std::vector<FieldState> SelectedFields::Fields() const {
  std::vector<FieldState> fields;
  const auto cards = Cards();
  if (IsAboutPage()) {
    const RVGlobalProperties& page = frame_.CurrentPage().Page().properties;
    ForEachField(RVGlobalProperties::Table(), [&](const PageRow& row) {
      if (row.panel.textId != 0) fields.push_back({&row, row.text(page), row.words});
    });
  }
  if (cards.empty()) return fields;
  for (const CardRow* row : CommonRows(cards)) {
    if (!IsOfUse(*row, cards, whose_)) continue;
    fields.push_back(StateOf(*row, cards));
    if (IsDateField(*row, cards)) fields.back().names = frame_.Properties().DatabaseFields();
  }
  return fields;
}

std::optional<FieldState> SelectedFields::Find(std::string_view name) const {
  const auto cards = Cards();
  if (cards.empty()) return std::nullopt;
  for (const CardRow* row : CommonRows(cards)) {
    if (row->FullName() == name) return StateOf(*row, cards);
  }
  return std::nullopt;
}

void SelectedFields::Assign(const FieldRow& row, std::string_view text) {
  if (IsAboutPage()) return AssignToPage(frame_.CurrentPage(), row, text);
  Change(row, [text](RVCardControl& card, const CardRow& own) { AssignToCard(card, own, text); });
}

void SelectedFields::Rewrite(const FieldRow& row, const std::function<std::string(const std::wstring&)>& becomes) {
  Change(row,
         [&becomes](RVCardControl& card, const CardRow& own) { AssignToCard(card, own, becomes(own.text(card))); });
}

bool SelectedFields::All(const FieldRow& row, const std::function<bool(const std::wstring&)>& isSo) const {
  const auto cards = Cards();
  const CardRow* own = cards.empty() ? nullptr : RowOfTable(cards.front()->GetRuntimeClass().table, row);
  return own && std::all_of(cards.begin(), cards.end(), [&](auto* card) { return isSo(own->text(*card)); });
}

void SelectedFields::Change(const FieldRow& row, const ChangeCard& change) {
  const auto cards = Cards();
  const CardRow* common = cards.empty() ? nullptr : RowOfTable(cards.front()->GetRuntimeClass().table, row);
  if (!common) return;
  ChangeMeant(frame_, whose_, {text::kChangeField, static_cast<int>(cards.size()), row.panel.textId}, JoinKeyOf(row),
              [&](RVCardControl& card) { change(card, *common); });
}

// A row without a name in the file has one on the panel.
JoinKey SelectedFields::JoinKeyOf(const FieldRow& row) const {
  const JoinKey field = row.name ? row.FullName() : "#" + std::to_string(row.panel.textId);
  return whose_ == FieldsOf::Selection ? field : std::to_string(static_cast<int>(whose_)) + field;
}

void SelectedFields::AssignToPage(RVEditTemplateWnd& page, const FieldRow& row, std::string_view text) {
  const PageRow* own = RowOfTable(RVGlobalProperties::Table(), row);
  if (!own) return;
  PageEdit edit = page.Edit({text::kChangePageField, 0, row.panel.textId}, row.FullName());
  own->assign(edit.Properties(), text);
}

void SelectedFields::Commit() { frame_.EndEdits(); }

std::wstring CardCaption(const RVCardControl& card) {
  std::wstring content;
  ForEachField(card.GetRuntimeClass().table, [&](const CardRow& row) {
    if (content.empty() && row.panel.textId != 0 && row.panel.group == FieldGroup::Content)
      content = ShownText(row, card);
  });
  std::replace(content.begin(), content.end(), L'\n', L' ');
  const std::wstring kind = HostText(card.GetRuntimeClass().textId);
  return content.empty() ? kind : kind + L" · " + content.substr(0, 80);
}

}  // namespace xrpt
