#include "model/CardList.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <iterator>
#include <unordered_map>

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

std::size_t CardList::IndexOf(CardKey key) const {
  const auto found =
      std::find_if(cards_.begin(), cards_.end(), [key](const CardPtr& card) { return card->Key() == key; });
  return found == cards_.end() ? kNowhere : static_cast<std::size_t>(found - cards_.begin());
}

std::vector<std::size_t> CardList::IndexesOf(const std::vector<CardKey>& keys) const {
  if (keys.size() == 1) return {IndexOf(keys.front())};
  std::unordered_map<CardKey, std::size_t> wanted;
  for (std::size_t i = 0; i < keys.size(); ++i) wanted.emplace(keys[i], i);
  std::vector<std::size_t> indexes(keys.size(), kNowhere);
  for (std::size_t i = 0; i < cards_.size() && !wanted.empty(); ++i) {
    const auto found = wanted.find(cards_[i]->Key());
    if (found == wanted.end()) continue;
    indexes[found->second] = i;
    wanted.erase(found);
  }
  return indexes;
}

RVCardControl& CardList::Edit(std::size_t index) {
  CardPtr& card = cards_[index];
  card->ResetSearchInfo();
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

void CardList::PushFront(std::vector<std::unique_ptr<RVCardControl>> cards) {
  std::vector<CardPtr> all;
  all.reserve(cards.size() + cards_.size());
  std::move(cards.rbegin(), cards.rend(), std::back_inserter(all));
  std::move(cards_.begin(), cards_.end(), std::back_inserter(all));
  cards_ = std::move(all);
}

RVCardControl& CardList::PushBack(std::unique_ptr<RVCardControl> card) { return *cards_.emplace_back(std::move(card)); }

void CardList::Remove(std::vector<std::size_t> indexes) {
  for (const std::size_t index : indexes) cards_[index].reset();
  std::erase(cards_, nullptr);
}

std::vector<CardPtr> CardList::TakeOut(const std::vector<std::size_t>& indexes) {
  std::vector<CardPtr> taken;
  taken.reserve(indexes.size());
  for (const std::size_t index : indexes) taken.push_back(std::move(cards_[index]));
  std::erase(cards_, nullptr);
  return taken;
}

void CardList::MoveToFront(const std::vector<std::size_t>& indexes) {
  std::vector<CardPtr> all = TakeOut(indexes);
  std::reverse(all.begin(), all.end());
  all.insert(all.end(), std::make_move_iterator(cards_.begin()), std::make_move_iterator(cards_.end()));
  cards_ = std::move(all);
}

void CardList::MoveToBack(const std::vector<std::size_t>& indexes) {
  std::vector<CardPtr> moved = TakeOut(indexes);
  cards_.reserve(cards_.size() + moved.size());
  cards_.insert(cards_.end(), std::make_move_iterator(moved.begin()), std::make_move_iterator(moved.end()));
}

void CardList::Reorder(const std::vector<std::size_t>& order) {
  std::vector<CardPtr> all;
  all.reserve(order.size());
  for (const std::size_t from : order) all.push_back(std::move(cards_[from]));
  cards_ = std::move(all);
}

std::shared_ptr<SharedCards::Stretch> CardList::ShareStretch(std::size_t first, const SharedCards& before) const {
  const auto begin = cards_.begin() + static_cast<std::ptrdiff_t>(first);
  const auto end = cards_.begin() + static_cast<std::ptrdiff_t>(std::min(first + SharedCards::kStretch, cards_.size()));
  const std::size_t index = first / SharedCards::kStretch;
  if (index < before.stretches_.size()) {
    const std::shared_ptr<SharedCards::Stretch>& former = before.stretches_[index];
    if (std::equal(begin, end, former->cards.begin(), former->cards.end())) return former;
  }
  auto stretch = std::make_shared<SharedCards::Stretch>();
  stretch->cards.assign(begin, end);
  return stretch;
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
  for (const auto& stretch : cards.stretches_) {
    stretch->Unpack();
    for (const SharedCards::Card& card : stretch->cards) cards_.push_back(std::const_pointer_cast<RVCardControl>(card));
  }
}

bool CardList::Equals(const SharedCards& cards) const {
  if (cards.Size() != cards_.size()) return false;
  for (std::size_t i = 0; i < cards_.size(); ++i) {
    const SharedCards::Stretch& stretch = *cards.stretches_[i / SharedCards::kStretch];
    const std::size_t at = i % SharedCards::kStretch;
    if (stretch.IsPacked() ? !stretch.IsAsInPlace(*cards_[i], at)
                           : cards_[i] != stretch.cards[at] && !cards_[i]->HasSameRows(*stretch.cards[at])) {
      return false;
    }
  }
  return true;
}

// Cards that moved are compared with those they once were; so however often they move, those are kept once.
void SharedCards::FindStill(const Stretch& from, Stretch& stretch) {
  const Cards& still = from.still ? *from.still : from.cards;
  if (stretch.IsPacked() || stretch.still || still.size() != stretch.cards.size()) return;
  std::size_t moved = 0;
  for (std::size_t i = 0; i < still.size(); ++i) {
    if (stretch.cards[i] == from.cards[i]) continue;
    if (!stretch.cards[i]->DiffersInPlaceOnly(*still[i])) return;
    ++moved;
  }
  if (2 * moved < still.size()) return;
  stretch.still = from.still ? from.still : std::make_shared<const Cards>(from.cards);
}

void SharedCards::Pack(SharedCards& neighbour) {
  for (std::size_t i = 0; i < stretches_.size(); ++i) {
    const bool hasNeighbour = i < neighbour.stretches_.size();
    if (hasNeighbour && neighbour.stretches_[i] == stretches_[i]) continue;
    if (hasNeighbour && !stretches_[i]->IsPacked()) FindStill(*stretches_[i], *neighbour.stretches_[i]);
    stretches_[i]->Pack();
  }
}

void SharedCards::Stretch::Pack() {
  if (!still || IsPacked()) return;
  places.reserve(cards.size());
  for (const Card& card : cards) places.push_back({card->x, card->y, card->width, card->height});
  Cards().swap(cards);
}

void SharedCards::Stretch::Unpack() {
  if (!IsPacked()) return;
  cards.reserve(places.size());
  for (std::size_t i = 0; i < places.size(); ++i) {
    std::unique_ptr<RVCardControl> card = (*still)[i]->GetClone();
    card->TakePlaceOf(*(*still)[i]);
    card->x = places[i].x;
    card->y = places[i].y;
    card->width = places[i].width;
    card->height = places[i].height;
    cards.push_back(std::move(card));
  }
  std::vector<Place>().swap(places);
}

bool SharedCards::Stretch::IsAsInPlace(const RVCardControl& card, std::size_t index) const {
  const Place& place = places[index];
  const auto same = [](double a, double b) {
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
  };
  return same(card.x, place.x) && same(card.y, place.y) && same(card.width, place.width) &&
         same(card.height, place.height) && card.DiffersInPlaceOnly(*(*still)[index]);
}

}  // namespace xrpt
