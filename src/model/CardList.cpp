#include "model/CardList.h"

namespace xrpt {

std::size_t CardList::IndexOf(std::wstring_view id) const {
  for (std::size_t i = 0; i < cards_.size(); ++i) {
    if (cards_[i]->id == id) return i;
  }
  return kNowhere;
}

const RVCardControl* CardList::Find(std::wstring_view id) const {
  const std::size_t index = IndexOf(id);
  return index == kNowhere ? nullptr : cards_[index].get();
}

RVCardControl& CardList::Edit(std::size_t index) {
  CardPtr& card = cards_[index];
  if (card.use_count() > 1) card = card->GetClone();
  return *card;
}

RVCardControl* CardList::Edit(std::wstring_view id) {
  const std::size_t index = IndexOf(id);
  return index == kNowhere ? nullptr : &Edit(index);
}

RVCardControl& CardList::PushFront(std::unique_ptr<RVCardControl> card) {
  return **cards_.insert(cards_.begin(), CardPtr(std::move(card)));
}

RVCardControl& CardList::PushBack(std::unique_ptr<RVCardControl> card) { return *cards_.emplace_back(std::move(card)); }

void CardList::Remove(std::size_t index) { cards_.erase(cards_.begin() + static_cast<std::ptrdiff_t>(index)); }

void CardList::MoveToFront(std::size_t index) {
  const auto at = cards_.begin() + static_cast<std::ptrdiff_t>(index);
  std::rotate(cards_.begin(), at, at + 1);
}

void CardList::MoveToBack(std::size_t index) {
  const auto at = cards_.begin() + static_cast<std::ptrdiff_t>(index);
  std::rotate(at, at + 1, cards_.end());
}

// The list's own pointers allow editing, a snapshot's do not; the constness comes off here and nowhere else, because
// `Edit` is what keeps the promise.
void CardList::Restore(const SharedCards& cards) {
  cards_.clear();
  cards_.reserve(cards.size());
  for (const auto& card : cards) cards_.push_back(std::const_pointer_cast<RVCardControl>(card));
}

bool CardList::Equals(const SharedCards& cards) const {
  const auto same = [](const CardPtr& left, const std::shared_ptr<const RVCardControl>& right) {
    return left == right || *left == *right;
  };
  return std::equal(cards_.begin(), cards_.end(), cards.begin(), cards.end(), same);
}

}  // namespace xrpt
