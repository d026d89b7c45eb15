// Finds a pattern in texts, from left to right; matches never overlap. Made once for a search and used for every text,
// in time that grows with the text alone, whatever pattern and text are.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace xrpt {

class TextFinder {
 public:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);
  // Replacing never makes a text longer than this, in characters.
  static constexpr std::size_t kLongestText = std::size_t{1} << 24;

  TextFinder(std::wstring_view pattern, bool matchCase);

  // An empty pattern is found nowhere.
  bool IsEmpty() const { return pattern_.empty(); }
  std::size_t Length() const { return pattern_.size(); }
  bool MatchCase() const { return matchCase_; }

  // The first match at `from` or behind, counted in characters; kNone without one.
  std::size_t Find(std::wstring_view text, std::size_t from = 0) const;
  std::vector<std::size_t> FindAll(std::wstring_view text) const;
  bool IsAt(std::wstring_view text, std::size_t position) const;
  // The text with a replacement for every match; nothing without a match, and for a text that would become too long.
  std::optional<std::wstring> Replaced(std::wstring_view text, std::wstring_view replacement) const;

 private:
  wchar_t Folded(wchar_t c) const;

  std::wstring pattern_;             // as it is compared
  std::vector<std::size_t> border_;  // how much of the pattern's first characters ends at each of them, too
  bool matchCase_;
};

}  // namespace xrpt
