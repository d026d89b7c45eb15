// Remembering something of each text, without copying a text to look for it and without ever holding more than asked.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace xrpt {

struct TextHash {
  using is_transparent = void;
  std::size_t operator()(std::wstring_view text) const { return std::hash<std::wstring_view>()(text); }
};

template <class Value>
using TextMap = std::unordered_map<std::wstring, Value, TextHash, std::equal_to<>>;

// The last used texts, at least `most` of them and at most twice as many: what was not asked for while so many others
// were is forgotten.
template <class Value>
class RecentTexts {
 public:
  explicit RecentTexts(std::size_t most) : most_(most) {}

  // Null for one that is not remembered. Good until the next call.
  const Value* Find(std::wstring_view text) {
    if (const auto found = young_.find(text); found != young_.end()) return &found->second;
    const auto found = old_.find(text);
    if (found == old_.end()) return nullptr;
    auto node = old_.extract(found);
    MakeRoom();
    return &young_.insert(std::move(node)).position->second;
  }
  const Value& Keep(std::wstring_view text, Value value) {
    MakeRoom();
    return young_.insert_or_assign(std::wstring(text), std::move(value)).first->second;
  }
  std::size_t Size() const { return young_.size() + old_.size(); }

 private:
  void MakeRoom() {
    if (young_.size() < most_) return;
    old_ = std::move(young_);
    young_.clear();
  }

  std::size_t most_;
  TextMap<Value> young_;
  TextMap<Value> old_;
};

}  // namespace xrpt
