// What a property panel shows and changes: the fields that all selected cards have in common, or those of the page when
// none is selected.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/RVCardControl.h"

namespace xrpt {

class RVEditControlWnd;
class RVEditTemplateWnd;

struct FieldState {
  const FieldRow* row;
  std::optional<std::wstring> text;  // nothing: the cards differ
  std::span<const Word> words;       // of a choice; empty where the cards have different ones
};

class SelectedFields {
 public:
  explicit SelectedFields(RVEditControlWnd& frame) : frame_(frame) {}

  // How many cards are meant; 0: the page is.
  std::size_t Count() const { return Cards().size(); }
  // The cards' kind when all are of one, else 0 (0 for the page, too).
  int KindTextId() const;
  // Those that a panel shows, in the tables' order.
  std::vector<FieldState> Fields() const;
  // One field by its full name ("font/size"), when all have it.
  std::optional<FieldState> Find(std::string_view name) const;

  // Writes the text into every card meant, or into the page: a step of the history, which goes on while the same field
  // is assigned to again.
  void Assign(const FieldRow& row, std::string_view text);
  // The next assignment is a step of its own.
  void Commit();

 private:
  std::vector<const RVCardControl*> Cards() const;

  static void AssignToPage(RVEditTemplateWnd& page, const FieldRow& row, std::string_view text);

  RVEditControlWnd& frame_;
};

// Writes a text into one field of a card. A style's name alone changes nothing to see: the card takes its font, too. A
// field that the card's style governs lets go of the style.
void AssignToCard(RVCardControl& card, const CardRow& row, std::string_view text);

// Where the selected cards of a page stand, in selection order.
std::vector<std::size_t> SelectedIndexes(const RVEditTemplateWnd& page);

// What a list of cards calls one: its kind, and the first of its contents that is not empty.
std::wstring CardCaption(const RVCardControl& card);

}  // namespace xrpt
