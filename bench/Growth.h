// How the cost of something grows with the cards of a page: measured at 1,000, 10,000 and 100,000 of them. Ten times as
// many may cost a little more than ten times as much and no more.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <functional>
#include <limits>
#include <string>

namespace xrpt {

constexpr std::array<std::size_t, 3> kCardCounts = {1'000, 10'000, 100'000};
constexpr double kMostGrowth = 1.2;  // exponent
constexpr double kNoticeable = 2.0;  // milliseconds; what takes less grows as it likes
constexpr double kUnlimited = std::numeric_limits<double>::infinity();

// Of the processor: what other programs do meanwhile does not count.
inline double Milliseconds(const std::function<void()>& work) {
  const std::clock_t start = std::clock();
  work();
  return static_cast<double>(std::clock() - start) * 1000.0 / CLOCKS_PER_SEC;
}

// The best of several runs, by card count.
struct Costs {
  std::array<double, kCardCounts.size()> ms;

  Costs() { ms.fill(kUnlimited); }
  void Add(std::size_t size, double milliseconds) { ms[size] = std::min(ms[size], milliseconds); }
  double Exponent() const { return ms[2] < kNoticeable ? 0.0 : std::log10(ms[2] / std::max(ms[1], 0.01)); }
  bool AreFine(double limit) const { return Exponent() <= kMostGrowth && ms[2] <= limit; }
};

inline void PrintHead() {
  std::printf("  %-44s %9s %9s %9s   exponent\n", "milliseconds at so many cards", "1,000", "10,000", "100,000");
}

// False when it grows too fast, or takes longer with the most cards than it may.
inline bool Print(const std::string& name, const Costs& costs, double limit = kUnlimited) {
  std::printf("  %-44s %9.2f %9.2f %9.1f   %.2f%s%s\n", name.c_str(), costs.ms[0], costs.ms[1], costs.ms[2],
              costs.Exponent(), costs.Exponent() > kMostGrowth ? "  TOO STEEP" : "",
              costs.ms[2] > limit ? "  TOO LONG" : "");
  return costs.AreFine(limit);
}

}  // namespace xrpt
