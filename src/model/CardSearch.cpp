// The search hooks of a card: the matches found in its texts, and which of them is the current one.
#include "model/CardTexts.h"

namespace xrpt {

// Texts are told by their place among the card's texts, so that matches stay good in a copy of the card.
struct CardMatches {
  struct Match {
    std::uint32_t text = 0;
    std::uint32_t position = 0;
    bool replaced = false;
  };
  std::vector<Match> list;
  std::int32_t current = -1;
  bool matchCase = false;

  bool Has(std::int32_t index) const { return index >= 0 && static_cast<std::size_t>(index) < list.size(); }
};

namespace {

constexpr std::uint32_t kLongest = std::numeric_limits<std::uint32_t>::max();

void AddMatches(CardMatches& matches, std::uint32_t place, std::wstring_view text, const TextFinder& finder) {
  for (const std::size_t at : finder.FindAll(text)) {
    if (at < kLongest) matches.list.push_back({place, static_cast<std::uint32_t>(at)});
  }
}

// The later matches of the same text move along. Differences are counted round: a shorter replacement moves them to the
// left.
void Shift(CardMatches& matches, std::size_t index, std::size_t by) {
  const std::uint32_t text = matches.list[index].text;
  for (std::size_t i = index + 1; i < matches.list.size() && matches.list[i].text == text; ++i) {
    matches.list[i].position += static_cast<std::uint32_t>(by);
  }
}

// Visits the searched texts with their places.
template <class Card, class Visit>
void ForEachSearched(Card& card, const Visit& visit) {
  std::uint32_t place = 0;
  ForEachText(card, [&](const auto& text) {
    if (IsSearched(text.row.role)) visit(place, text);
    ++place;
  });
}

}  // namespace

std::size_t CountMatches(const RVCardControl& card, const TextFinder& finder) {
  std::size_t count = 0;
  ForEachSearched(card, [&](std::uint32_t, const CardText& text) { count += finder.FindAll(text.text).size(); });
  return count;
}

std::size_t ReplaceMatches(RVCardControl& card, const TextFinder& finder, std::wstring_view replacement) {
  std::size_t count = 0;
  ForEachSearched(card, [&](std::uint32_t, const EditedCardText& text) {
    const std::optional<std::wstring> now = finder.Replaced(text.text, replacement);
    if (!now) return;
    count += finder.FindAll(text.text).size();
    text.Assign(*now);
  });
  return count;
}

void RVCardControl::DeleteMatches::operator()(CardMatches* matches) const { delete matches; }

bool RVCardControl::CreateSearchInfo(const TextFinder& finder) const {
  ResetSearchInfo();
  CardMatches matches;
  matches.matchCase = finder.MatchCase();
  ForEachSearched(*this,
                  [&](std::uint32_t place, const CardText& text) { AddMatches(matches, place, text.text, finder); });
  if (!matches.list.empty()) search_.value.reset(new CardMatches(std::move(matches)));
  return !finder.IsEmpty();
}

bool RVCardControl::CreateSearchInfo(const std::wstring& pattern, bool matchCase) const {
  return CreateSearchInfo(TextFinder(pattern, matchCase));
}

bool RVCardControl::CreateSearchInfo(const std::wstring& text, const std::wstring& pattern, bool matchCase) const {
  const TextFinder finder(pattern, matchCase);
  if (finder.IsEmpty()) return false;
  if (!search_.value) search_.value.reset(new CardMatches());
  search_.value->matchCase = matchCase;
  ForEachSearched(*this, [&](std::uint32_t place, const CardText& own) {
    const bool isIt = own.text.data() >= text.data() && own.text.data() <= text.data() + text.size();
    if (isIt) AddMatches(*search_.value, place, own.text, finder);
  });
  return true;
}

bool RVCardControl::NextSearch() const {
  CardMatches* matches = search_.value.get();
  if (!matches) return false;
  do {
    ++matches->current;
  } while (matches->Has(matches->current) && matches->list[static_cast<std::size_t>(matches->current)].replaced);
  if (matches->Has(matches->current)) return true;
  matches->current = -1;
  return false;
}

// What was found may be there no more; then nothing is replaced.
bool RVCardControl::Replace(const std::wstring& pattern, const std::wstring& replacement, std::int32_t index, int) {
  CardMatches* matches = search_.value.get();
  if (!matches) return false;
  if (index == -1) index = matches->current;
  if (!matches->Has(index)) return false;
  CardMatches::Match& match = matches->list[static_cast<std::size_t>(index)];
  const TextFinder finder(pattern, matches->matchCase);
  bool replaced = false;
  ForEachSearched(*this, [&](std::uint32_t place, const EditedCardText& text) {
    if (replaced || place != match.text || match.replaced || !finder.IsAt(text.text, match.position)) return;
    std::wstring now(text.text);
    text.Assign(now.replace(match.position, pattern.size(), replacement));
    replaced = true;
  });
  if (!replaced) return false;
  match.replaced = true;
  Shift(*matches, static_cast<std::size_t>(index), replacement.size() - pattern.size());
  return true;
}

bool RVCardControl::ReplaceAll(const std::wstring& pattern, const std::wstring& replacement, bool matchCase) {
  ResetSearchInfo();
  return ReplaceMatches(*this, TextFinder(pattern, matchCase), replacement) > 0;
}

void RVCardControl::ResetSearchInfo() const { search_.value.reset(); }

}  // namespace xrpt
