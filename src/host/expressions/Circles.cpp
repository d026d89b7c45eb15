#include "host/expressions/Circles.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

#include "host/expressions/Tokenizer.h"

namespace xrpt {
namespace {

// Walks depth first along the names in the texts, on a path of its own. A formula is looked into once, whatever the
// number of walks.
class Walker {
 public:
  Walker(std::span<const std::wstring> names, std::span<const std::wstring> texts) : texts_(texts) {
    const std::size_t count = std::min(names.size(), texts.size());
    for (std::size_t i = 0; i < count; ++i) places_.try_emplace(names[i], i);
    states_.resize(count, State::Unknown);
  }

  bool FindCircle(std::size_t from) {
    if (from >= states_.size()) return false;
    if (states_[from] == State::Unknown) Enter(from);
    while (!path_.empty() && !circle_) Advance();
    return circle_;
  }

 private:
  enum class State { Unknown, OnPath, Clear };
  struct Step {
    std::size_t place;
    Tokenizer rest;
  };

  void Enter(std::size_t place) {
    states_[place] = State::OnPath;
    path_.push_back({place, Tokenizer(texts_[place])});
  }
  void Advance();

  std::span<const std::wstring> texts_;
  std::unordered_map<std::wstring_view, std::size_t> places_;
  std::vector<State> states_;
  std::vector<Step> path_;
  bool circle_ = false;
};

void Walker::Advance() {
  const Token token = path_.back().rest.Next();
  if (token.type == kTokenEnd) {
    states_[path_.back().place] = State::Clear;
    path_.pop_back();
    return;
  }
  if (token.type != kTokenName) return;
  const auto at = places_.find(token.text);
  if (at == places_.end()) return;
  circle_ = states_[at->second] == State::OnPath;
  if (states_[at->second] == State::Unknown) Enter(at->second);
}

}  // namespace

bool LeadsIntoCircle(std::span<const std::wstring> names, std::span<const std::wstring> texts, std::size_t place) {
  return Walker(names, texts).FindCircle(place);
}

bool HasCircle(std::span<const std::wstring> names, std::span<const std::wstring> texts) {
  Walker walker(names, texts);
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (walker.FindCircle(i)) return true;
  }
  return false;
}

}  // namespace xrpt
