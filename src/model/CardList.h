// A page's cards in stacking order: the front is the top, painted last and hit first.
//
// Cards are shared with the snapshots of the undo history and never changed while shared: whoever wants to change one
// asks for it with `Edit`, which copies it first when a snapshot holds it too. So a snapshot costs one pointer a card,
// two lists that hold the same pointer hold an equal card, and nothing can be edited behind the history's back.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "model/RVCardControl.h"

namespace xrpt {

using CardPtr = std::shared_ptr<RVCardControl>;
using SharedCards = std::vector<std::shared_ptr<const RVCardControl>>;

class CardList {
 public:
  static constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

  std::size_t Size() const { return cards_.size(); }
  bool IsEmpty() const { return cards_.empty(); }
  const RVCardControl& operator[](std::size_t index) const { return *cards_[index]; }

  // Front to back; null or kNowhere for an id no card has. The first of several counts.
  std::size_t IndexOf(std::wstring_view id) const;
  const RVCardControl* Find(std::wstring_view id) const;

  // The card to be changed. A reference is good until the next snapshot.
  RVCardControl& Edit(std::size_t index);
  RVCardControl* Edit(std::wstring_view id);

  RVCardControl& PushFront(std::unique_ptr<RVCardControl> card);
  RVCardControl& PushBack(std::unique_ptr<RVCardControl> card);
  void Remove(std::size_t index);
  void MoveToFront(std::size_t index);
  void MoveToBack(std::size_t index);
  void Clear() { cards_.clear(); }

  // What a snapshot keeps, and the way back.
  SharedCards Share() const { return {cards_.begin(), cards_.end()}; }
  void Restore(const SharedCards& cards);
  // Same cards in the same order; those held by both lists are not looked into.
  bool Equals(const SharedCards& cards) const;

 private:
  std::vector<CardPtr> cards_;
};

}  // namespace xrpt
