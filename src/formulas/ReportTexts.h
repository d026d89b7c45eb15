// The texts of a whole report, formulas included: found, counted and changed. Changes are values, shown first and
// carried out by whoever holds the report's door.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "formulas/FormulaTable.h"
#include "formulas/References.h"
#include "model/CardTexts.h"
#include "model/RVReport.h"

namespace xrpt {

// Where a text stands.
struct TextPlace {
  static constexpr std::size_t kFormulas = static_cast<std::size_t>(-1);

  std::size_t page = 0;  // index; kFormulas for the table of formulas
  std::size_t card = 0;  // in the page's list; of the formula, in the table
  std::size_t text = 0;  // which of the card's texts, see model/CardTexts.h
  auto operator<=>(const TextPlace&) const = default;
};

// What people are told of it. Of a text inside a conditioned card, `id` and `tag` are the inner card's, and `cardId`
// that of the card on the page; of a formula, all ids are its name.
struct TextOwner {
  std::wstring cardId;
  std::wstring id;
  std::string tag;
  std::string field;  // name of the element that holds it
};

struct ReportText {
  TextPlace place;
  TextRole role;
  std::wstring_view text;
  const RVCardControl* card;  // on the page; null for a formula
  const RVCardControl* holder;
  const FieldRow* row;
  const Formula* formula;

  TextOwner Owner() const;
};

// Calls `visit` with each text: page after page, front card first, then the formulas.
template <class Visit>
void ForEachText(const RVReport& report, const Visit& visit) {
  for (std::size_t page = 0; page < report.pages.size(); ++page) {
    const CardList& cards = report.pages[page]->cards;
    for (std::size_t i = 0; i < cards.Size(); ++i) {
      TextPlace place{page, i, 0};
      ForEachText(cards[i], [&](const CardText& text) {
        visit(ReportText{place, text.row.role, text.text, &cards[i], &text.card, &text.row, nullptr});
        ++place.text;
      });
    }
  }
  const FormulaTable formulas = ReadFormulas(report.formules);
  for (std::size_t i = 0; i < formulas.size(); ++i) {
    visit(ReportText{
        {TextPlace::kFormulas, i, 0}, TextRole::Expression, formulas[i].text, nullptr, nullptr, nullptr, &formulas[i]});
  }
}

// A text with matches, the same for all of them.
struct FoundText {
  TextOwner owner;
  std::wstring text;
};
// One match of a search.
struct SearchHit {
  TextPlace place;
  std::size_t position = 0;  // characters from 0
  std::shared_ptr<const FoundText> in;
};
// In the order in which texts are visited.
std::vector<SearchHit> SearchReport(const RVReport& report, const TextFinder& finder);

// One text that is to become another.
struct TextChange {
  TextPlace place;
  TextOwner owner;
  std::wstring before;
  std::wstring after;
  std::size_t matches = 0;
};

std::vector<TextChange> PreviewReplace(const RVReport& report, const TextFinder& finder,
                                       const std::wstring& replacement);
// What the cards' texts become when formulas are called otherwise, one renaming after the other.
std::vector<TextChange> PreviewFormulaRenamings(const RVReport& report, const std::vector<Renaming>& renamings);
// What the texts of cards and formulas become when devices and go-back variables are.
std::vector<TextChange> PreviewSourceRenamings(const RVReport& report, const std::vector<SourceRenaming>& renamings);

// How many texts of the cards use each formula; how many of cards and formulas use each device and go-back variable.
UseCounts FormulasUsedByCards(const RVReport& report);
UseCounts SourcesUsed(const RVReport& report);

// A text that uses something.
struct TextUse {
  TextPlace place;
  TextOwner owner;
};
// Those that use the device or go-back variable of that identifier.
std::vector<TextUse> UsersOfSource(const RVReport& report, std::wstring_view id);

// Carries out the changes of one card, all of the same page and card, where the text is still what it was. How many
// texts changed.
std::size_t ApplyToCard(RVCardControl& card, const std::vector<const TextChange*>& changes);
// The same for the table of formulas.
std::size_t ApplyToFormulas(FormulaTable& formulas, const std::vector<const TextChange*>& changes);

}  // namespace xrpt
