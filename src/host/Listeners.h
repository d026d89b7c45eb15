// Functions to call when something happens, added and removed from any thread.
#pragma once

#include <functional>
#include <map>
#include <mutex>

namespace xrpt {

template <class... Arguments>
class Listeners {
 public:
  using Function = std::function<void(Arguments...)>;

  // The number removes the listener again.
  int Add(Function function) {
    const std::lock_guard lock(mutex_);
    functions_.emplace(++last_, std::move(function));
    return last_;
  }
  void Remove(int number) {
    const std::lock_guard lock(mutex_);
    functions_.erase(number);
  }
  // Works on a copy, so that a listener may add or remove others.
  void Call(Arguments... arguments) const {
    std::map<int, Function> now;
    {
      const std::lock_guard lock(mutex_);
      now = functions_;
    }
    for (const auto& [number, function] : now) function(arguments...);
  }

 private:
  mutable std::mutex mutex_;
  std::map<int, Function> functions_;
  int last_ = 0;
};

}  // namespace xrpt
