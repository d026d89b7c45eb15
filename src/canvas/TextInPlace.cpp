#include "canvas/TextInPlace.h"

#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"
#include "model/RVCardLabel.h"
#include "model/draw/DrawScale.h"

namespace xrpt {
namespace {

// Dates and formulas show what they work out; only a plain label shows what it says.
bool SaysItsText(const RVCardControl& card) { return &card.GetRuntimeClass() == &RVCardLabel::Class(); }

}  // namespace

std::optional<TextInPlace> RVEditTemplateWnd::EditableText() const {
  const PagePlacement place = Placement();
  if (!options_.editsInPlace || selection_.Size() != 1 || !place.IsValid()) return std::nullopt;
  const std::size_t index = page_.cards.IndexOf(selection_.Entries().front().key);
  if (index == CardList::kNowhere || !SaysItsText(page_.cards[index])) return std::nullopt;
  const auto& label = static_cast<const RVCardLabel&>(page_.cards[index]);
  const DrawScale scale = ScaleOf(MakeDraw(port_.ClientRect()));
  TextInPlace text;
  text.card = label.Key();
  text.text = label.text;
  text.rect = ToPixels(place, RectOf(label));
  text.font = label.font;
  text.pixelSize = PageFont(label.font, scale).size * scale.y;
  text.color = label.color;
  text.ground = label.backcolor == kNoColor ? kWhite : label.backcolor;
  text.horizontalAlign = label.horizontalAlign;
  text.verticalAlign = label.verticalAlign;
  return text;
}

bool RVEditTemplateWnd::SetTextOf(CardKey card, const std::wstring& words) {
  const std::size_t index = page_.cards.IndexOf(card);
  if (index == CardList::kNowhere || !SaysItsText(page_.cards[index])) return false;
  PageEdit edit = Edit({text::kChangeField, 1, text::kText}, "text in place");
  static_cast<RVCardLabel&>(edit.Card(index)).text = words;
  return edit.End();
}

}  // namespace xrpt
