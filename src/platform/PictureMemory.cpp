#include "platform/PictureMemory.h"

#include <algorithm>

namespace xrpt {

void PictureMemory::SetLimit(std::size_t bytes) {
  const std::lock_guard guard(lock_);
  limit_ = bytes;
  MakeRoom();
}

void PictureMemory::Add(PictureHolder& holder) {
  const std::lock_guard guard(lock_);
  holders_.push_back(&holder);
}

void PictureMemory::Remove(PictureHolder& holder) {
  const std::lock_guard guard(lock_);
  std::erase(holders_, &holder);
}

void PictureMemory::Take(std::size_t bytes) {
  const std::lock_guard guard(lock_);
  used_ += bytes;
  MakeRoom();
}

void PictureMemory::MakeRoom() {
  const auto isOlder = [](const PictureHolder* a, const PictureHolder* b) { return a->OldestUse() < b->OldestUse(); };
  while (used_ > limit_ && !holders_.empty()) {
    PictureHolder& holder = **std::min_element(holders_.begin(), holders_.end(), isOlder);
    if (holder.OldestUse() >= uses_) return;
    holder.DropOldest();
  }
}

}  // namespace xrpt
