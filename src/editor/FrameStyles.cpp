// What a change of the text styles does to the report that is open: one step, whatever it reached.
#include "canvas/UndoTexts.h"
#include "editor/RVEditControlWnd.h"
#include "editor/SelectedFields.h"
#include "editor/TextStyles.h"
#include "model/RVCardConditioned.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

// Of a card and of the cards within it.
template <class Card, class Visit>
void ForEachStyledPart(Card& card, const Visit& visit) {
  if (const CardRow* row = StyleRow(card)) visit(card, *row);
  if (const auto* container = dynamic_cast<const RVCardConditioned*>(&card)) {
    for (const auto& inner : container->cards) ForEachStyledPart<Card>(*inner, visit);
  }
}

bool Uses(const RVCardControl& card, const std::wstring& style) {
  bool uses = false;
  ForEachStyledPart(card, [&](const RVCardControl& part, const CardRow& row) { uses |= row.text(part) == style; });
  return uses;
}

void Follow(PageEdit edit, const StyleRenaming& renaming) {
  const CardList& cards = edit.Page().cards;
  for (std::size_t i = 0; i < cards.Size(); ++i) {
    if (!Uses(cards[i], renaming.from)) continue;
    ForEachStyledPart(edit.Card(i), [&](RVCardControl& part, const CardRow& row) {
      if (row.text(part) == renaming.from) row.assign(part, ToUtf8(renaming.to));
    });
  }
}

}  // namespace

void RVEditControlWnd::StylesModified() { StylesModified({}); }

void RVEditControlWnd::StylesModified(const std::vector<StyleRenaming>& renamings) {
  ReportEdit edit = Edit({text::kStylesChanged, 0});
  for (std::size_t page = 0; page < pages_.size(); ++page) {
    for (const StyleRenaming& renaming : renamings) Follow(edit.Page(page), renaming);
    pages_[page]->window->StylesModified();
  }
  edit.End();
  ++resourcesSerial_;
  properties_.StylesModified();
  port_.StateChanged();
}

}  // namespace xrpt
