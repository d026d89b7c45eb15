// Searching the cards of the page: stepping from match to match, replacing one or all of them.
#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"
#include "model/CardTexts.h"

namespace xrpt {

void RVEditTemplateWnd::CreateSearchInfo(const std::wstring& pattern, bool matchCase) const {
  const TextFinder finder(pattern, matchCase);
  for (std::size_t i = 0; i < page_.cards.Size(); ++i) page_.cards[i].CreateSearchInfo(finder);
}

bool RVEditTemplateWnd::SearchControl(const std::wstring& pattern, bool matchCase, bool newSearch) {
  if (newSearch) CreateSearchInfo(pattern, matchCase);
  const std::size_t current = newSearch ? CardList::kNowhere : SearchedIndex();
  const TextFinder finder(pattern, matchCase);
  for (std::size_t i = current == CardList::kNowhere ? 0 : current; i < page_.cards.Size(); ++i) {
    const RVCardControl& card = page_.cards[i];
    // One that was changed since, or came in, is looked through now.
    if (!newSearch && !card.HasSearchInfo()) card.CreateSearchInfo(finder);
    if (finder.IsEmpty() || !card.NextSearch()) continue;
    searched_ = card.Key();
    parent_.OnMessage({Message::CardFound, card.id});
    return true;
  }
  searched_ = 0;
  return false;
}

bool RVEditTemplateWnd::GoToMatch(std::size_t index, std::size_t match, const std::wstring& pattern, bool matchCase) {
  if (index >= page_.cards.Size()) return false;
  const RVCardControl& card = page_.cards[index];
  card.CreateSearchInfo(pattern, matchCase);
  for (std::size_t step = 0; step <= match; ++step) {
    if (!card.NextSearch()) return false;
  }
  searched_ = card.Key();
  parent_.OnMessage({Message::CardFound, card.id});
  return true;
}

bool RVEditTemplateWnd::ReplaceControl(const std::wstring& pattern, const std::wstring& replacement) {
  const std::size_t index = SearchedIndex();
  if (index == CardList::kNowhere) return false;
  RVCardControl::SearchInfo matches = page_.cards[index].ReleaseSearchInfo();
  PageEdit edit = Edit({text::kReplace, 1});
  RVCardControl& card = edit.Card(index);
  card.SetSearchInfo(std::move(matches));
  return card.Replace(pattern, replacement, -1, 0);
}

std::size_t RVEditTemplateWnd::ReplaceAllControls(const std::wstring& pattern, const std::wstring& replacement,
                                                  bool matchCase) {
  const TextFinder finder(pattern, matchCase);
  PageEdit edit = Edit({text::kReplace, 0});
  std::size_t replaced = 0;
  int cards = 0;
  for (std::size_t i = 0; i < page_.cards.Size(); ++i) {
    if (CountMatches(page_.cards[i], finder) == 0) continue;
    const std::size_t inCard = ReplaceMatches(edit.Card(i), finder, replacement);
    replaced += inCard;
    cards += inCard > 0 ? 1 : 0;
  }
  edit.Rename({text::kReplace, cards});
  ForgetSearch();
  return replaced;
}

std::size_t RVEditTemplateWnd::SearchedIndex() const {
  return searched_ == 0 ? CardList::kNowhere : page_.cards.IndexOf(searched_);
}

bool RVEditTemplateWnd::SelectSearchedCard() {
  const std::size_t index = SearchedIndex();
  if (index != CardList::kNowhere) Pick(page_.cards[index]);
  return index != CardList::kNowhere;
}

// What comes back from the history may have been looked through for something else.
void RVEditTemplateWnd::ForgetSearch() {
  for (std::size_t i = 0; i < page_.cards.Size(); ++i) page_.cards[i].ResetSearchInfo();
}

// The search goes on with the next card that stays, from the last one to the first.
void RVEditTemplateWnd::PassSearchOn(const std::vector<std::size_t>& going) {
  const std::size_t from = SearchedIndex();
  if (from == CardList::kNowhere) return;
  std::vector<bool> goes(page_.cards.Size());
  for (const std::size_t index : going) goes[index] = true;
  std::size_t next = from;
  while (goes[next] && (next = (next + 1) % goes.size()) != from) {
  }
  searched_ = goes[next] ? 0 : page_.cards[next].Key();
}

}  // namespace xrpt
