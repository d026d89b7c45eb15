#include "host/RandomGuids.h"

#include <array>

namespace xrpt {
namespace {

// Where hyphens stand, and the version and variant that mark a random identifier.
constexpr std::wstring_view kPattern = L"xxxxxxxx-xxxx-4xxx-Vxxx-xxxxxxxxxxxx";

wchar_t HexDigit(unsigned value) { return L"0123456789ABCDEF"[value & 0xF]; }

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
  unsigned taken = 0;
  for (wchar_t& c : text) {
    if (c != L'x' && c != L'V') continue;
    const auto four = static_cast<unsigned>(bits[taken / 16] >> (taken % 16 * 4)) & 0xF;
    c = HexDigit(c == L'V' ? 8 | (four & 3) : four);
    ++taken;
  }
  return text;
}

}  // namespace xrpt
