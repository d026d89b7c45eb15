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

// The cards of a list as a snapshot keeps them, in stretches of a few dozen that snapshots share where nothing changed,
// so that one more snapshot of a long list costs little more than the cards that changed. Of cards that only moved, an
// old snapshot may keep where they were and no more (`Pack`).
class SharedCards {
 public:
  using Card = std::shared_ptr<const RVCardControl>;

  std::size_t Size() const { return size_; }
  // Of a snapshot that was never packed.
  const Card& operator[](std::size_t index) const { return stretches_[index / kStretch]->cards[index % kStretch]; }
  // For a snapshot that is seldom needed from now on, because the given one came after or before it: what the two do
  // not share takes as little memory as it can. To compare with it and to restore it takes longer. For the one thread
  // that has all the snapshots that share something with this one.
  void Pack(SharedCards& neighbour);

 private:
  friend class CardList;
  static constexpr std::size_t kStretch = 64;
  using Cards = std::vector<Card>;
  struct Place {
    double x, y, width, height;
  };
  struct Stretch {
    Cards cards;                         // none while packed
    std::shared_ptr<const Cards> still;  // these cards, wherever they stand; null when there are none such
    std::vector<Place> places;           // while packed

    bool IsPacked() const { return cards.empty(); }
    void Pack();
    void Unpack();
    bool IsAsInPlace(const RVCardControl& card, std::size_t index) const;
  };
  static void FindStill(const Stretch& from, Stretch& stretch);

  std::vector<std::shared_ptr<Stretch>> stretches_;
  std::size_t size_ = 0;
};

class CardList {
 public:
  static constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

  std::size_t Size() const { return cards_.size(); }
  bool IsEmpty() const { return cards_.empty(); }
  const RVCardControl& operator[](std::size_t index) const { return *cards_[index]; }

  // Front to back; null or kNowhere for an id no card has. The first of several counts.
  std::size_t IndexOf(std::wstring_view id) const;
  const RVCardControl* Find(std::wstring_view id) const;

  // The same by what tells cards apart whatever their ids; the places of several in one walk.
  std::size_t IndexOf(CardKey key) const;
  std::vector<std::size_t> IndexesOf(const std::vector<CardKey>& keys) const;

  // The card to be changed; what was found in it is forgotten. A reference is good until the next snapshot.
  RVCardControl& Edit(std::size_t index);
  RVCardControl* Edit(std::wstring_view id);

  RVCardControl& PushFront(std::unique_ptr<RVCardControl> card);
  // One after the other, so that the last ends foremost; in one pass.
  void PushFront(std::vector<std::unique_ptr<RVCardControl>> cards);
  RVCardControl& PushBack(std::unique_ptr<RVCardControl> card);
  void Remove(std::vector<std::size_t> indexes);
  // Puts cards before or behind all others, in one pass; the last of them ends outermost.
  void MoveToFront(const std::vector<std::size_t>& indexes);
  void MoveToBack(const std::vector<std::size_t>& indexes);
  // The cards in another order: where each of the new places stood before, every one of them once.
  void Reorder(const std::vector<std::size_t>& order);
  void Clear() { cards_.clear(); }

  // What a snapshot keeps, and the way back.
  // What it has in common with the snapshot before, it shares.
  SharedCards Share(const SharedCards& before = {}) const;
  void Restore(const SharedCards& cards);
  // Same cards in the same order, by every row that they have; those held by both lists are not looked into.
  bool Equals(const SharedCards& cards) const;

 private:
  std::vector<CardPtr> TakeOut(const std::vector<std::size_t>& indexes);
  std::shared_ptr<SharedCards::Stretch> ShareStretch(std::size_t first, const SharedCards& before) const;

  std::vector<CardPtr> cards_;
};

}  // namespace xrpt
