#include "formulas/checks/Remedy.h"

#include "formulas/FormulaTable.h"
#include "model/RVCardConditioned.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

RVReportPage* PageOf(RVReport& report, const CardPlace& place) {
  const bool exists = place.page >= 1 && static_cast<std::size_t>(place.page) <= report.pages.size();
  return exists ? report.pages[static_cast<std::size_t>(place.page) - 1].get() : nullptr;
}

bool HasCard(const RVReportPage* page, const CardPlace& place) {
  return page && place.card >= 0 && static_cast<std::size_t>(place.card) < page->cards.Size();
}

RVCardControl* CardAt(RVReportPage& page, const CardPlace& place) {
  RVCardControl& card = page.cards.Edit(static_cast<std::size_t>(place.card));
  if (place.inner < 0) return &card;
  auto* outer = dynamic_cast<RVCardConditioned*>(&card);
  const auto inner = static_cast<std::size_t>(place.inner);
  return outer && inner < outer->cards.size() ? outer->cards[inner].get() : nullptr;
}

void RemoveFormula(RVReport& report, const std::wstring& name) {
  FormulaTable formulas = ReadFormulas(report.formules);
  std::erase_if(formulas, [&name](const Formula& formula) { return formula.name == name; });
  report.formules = FormulasDocument(kFormulesRoot, formulas);
}

bool SetField(RVCardControl& card, const Change& change) {
  const CardRow* row = FindField(card.GetRuntimeClass().table, change.field);
  if (!row || !row->assign) return false;
  row->assign(card, ToUtf8(change.value));
  return true;
}

bool ApplyToCard(RVReportPage& page, const CardPlace& place, const Change& change) {
  if (change.kind == Change::Kind::MoveToFront) {
    page.cards.MoveToFront({static_cast<std::size_t>(place.card)});
    return true;
  }
  RVCardControl* card = CardAt(page, place);
  if (!card) return false;
  if (change.kind == Change::Kind::SetField) return SetField(*card, change);
  card->InitializeId();
  return true;
}

}  // namespace

bool ApplyRemedy(RVReport& report, const Finding& finding) {
  bool done = false;
  for (const Change& change : finding.remedy.changes) {
    RVReportPage* page = PageOf(report, finding.place);
    if (change.kind == Change::Kind::RemoveFormula) {
      RemoveFormula(report, change.value);
      done = true;
    } else if (HasCard(page, finding.place)) {
      done = ApplyToCard(*page, finding.place, change) || done;
    }
  }
  return done;
}

}  // namespace xrpt
