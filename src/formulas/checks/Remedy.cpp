#include "formulas/checks/Remedy.h"

#include "formulas/FormulaTable.h"
#include "model/RVCardConditioned.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

bool RemoveFormula(const std::wstring& name, RemedyDoor& door) {
  FormulaTable formulas = ReadFormulas(door.Formulas());
  if (std::erase_if(formulas, [&name](const Formula& formula) { return formula.name == name; }) == 0) return false;
  door.Formulas() = FormulasDocument(kFormulesRoot, formulas);
  return true;
}

// The card itself, or the one of that place inside it; null when it holds none there.
RVCardControl* CardIn(RVCardControl& card, int inner) {
  if (inner < 0) return &card;
  auto* outer = dynamic_cast<RVCardConditioned*>(&card);
  const auto place = static_cast<std::size_t>(inner);
  return outer && place < outer->cards.size() ? outer->cards[place].get() : nullptr;
}

bool SetField(RVCardControl& card, const Change& change) {
  const CardRow* row = FindField(card.GetRuntimeClass().table, change.field);
  if (!row || !row->assign) return false;
  row->assign(card, ToUtf8(change.value));
  return true;
}

bool ChangeCard(const Finding& finding, const Change& change, std::size_t index, CardList& cards) {
  if (change.kind == Change::Kind::MoveToFront) {
    cards.MoveToFront({index});
    return true;
  }
  RVCardControl* card = CardIn(cards.Edit(index), finding.place.inner);
  if (!card) return false;
  if (change.kind == Change::Kind::SetField) return SetField(*card, change);
  card->InitializeId();
  return true;
}

}  // namespace

bool CarryOut(const Finding& finding, std::size_t card, RemedyDoor& door) {
  bool done = false;
  for (const Change& change : finding.remedy.changes) {
    if (change.kind == Change::Kind::RemoveFormula) {
      done = RemoveFormula(change.value, door) || done;
    } else if (card != CardList::kNowhere) {
      done = ChangeCard(finding, change, card, door.Cards()) || done;
    }
  }
  return done;
}

}  // namespace xrpt
