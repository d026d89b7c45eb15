// Names that no other of their list has: A, A_1, A_2 ...
#pragma once

#include <string>
#include <unordered_map>
#include <unordered_set>

namespace xrpt {

class UniqueNames {
 public:
  void Add(const std::wstring& name) { taken_.insert(name); }
  // The name itself, or the first of name_1, name_2, ... that nobody has; it is taken from then on.
  std::wstring Take(const std::wstring& name) {
    std::wstring candidate = name;
    if (taken_.contains(candidate)) {
      int& n = last_[name];
      do candidate = name + L"_" + std::to_wstring(++n);
      while (taken_.contains(candidate));
    }
    taken_.insert(candidate);
    return candidate;
  }

 private:
  std::unordered_set<std::wstring> taken_;
  std::unordered_map<std::wstring, int> last_;  // by name: the number given last, below which none is free
};

}  // namespace xrpt
