// Numbered pieces of work done by several threads, and their results taken in order.
#pragma once

#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

namespace xrpt {

// Hands out the numbers 0, 1, 2 ... and takes the results back. A thread that would run far ahead of the slowest waits,
// so that few results are ever held.
template <class Result>
class OrderedResults {
 public:
  OrderedResults(std::size_t count, std::size_t mostWaiting) : count_(count), mostWaiting_(mostWaiting) {}

  // False when there is nothing left to do.
  bool Next(std::size_t& number) {
    std::unique_lock lock(lock_);
    room_.wait(lock, [this] { return next_ < given_ + mostWaiting_ || next_ >= count_; });
    if (next_ >= count_) return false;
    number = next_++;
    return true;
  }

  // Gives `take` every result whose turn has come, in order, one at a time.
  template <class Take>
  void Put(std::size_t number, Result&& result, const Take& take) {
    const std::lock_guard lock(lock_);
    waiting_.emplace(number, std::move(result));
    for (auto first = waiting_.begin(); first != waiting_.end() && first->first == given_; first = waiting_.begin()) {
      take(first->second);
      waiting_.erase(first);
      ++given_;
    }
    room_.notify_all();
  }

  // Nothing more is handed out.
  void Close() {
    const std::lock_guard lock(lock_);
    count_ = next_;
    room_.notify_all();
  }

 private:
  std::size_t count_;
  const std::size_t mostWaiting_;
  std::mutex lock_;
  std::condition_variable room_;
  std::size_t next_ = 0;
  std::size_t given_ = 0;
  std::map<std::size_t, Result> waiting_;
};

// Runs `work` on that many threads at most, this one among them.
template <class Work>
void RunOnThreads(int count, const Work& work) {
  std::vector<std::jthread> threads;
  try {
    for (int i = 1; i < count; ++i) threads.emplace_back(work);
  } catch (const std::system_error&) {
    // Fewer threads are slower, and that is all.
  }
  work();
}

}  // namespace xrpt
