// Searching and replacing on behalf of the dialog, and changes of texts all over the report.
#include <map>

#include "canvas/UndoTexts.h"
#include "editor/EditorTexts.h"
#include "editor/RVEditControlWnd.h"
#include "formulas/ReportTexts.h"
#include "platform/SearchRequest.h"

namespace xrpt {
namespace {

using ChangesOfCard = std::map<std::size_t, std::vector<const TextChange*>>;

// By page, and there by card.
std::map<std::size_t, ChangesOfCard> Sorted(const std::vector<TextChange>& changes) {
  std::map<std::size_t, ChangesOfCard> sorted;
  for (const TextChange& change : changes) sorted[change.place.page][change.place.card].push_back(&change);
  return sorted;
}

}  // namespace

void RVEditControlWnd::OnSearchReplace(tagSearchReplace& request) {
  switch (request.command) {
    case SearchCommand::Search:
      return Search(request);
    case SearchCommand::Replace:
      replace_ = {true, request.text, request.replacement};
      request.replaced = ApplyPendingReplace() ? 1 : 0;
      return;
    case SearchCommand::ReplaceAll:
      request.replaced = ReplaceAll(request);
  }
}

// What was found on another page is forgotten when this one is searched.
void RVEditControlWnd::Search(tagSearchReplace& request) {
  EndEdits();
  const int page = static_cast<int>(current_);
  const bool anew = request.newSearch || searchPage_ != page;
  request.found = CurrentPage().SearchControl(request.text, request.matchCase, anew);
  searchPage_ = request.found ? page : -1;
}

bool RVEditControlWnd::GoToMatch(std::size_t page, std::size_t card, std::size_t match, const std::wstring& text,
                                 bool matchCase) {
  EndEdits();
  searchPage_ = -1;
  if (page >= PageCount()) return false;
  ShowPage(page);
  if (!CurrentPage().GoToMatch(card, match, text, matchCase)) return false;
  searchPage_ = static_cast<int>(page);
  return true;
}

bool RVEditControlWnd::ApplyPendingReplace() {
  if (!std::exchange(replace_.isPending, false)) return false;
  if (searchPage_ < 0 || static_cast<std::size_t>(searchPage_) >= PageCount()) return false;
  EndEdits();
  const bool replaced = Page(static_cast<std::size_t>(searchPage_)).ReplaceControl(replace_.text, replace_.replacement);
  queue_.Post(this, {Message::ReplaceFinished, {}, 0});
  return replaced;
}

std::size_t RVEditControlWnd::ReplaceAll(const tagSearchReplace& request) {
  std::size_t replaced = 0;
  ReportEdit edit = Edit({text::kReplaceAll, 0});
  for (const auto& slot : pages_) {
    replaced += slot->window->ReplaceAllControls(request.text, request.replacement, request.matchCase);
  }
  edit.End();
  port_.Tell(text::kReplaceDone);
  queue_.Post(this, {Message::ReplaceFinished, {}, 0});
  searchPage_ = -1;
  return replaced;
}

std::size_t RVEditControlWnd::ApplyChanges(const std::vector<TextChange>& changes, UndoName name) {
  auto sorted = Sorted(changes);
  FormulaTable formulas = ReadFormulas(report_.formules);
  const bool wasCircle = CheckBucles(formulas, -1) == 1;
  std::size_t changed = 0;
  for (const auto& [place, ofFormula] : sorted[TextPlace::kFormulas]) changed += ApplyToFormulas(formulas, ofFormula);
  sorted.erase(TextPlace::kFormulas);
  if (changed > 0 && !wasCircle && CheckBucles(formulas, -1) == 1) {
    port_.Tell(text::kFormulasInCircle);
    return 0;
  }
  ReportEdit edit = Edit(name);
  if (changed > 0) edit.Table(ReportTable::Formules) = FormulasDocument(kFormulesRoot, formulas);
  for (const auto& [page, cards] : sorted) {
    if (page >= PageCount()) continue;
    PageEdit onPage = edit.Page(page);
    for (const auto& [card, ofCard] : cards) {
      if (card < onPage.Page().cards.Size()) changed += ApplyToCard(onPage.Card(card), ofCard);
    }
  }
  return changed;
}

}  // namespace xrpt
