// One limit for the pixels of all pictures of a host: those the store keeps decoded and those the painters keep scaled.
// Whoever keeps pixels says so here; when they are too many, what was used longest ago goes first, whoever keeps it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <mutex>
#include <vector>

namespace xrpt {

class PictureHolder {
 public:
  static constexpr std::uint64_t kNothing = std::numeric_limits<std::uint64_t>::max();

  virtual ~PictureHolder() = default;
  // When what could go first was used last; kNothing when nothing can go.
  virtual std::uint64_t OldestUse() const = 0;
  // Lets go of it and gives back its bytes.
  virtual void DropOldest() = 0;
};

class PictureMemory {
 public:
  static constexpr std::size_t kUsualLimit = 256u << 20;

  // Held by holders while they look at or change what they keep: painting and checking go on in threads of their own.
  std::recursive_mutex& Lock() const { return lock_; }

  std::size_t Limit() const { return limit_; }
  void SetLimit(std::size_t bytes);
  std::size_t Used() const { return used_; }

  void Add(PictureHolder& holder);
  void Remove(PictureHolder& holder);
  // The number of a use: later ones are larger.
  std::uint64_t NextUse() { return ++uses_; }
  // Counts bytes that are kept from now on, and makes room for them. What was used last stays, however large.
  void Take(std::size_t bytes);
  void Give(std::size_t bytes) { used_ -= bytes; }

 private:
  void MakeRoom();

  mutable std::recursive_mutex lock_;
  std::vector<PictureHolder*> holders_;
  std::size_t limit_ = kUsualLimit;
  std::size_t used_ = 0;
  std::uint64_t uses_ = 0;
};

}  // namespace xrpt
