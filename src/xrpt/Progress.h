// A bar on the terminal for work that takes its time, and the user's wish to end it.
#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>

namespace xrpt {

// Shows itself on standard error once the work has taken a second, if that is a terminal; it is gone when the work is.
class ProgressBar {
 public:
  ProgressBar();
  ~ProgressBar() { Hide(); }
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  void Show(std::size_t done, std::size_t of);
  // Before something else is printed.
  void Hide();

 private:
  using Clock = std::chrono::steady_clock;

  const bool isTerminal_;
  Clock::time_point next_;
  bool isShown_ = false;
};

// As long as it lives, Ctrl+C asks for an end instead of making one; a second Ctrl+C makes it.
class InterruptRequest {
 public:
  InterruptRequest();
  ~InterruptRequest();
  InterruptRequest(const InterruptRequest&) = delete;
  InterruptRequest& operator=(const InterruptRequest&) = delete;

  static const std::atomic<bool>& Asked();
};

}  // namespace xrpt
