// Finding and replacing as the editor's window offers it: over the page that is shown or the whole report, formulas
// included, with every match in a list. One match is the current one; what goes on from it looks past what was just
// replaced.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "formulas/ReportTexts.h"

namespace xrpt {

class RVEditControlWnd;

class ReportSearch {
 public:
  // The frame must outlive the search.
  explicit ReportSearch(RVEditControlWnd& frame) : frame_(frame) {}

  // What is looked for. A change takes effect with `Restart`.
  std::wstring text;
  std::wstring replacement;
  bool matchCase = false;
  bool wholeReport = false;  // else the cards of the page that is shown

  // Looks through the texts anew, from the first card of the page that is shown.
  void Restart();
  // The same after the report or the shown page changed: the current match stays current where it is still there. False
  // when everything is as it was.
  bool Refresh();

  const std::vector<SearchHit>& Hits() const { return hits_; }
  // Its place in the list; nothing when none was gone to, or it is no more.
  std::optional<std::size_t> Current() const { return current_; }

  // Goes to the match behind or before the current one, round the end. False without matches.
  bool Next();
  bool Previous();
  // Makes a match the current one: its page is shown and its card picked. One in a formula changes nothing to see.
  bool GoTo(std::size_t hit);

  // Replaces the current match; true when it was. The next one is gone to by `Next`.
  bool Replace();
  // What replacing everything would come to.
  std::vector<TextChange> Preview() const;
  // Carries out those of them that the user chose, as one step. How many matches were replaced.
  std::size_t ReplaceAll(const std::vector<TextChange>& chosen);

 private:
  // Where the search stands in the report.
  struct Spot {
    TextPlace place;
    std::size_t position = 0;
    auto operator<=>(const Spot&) const = default;
  };
  static Spot SpotOf(const SearchHit& hit) { return {hit.place, hit.position}; }

  bool IsInScope(const TextPlace& place) const;
  void FindCurrent();
  std::size_t FirstFrom(const Spot& spot) const;
  bool ReplaceInFormula(const SearchHit& hit);

  RVEditControlWnd& frame_;
  std::vector<SearchHit> hits_;
  std::optional<std::size_t> current_;
  Spot spot_;
};

}  // namespace xrpt
