#pragma once

namespace xrpt {

// A value that stays behind when its owner is copied.
template <class T>
struct NotCopied {
  NotCopied() = default;
  NotCopied(const NotCopied&) {}
  NotCopied& operator=(const NotCopied&) { return *this; }
  T value;
};

}  // namespace xrpt
