#include "xrpt/Progress.h"

#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <string>

namespace xrpt {
namespace {

std::atomic<bool> asked = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal may set it");

void Ask(int) { asked = true; }

void OnInterrupt(void (*handler)(int), int flags) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = flags;
  ::sigaction(SIGINT, &action, nullptr);
}

constexpr std::size_t kBarWidth = 30;

}  // namespace

ProgressBar::ProgressBar() : isTerminal_(::isatty(STDERR_FILENO) != 0), next_(Clock::now() + std::chrono::seconds(1)) {}

void ProgressBar::Show(std::size_t done, std::size_t of) {
  if (!isTerminal_ || of == 0 || Clock::now() < next_) return;
  next_ = Clock::now() + std::chrono::milliseconds(100);
  const std::size_t filled = done * kBarWidth / of;
  const std::string bar = std::string(filled, '#') + std::string(kBarWidth - filled, '.');
  std::fprintf(stderr, "\r[%s] %zu of %zu", bar.c_str(), done, of);
  isShown_ = true;
}

void ProgressBar::Hide() {
  if (isShown_) std::fputs("\r\033[K", stderr);
  isShown_ = false;
}

InterruptRequest::InterruptRequest() {
  asked = false;
  OnInterrupt(Ask, static_cast<int>(SA_RESETHAND));
}

InterruptRequest::~InterruptRequest() { OnInterrupt(SIG_DFL, 0); }

const std::atomic<bool>& InterruptRequest::Asked() { return asked; }

}  // namespace xrpt
