#include "editor/ProblemCards.h"

#include "editor/RVEditControlWnd.h"
#include "editor/SelectedFields.h"
#include "formulas/checks/Remedy.h"

namespace xrpt {
namespace {

// What a remedy changes belongs to one edit of the report.
class EditDoor final : public RemedyDoor {
 public:
  EditDoor(ReportEdit& edit, std::size_t page) : edit_(edit), index_(page) {}

  CardList& Cards() override {
    if (!page_) page_.emplace(edit_.Page(index_));
    return page_->Cards();
  }
  XmlDocument& Formulas() override { return edit_.Table(ReportTable::Formules); }

 private:
  ReportEdit& edit_;
  std::size_t index_;
  std::optional<PageEdit> page_;
};

}  // namespace

std::optional<CardSpot> FindCard(const RVEditControlWnd& frame, const Problem& problem) {
  if (problem.card == 0) return std::nullopt;
  const auto& pages = frame.Report().pages;
  for (std::size_t page = 0; page < pages.size(); ++page) {
    const std::size_t card = pages[page]->cards.IndexOf(problem.card);
    if (card != CardList::kNowhere) return CardSpot{page, card};
  }
  return std::nullopt;
}

std::wstring CardTitle(const RVEditControlWnd& frame, const Problem& problem) {
  const std::optional<CardSpot> spot = FindCard(frame, problem);
  return spot ? CardCaption(frame.Report().pages[spot->page]->cards[spot->card]) : std::wstring();
}

bool ShowProblem(RVEditControlWnd& frame, const Problem& problem) {
  const std::optional<CardSpot> spot = FindCard(frame, problem);
  const auto page = static_cast<std::size_t>(problem.finding.place.page);
  if (!spot) return problem.card == 0 && page > 0 && frame.ShowPage(page - 1);
  frame.ShowPage(spot->page);
  frame.CurrentPage().SelectPlaces({spot->card});
  return true;
}

bool ApplyRemedy(RVEditControlWnd& frame, const Problem& problem) {
  const std::optional<CardSpot> spot = FindCard(frame, problem);
  ReportEdit edit = frame.Edit({problem.finding.remedy.textId, 0});
  EditDoor door(edit, spot ? spot->page : 0);
  return CarryOut(problem.finding, spot ? spot->card : CardList::kNowhere, door);
}

}  // namespace xrpt
