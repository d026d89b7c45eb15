#include "host/RandomGuids.h"

#include <array>

namespace xrpt {
namespace {

constexpr std::wstring_view kPattern = L"xxxxxxxx-xxxx-4xxx-xxxx-xxxxxxxxxxxx";
constexpr std::size_t kVariantAt = 19;  // 8 to B marks a random identifier, as the 4 does

std::mt19937_64 Seeded() {
  std::random_device device;
  std::array<unsigned, 8> words{};
  for (unsigned& word : words) word = device();
  std::seed_seq seed(words.begin(), words.end());
  return std::mt19937_64(seed);
}

}  // namespace

RandomGuids::RandomGuids() : random_(Seeded()) {}

std::wstring RandomGuids::NewGuidText() {
  std::array<std::uint64_t, 2> bits{};
  {
    const std::lock_guard lock(mutex_);
    bits = {random_(), random_()};
  }
  std::wstring text(kPattern);
  std::uint64_t half = bits[0];
  int taken = 0;
  for (wchar_t& c : text) {
    if (c != L'x') continue;
    c = L"0123456789ABCDEF"[half & 0xF];
    half = ++taken == 16 ? bits[1] : half >> 4;
  }
  text[kVariantAt] = L"89AB"[bits[1] >> 62];
  return text;
}

}  // namespace xrpt
