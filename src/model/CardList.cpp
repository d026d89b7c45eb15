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
  if (card.use_count() > 1) {
    CardPtr own = card->GetClone();
    own->TakePlaceOf(*card);
    card = std::move(own);
  }
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

void CardList::Remove(std::vector<std::size_t> indexes) {
  for (const std::size_t index : indexes) cards_[index].reset();
  std::erase(cards_, nullptr);
}

void CardList::MoveToFront(std::size_t index) {
  const auto at = cards_.begin() + static_cast<std::ptrdiff_t>(index);
  std::rotate(cards_.begin(), at, at + 1);
}

void CardList::MoveToBack(std::size_t index) {
  const auto at = cards_.begin() + static_cast<std::ptrdiff_t>(index);
  std::rotate(at, at + 1, cards_.end());
}

std::shared_ptr<const SharedCards::Stretch> CardList::ShareStretch(std::size_t first, const SharedCards& before) const {
  const auto begin = cards_.begin() + static_cast<std::ptrdiff_t>(first);
  const auto end = cards_.begin() + static_cast<std::ptrdiff_t>(std::min(first + SharedCards::kStretch, cards_.size()));
  const std::size_t index = first / SharedCards::kStretch;
  if (index < before.stretches_.size()) {
    const auto& former = *before.stretches_[index];
    if (std::equal(begin, end, former.begin(), former.end())) return before.stretches_[index];
  }
  return std::make_shared<const SharedCards::Stretch>(begin, end);
}

SharedCards CardList::Share(const SharedCards& before) const {
  SharedCards shared;
  shared.size_ = cards_.size();
  for (std::size_t first = 0; first < cards_.size(); first += SharedCards::kStretch) {
    shared.stretches_.push_back(ShareStretch(first, before));
  }
  return shared;
}

// The list's own pointers allow editing, a snapshot's do not; the constness comes off here and nowhere else, because
// `Edit` is what keeps the promise.
void CardList::Restore(const SharedCards& cards) {
  cards_.clear();
  cards_.reserve(cards.Size());
  for (std::size_t i = 0; i < cards.Size(); ++i) cards_.push_back(std::const_pointer_cast<RVCardControl>(cards[i]));
}

bool CardList::Equals(const SharedCards& cards) const {
  if (cards.Size() != cards_.size()) return false;
  for (std::size_t i = 0; i < cards_.size(); ++i) {
    if (cards_[i] != cards[i] && *cards_[i] != *cards[i]) return false;
  }
  return true;
}

}  // namespace xrpt
