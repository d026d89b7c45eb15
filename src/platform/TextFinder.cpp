#include "platform/TextFinder.h"

#include "platform/Characters.h"

namespace xrpt {

TextFinder::TextFinder(std::wstring_view pattern, bool matchCase)
    : pattern_(matchCase ? std::wstring(pattern) : FoldCase(pattern)), border_(pattern.size()), matchCase_(matchCase) {
  std::size_t matched = 0;
  for (std::size_t at = 1; at < pattern_.size(); ++at) {
    while (matched > 0 && pattern_[at] != pattern_[matched]) matched = border_[matched - 1];
    if (pattern_[at] == pattern_[matched]) ++matched;
    border_[at] = matched;
  }
}

wchar_t TextFinder::Folded(wchar_t c) const { return matchCase_ ? c : FoldCase(c); }

std::size_t TextFinder::Find(std::wstring_view text, std::size_t from) const {
  if (IsEmpty()) return kNone;
  std::size_t matched = 0;
  for (std::size_t at = from; at < text.size(); ++at) {
    const wchar_t c = Folded(text[at]);
    while (matched > 0 && c != pattern_[matched]) matched = border_[matched - 1];
    if (c == pattern_[matched]) ++matched;
    if (matched == pattern_.size()) return at + 1 - matched;
  }
  return kNone;
}

std::vector<std::size_t> TextFinder::FindAll(std::wstring_view text) const {
  std::vector<std::size_t> found;
  for (std::size_t at = Find(text); at != kNone; at = Find(text, at + Length())) found.push_back(at);
  return found;
}

bool TextFinder::IsAt(std::wstring_view text, std::size_t position) const {
  return position <= text.size() && Find(text.substr(position, Length())) == 0;
}

std::optional<std::wstring> TextFinder::Replaced(std::wstring_view text, std::wstring_view replacement) const {
  const std::vector<std::size_t> found = FindAll(text);
  if (found.empty()) return std::nullopt;
  const std::size_t kept = text.size() - found.size() * Length();
  if (kept + replacement.size() > kLongestText || replacement.size() > (kLongestText - kept) / found.size()) {
    return std::nullopt;
  }
  std::wstring replaced;
  replaced.reserve(kept + found.size() * replacement.size());
  std::size_t done = 0;
  for (const std::size_t at : found) {
    replaced.append(text, done, at - done).append(replacement);
    done = at + Length();
  }
  return replaced.append(text, done);
}

}  // namespace xrpt
