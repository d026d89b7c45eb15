// The selected cards, in the order in which they were selected; the last one is the reference of alignments.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "model/RVCardControl.h"

namespace xrpt {

class RVSelection {
 public:
  // A card is known by its key, so that two cards of a file that share an id are two; the id is for whoever asks.
  struct Entry {
    CardKey key = 0;
    std::wstring id;
    bool operator==(const Entry&) const = default;
  };

  // False when it is selected already.
  bool AddSelection(const RVCardControl& card);
  bool Delete(int index);
  // Drops every entry for which the answer is false.
  template <class Keeps>
  void Retain(const Keeps& keeps) {
    if (std::erase_if(entries_, [&](const Entry& entry) { return !keeps(entry); }) > 0) Reindex();
  }
  // Where an entry stands; -1 when absent. Of several cards with the id, the one selected first.
  int Find(CardKey key) const;
  int Find(std::wstring_view id) const;
  bool IsSelected(const RVCardControl& card) const { return Find(card.Key()) >= 0; }
  bool IsLastSelected(const RVCardControl& card) const;
  void Clear() { *this = RVSelection(); }

  const std::vector<Entry>& Entries() const { return entries_; }
  std::size_t Size() const { return entries_.size(); }
  bool IsEmpty() const { return entries_.empty(); }
  std::vector<std::wstring> Ids() const;

  // The same cards, in whatever order.
  bool HasSameCards(const RVSelection& other) const;
  bool operator==(const RVSelection& other) const { return entries_ == other.entries_; }

 private:
  void Reindex();

  std::vector<Entry> entries_;
  std::unordered_map<CardKey, int> index_;
};

}  // namespace xrpt
