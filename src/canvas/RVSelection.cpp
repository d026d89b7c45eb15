#include "canvas/RVSelection.h"

#include <algorithm>

namespace xrpt {

bool RVSelection::AddSelection(const RVCardControl& card) {
  if (!index_.emplace(card.Key(), static_cast<int>(entries_.size())).second) return false;
  entries_.push_back({card.Key(), card.id});
  return true;
}

bool RVSelection::Delete(int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= entries_.size()) return false;
  entries_.erase(entries_.begin() + index);
  Reindex();
  return true;
}

void RVSelection::Reindex() {
  index_.clear();
  for (std::size_t i = 0; i < entries_.size(); ++i) index_.emplace(entries_[i].key, static_cast<int>(i));
}

int RVSelection::Find(CardKey key) const {
  const auto found = index_.find(key);
  return found == index_.end() ? -1 : found->second;
}

int RVSelection::Find(std::wstring_view id) const {
  const auto found =
      std::find_if(entries_.begin(), entries_.end(), [id](const Entry& entry) { return entry.id == id; });
  return found == entries_.end() ? -1 : static_cast<int>(found - entries_.begin());
}

bool RVSelection::HasSameCards(const RVSelection& other) const {
  return Size() == other.Size() &&
         std::all_of(entries_.begin(), entries_.end(), [&](const Entry& entry) { return other.Find(entry.key) >= 0; });
}

bool RVSelection::IsLastSelected(const RVCardControl& card) const {
  return !entries_.empty() && entries_.back().key == card.Key();
}

std::vector<std::wstring> RVSelection::Ids() const {
  std::vector<std::wstring> ids;
  for (const Entry& entry : entries_) ids.push_back(entry.id);
  return ids;
}

}  // namespace xrpt
