// What a property panel shows and changes: the fields that all selected cards have in common, or those of the page when
// none is selected.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "editor/DatabaseFields.h"
#include "editor/MeantCards.h"
#include "model/RVCardControl.h"

namespace xrpt {

class RVEditTemplateWnd;

struct FieldState {
  const FieldRow* row;
  std::optional<std::wstring> text;        // nothing: the cards differ
  std::span<const Word> words;             // of a choice
  std::span<const NamedValue> names = {};  // of a field whose values are chosen by name; its row says nothing of them
};

class SelectedFields {
 public:
  explicit SelectedFields(RVEditControlWnd& frame, FieldsOf whose = FieldsOf::Selection)
      : frame_(frame), whose_(whose) {}

  const RVEditControlWnd& Frame() const { return frame_; }

  // How many cards are meant; 0: the page is.
  std::size_t Count() const { return Cards().size(); }
  // The cards' kind when all are of one, else 0 (0 for the page, too).
  int KindTextId() const;
  // Those that a panel shows, in the tables' order: no field that does nothing for any of the cards.
  std::vector<FieldState> Fields() const;
  // One field by its full name ("font/size"), when all have it.
  std::optional<FieldState> Find(std::string_view name) const;

  // Writes the text into every card meant, or into the page: a step of the history, which goes on while the same field
  // is assigned to again.
  void Assign(const FieldRow& row, std::string_view text);
  // The same with what each card's own text becomes: for a field that holds more than the one thing to change.
  void Rewrite(const FieldRow& row, const std::function<std::string(const std::wstring&)>& becomes);
  // Whether it is so of every card's text; false for the page.
  bool All(const FieldRow& row, const std::function<bool(const std::wstring&)>& isSo) const;
  // The next assignment is a step of its own.
  void Commit();

 private:
  using ChangeCard = std::function<void(RVCardControl&, const CardRow&)>;
  void Change(const FieldRow& row, const ChangeCard& change);
  JoinKey JoinKeyOf(const FieldRow& row) const;
  bool IsAboutPage() const { return whose_ == FieldsOf::Selection && Count() == 0; }
  std::vector<const RVCardControl*> Cards() const { return MeantCards(frame_, whose_); }

  static void AssignToPage(RVEditTemplateWnd& page, const FieldRow& row, std::string_view text);

  RVEditControlWnd& frame_;
  FieldsOf whose_;
};

// Writes a text into one field of a card. A style's name alone changes nothing to see: the card takes its font, too. A
// field that the card's style governs lets go of the style.
void AssignToCard(RVCardControl& card, const CardRow& row, std::string_view text);

// The row of the style that a kind of card takes its font from; null for a kind without.
const CardRow* StyleRow(const RVCardControl& card);

// Where the selected cards of a page stand, in selection order.
std::vector<std::size_t> SelectedIndexes(const RVEditTemplateWnd& page);

// What a list of cards calls one: its kind, and the first of its contents that is not empty.
std::wstring CardCaption(const RVCardControl& card);

}  // namespace xrpt
