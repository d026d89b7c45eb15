// What belongs to each name. Expressions use few names, which are searched one by one; only a crowd is hashed.
#pragma once

#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace xrpt {

// The names' characters must outlive the map. Nothing is ever taken out.
template <class Value>
class NameMap {
 public:
  // Null for a name that is not there. Good until the next one is added.
  Value* Find(std::wstring_view name) {
    if (!places_.empty()) {
      const auto at = places_.find(name);
      return at == places_.end() ? nullptr : &entries_[at->second].second;
    }
    for (auto& [known, value] : entries_) {
      if (known == name) return &value;
    }
    return nullptr;
  }

  // Of a name that is not there yet.
  void Add(std::wstring_view name, Value value) {
    entries_.emplace_back(name, std::move(value));
    if (entries_.size() > kFew && places_.empty()) {
      for (std::size_t i = 0; i + 1 < entries_.size(); ++i) places_.emplace(entries_[i].first, i);
    }
    if (entries_.size() > kFew) places_.emplace(name, entries_.size() - 1);
  }

 private:
  static constexpr std::size_t kFew = 12;

  std::vector<std::pair<std::wstring_view, Value>> entries_;
  std::unordered_map<std::wstring_view, std::size_t> places_;
};

}  // namespace xrpt
