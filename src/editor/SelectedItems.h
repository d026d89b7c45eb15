// The items of the one card that a panel is about: a graph's series, the variables that a button forces. Several of
// them can be changed at once; each change is one step.
#pragma once

#include "editor/SelectedFields.h"
#include "model/ListTable.h"

namespace xrpt {

// Item numbers, from 0.
using ItemNumbers = std::vector<std::size_t>;

class SelectedItems {
 public:
  explicit SelectedItems(RVEditControlWnd& frame, FieldsOf whose = FieldsOf::Selection)
      : frame_(frame), whose_(whose) {}

  // False for none or several cards, and for a card that has no list.
  bool HasList() const { return Table() != nullptr; }
  std::size_t Size() const;
  // What a list calls an item: its first field's text.
  std::wstring Caption(std::size_t item) const;
  // Its colour, for a list of things that have one.
  std::optional<Color> ColorOf(std::size_t item) const;

  // The fields of the items, with the texts they have in common.
  std::vector<FieldState> Fields(const ItemNumbers& items) const;
  void Assign(const ItemNumbers& items, const FieldRow& row, std::string_view text);

  // A new item behind the others, with a colour that tells it from them.
  void Add();
  void Remove(ItemNumbers items);
  // Puts an item where another stands; false when it is there or there is no such place.
  bool Move(std::size_t from, std::size_t to);

 private:
  using Table_ = ListTable<RVCardControl>;
  const Table_* Table() const;
  const RVCardControl* Card() const { return MeantCard(frame_, whose_); }
  void Change(int textId, int fieldTextId, const JoinKey& joins, const std::function<void(RVCardControl&)>& change);

  RVEditControlWnd& frame_;
  FieldsOf whose_;
};

}  // namespace xrpt
