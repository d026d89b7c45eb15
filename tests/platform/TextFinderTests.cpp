// Finding and replacing in one text: checked against plain comparison of every place, and bounded for hostile ones.
#include <gtest/gtest.h>

#include <chrono>
#include <random>

#include "platform/Characters.h"
#include "platform/TextFinder.h"

namespace xrpt {
namespace {

using Places = std::vector<std::size_t>;

Places ByHand(std::wstring text, std::wstring pattern, bool matchCase) {
  if (!matchCase) text = FoldCase(text), pattern = FoldCase(pattern);
  Places places;
  for (std::size_t at = text.find(pattern); at != text.npos; at = text.find(pattern, at + pattern.size())) {
    places.push_back(at);
  }
  return places;
}

TEST(TextFinder, FindsWhatComparingEveryPlaceFinds) {
  std::mt19937 random(1);
  const auto word = [&random](std::size_t most) {
    std::wstring text;
    for (std::size_t left = 1 + random() % most; left > 0; --left) text += L"aAbBñÑσΣς"[random() % 9];
    return text;
  };
  for (int round = 0; round < 20000; ++round) {
    const std::wstring text = word(24);
    const std::wstring pattern = word(4);
    const bool matchCase = random() % 2 == 0;
    ASSERT_EQ(TextFinder(pattern, matchCase).FindAll(text), ByHand(text, pattern, matchCase));
  }
}

TEST(TextFinder, MatchesDoNotOverlapAndAnEmptyPatternHasNone) {
  EXPECT_EQ(TextFinder(L"aa", true).FindAll(L"aaaa"), (Places{0, 2}));
  EXPECT_TRUE(TextFinder(L"", true).FindAll(L"aaaa").empty());
  EXPECT_EQ(TextFinder(L"aa", false).Replaced(L"xaAay", L"<>"), L"x<>ay");
  EXPECT_EQ(TextFinder(L"b", true).Replaced(L"aaaa", L"c"), std::nullopt);
}

TEST(TextFinder, HostileTextsCostNoMoreThanTheirLength) {
  const std::wstring text(2'000'000, L'a');
  const auto start = std::chrono::steady_clock::now();
  EXPECT_TRUE(TextFinder(std::wstring(500'000, L'a') + L"b", false).FindAll(text).empty());
  EXPECT_EQ(TextFinder(L"a", true).Replaced(text, std::wstring(100, L'b')), std::nullopt) << "too long to become";
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

}  // namespace
}  // namespace xrpt
