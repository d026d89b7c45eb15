#include "editor/MeantCards.h"

#include "canvas/KeepOnPage.h"
#include "canvas/RVEditTemplateWnd.h"
#include "editor/RVEditControlWnd.h"
#include "editor/SelectedFields.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardImage.h"

namespace xrpt {
namespace {

const RVCardControl* ShownBy(const RVCardControl& card) {
  const auto* container = dynamic_cast<const RVCardConditioned*>(&card);
  return container ? container->Shown() : nullptr;
}

void ChangeShown(RVCardControl& card, const std::function<void(RVCardControl&)>& change) {
  auto& container = static_cast<RVCardConditioned&>(card);
  change(*container.cards[static_cast<std::size_t>(container.current)]);
}

void ChangeOnPage(RVCardControl& card, const RVGlobalProperties& page,
                  const std::function<void(RVCardControl&)>& change) {
  const CardRect before = RectOf(card);
  change(card);
  if (RectOf(card) != before) SetRect(card, KeepOnPage(RectOf(card), before, {page.width, page.height}));
}

}  // namespace

std::vector<const RVCardControl*> MeantCards(const RVEditControlWnd& frame, FieldsOf whose) {
  const RVEditTemplateWnd& page = frame.CurrentPage();
  const std::vector<std::size_t> selected = SelectedIndexes(page);
  std::vector<const RVCardControl*> cards;
  if (whose == FieldsOf::Background && selected.empty()) cards.push_back(&page.Page().properties.Background());
  if (whose == FieldsOf::Selection) {
    for (const std::size_t index : selected) cards.push_back(&page.Page().cards[index]);
  }
  if (whose == FieldsOf::Alternative && selected.size() == 1) {
    if (const RVCardControl* shown = ShownBy(page.Page().cards[selected.front()])) cards.push_back(shown);
  }
  return cards;
}

const RVCardControl* MeantCard(const RVEditControlWnd& frame, FieldsOf whose) {
  const std::vector<const RVCardControl*> cards = MeantCards(frame, whose);
  return cards.size() == 1 ? cards.front() : nullptr;
}

void ChangeMeant(RVEditControlWnd& frame, FieldsOf whose, const UndoName& name, const JoinKey& joins,
                 const std::function<void(RVCardControl&)>& change) {
  if (MeantCards(frame, whose).empty()) return;
  RVEditTemplateWnd& page = frame.CurrentPage();
  const std::vector<std::size_t> selected = SelectedIndexes(page);
  PageEdit edit = page.Edit(name, joins);
  if (whose == FieldsOf::Background) change(edit.Properties().Background());
  for (const std::size_t index : selected) {
    if (whose == FieldsOf::Alternative) {
      ChangeShown(edit.Card(index), change);
    } else {
      ChangeOnPage(edit.Card(index), page.Page().properties, change);
    }
  }
}

}  // namespace xrpt
