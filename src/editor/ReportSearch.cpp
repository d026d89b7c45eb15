#include "editor/ReportSearch.h"

#include <algorithm>
#include <utility>

#include "canvas/UndoTexts.h"
#include "editor/RVEditControlWnd.h"
#include "platform/SearchRequest.h"

namespace xrpt {

void ReportSearch::Restart() {
  spot_ = {{frame_.CurrentPageIndex(), 0, 0}, 0};
  Refresh();
  current_.reset();
}

bool ReportSearch::Refresh() {
  const bool hadCurrent = std::exchange(current_, std::nullopt).has_value();
  std::vector<SearchHit> now = SearchReport(frame_.Report(), TextFinder(text, matchCase));
  std::erase_if(now, [this](const SearchHit& hit) { return !IsInScope(hit.place); });
  const bool isSame = std::equal(now.begin(), now.end(), hits_.begin(), hits_.end(), [](const auto& a, const auto& b) {
    return SpotOf(a) == SpotOf(b) && a.in->text == b.in->text;
  });
  hits_ = std::move(now);
  if (hadCurrent) FindCurrent();
  return !isSame;
}

bool ReportSearch::IsInScope(const TextPlace& place) const {
  return wholeReport || place.page == frame_.CurrentPageIndex();
}

std::size_t ReportSearch::FirstFrom(const Spot& spot) const {
  const auto first = std::lower_bound(hits_.begin(), hits_.end(), spot,
                                      [](const SearchHit& hit, const Spot& from) { return SpotOf(hit) < from; });
  return static_cast<std::size_t>(first - hits_.begin());
}

void ReportSearch::FindCurrent() {
  const std::size_t hit = FirstFrom(spot_);
  if (hit < hits_.size() && SpotOf(hits_[hit]) == spot_) current_ = hit;
}

bool ReportSearch::Next() {
  if (hits_.empty()) return false;
  const std::size_t next = current_ ? *current_ + 1 : FirstFrom(spot_);
  return GoTo(next < hits_.size() ? next : 0);
}

bool ReportSearch::Previous() {
  if (hits_.empty()) return false;
  const std::size_t behind = current_ ? *current_ : FirstFrom(spot_);
  return GoTo((behind == 0 ? hits_.size() : behind) - 1);
}

bool ReportSearch::GoTo(std::size_t hit) {
  if (hit >= hits_.size()) return false;
  const TextPlace place = hits_[hit].place;
  spot_ = SpotOf(hits_[hit]);
  current_ = hit;
  if (place.page == TextPlace::kFormulas) return true;
  std::size_t before = 0;  // matches of the same card
  while (before < hit && hits_[hit - before - 1].place.page == place.page &&
         hits_[hit - before - 1].place.card == place.card) {
    ++before;
  }
  return frame_.GoToMatch(place.page, place.card, before, text, matchCase);
}

bool ReportSearch::Replace() {
  if (!current_) return false;
  const SearchHit hit = hits_[*current_];
  if (hit.place.page == TextPlace::kFormulas) {
    if (!ReplaceInFormula(hit)) return false;
  } else {
    tagSearchReplace request{text, replacement, false, matchCase, SearchCommand::Replace};
    frame_.OnMessage({Message::SearchRequested, {}, 0, 0, &request});
    if (request.replaced == 0) return false;
  }
  spot_.position += replacement.size();
  Refresh();
  current_.reset();  // what stands there now was not gone to
  return true;
}

bool ReportSearch::ReplaceInFormula(const SearchHit& hit) {
  const std::wstring& before = hit.in->text;
  std::wstring after = before;
  after.replace(hit.position, text.size(), replacement);
  const TextChange change{hit.place, hit.in->owner, before, after, 1};
  return frame_.ApplyChanges({change}, {text::kReplaceAll, 0}) > 0;
}

std::vector<TextChange> ReportSearch::Preview() const {
  std::vector<TextChange> changes = PreviewReplace(frame_.Report(), TextFinder(text, matchCase), replacement);
  std::erase_if(changes, [this](const TextChange& change) { return !IsInScope(change.place); });
  return changes;
}

std::size_t ReportSearch::ReplaceAll(const std::vector<TextChange>& chosen) {
  std::size_t replaced = 0;
  if (frame_.ApplyChanges(chosen, {text::kReplaceAll, 0}) > 0) {
    for (const TextChange& change : chosen) replaced += change.matches;
  }
  Restart();
  return replaced;
}

}  // namespace xrpt
