// The page window's cards and selection: inserting, finding, selecting, editing from outside.
#include <algorithm>
#include <unordered_map>

#include "canvas/ClickedCard.h"
#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"
#include "model/RVCardImage.h"
#include "model/RVCardLabel.h"
#include "model/RVCardPrimitive.h"
#include "platform/SystemNames.h"

namespace xrpt {

namespace {
constexpr double kThinContour = 0.35;  // millimetres
}

void RVEditTemplateWnd::SelectAlone(CardKey card) {
  ClearSelection();
  const std::size_t index = page_.cards.IndexOf(card);
  if (index != CardList::kNowhere) selection_.AddSelection(page_.cards[index]);
}

void RVEditTemplateWnd::SelectControls(const std::vector<std::wstring>& ids) {
  std::vector<std::size_t> places(ids.size(), CardList::kNowhere);
  std::unordered_map<std::wstring_view, std::size_t> wanted;
  for (std::size_t i = 0; i < ids.size(); ++i) wanted.emplace(ids[i], i);
  for (std::size_t i = page_.cards.Size(); i-- > 0;) {
    const auto found = wanted.find(page_.cards[i].id);
    if (found != wanted.end()) places[found->second] = i;
  }
  SelectPlaces(places);
}

void RVEditTemplateWnd::SelectPlaces(const std::vector<std::size_t>& indexes) {
  EndEdit();
  DropGesture();
  ClearSelection();
  for (const std::size_t index : indexes) {
    if (index < page_.cards.Size()) selection_.AddSelection(page_.cards[index]);
  }
  PlayTimer();
  port_.Invalidate();
}

// The mark on a card that was picked goes with it.
void RVEditTemplateWnd::ClearSelection() {
  selection_.Clear();
  picked_ = 0;
}

std::wstring RVEditTemplateWnd::SelectedCardId() const {
  return selection_.Size() == 1 ? selection_.Entries().front().id : std::wstring();
}

bool RVEditTemplateWnd::SelectControlById(std::wstring_view id) {
  picked_ = 0;
  const RVCardControl* card = page_.cards.Find(id);
  if (card) Pick(*card);
  return card != nullptr;
}

void RVEditTemplateWnd::Pick(const RVCardControl& card) {
  EndEdit();
  DropGesture();
  PauseTimer();
  SelectAlone(card.Key());
  picked_ = card.Key();
  StartTimer();
  PostChange(true);
  port_.Invalidate();
}

// Down the stack of cards at a point, and from its bottom to the top again.
void RVEditTemplateWnd::SelectBelowAt(Point point) {
  std::vector<std::size_t> stack = CardsAt(page_.cards, Placement(), point);
  std::erase_if(stack, [this](std::size_t i) { return !IsReachable(page_.cards[i]); });
  if (stack.empty()) return;
  const auto selected =
      std::find_if(stack.begin(), stack.end(), [this](std::size_t i) { return selection_.IsSelected(page_.cards[i]); });
  const bool wraps = selected == stack.end() || selected + 1 == stack.end();
  SelectAlone(page_.cards[wraps ? stack.front() : *(selected + 1)].Key());
}

bool RVEditTemplateWnd::SelectOnlyAt(Point point) {
  const HitCard hit = CardUnder(Bounded(point));
  if (!hit.card) return false;
  EndEdit();
  DropGesture();
  SelectAlone(hit.card->Key());
  AddUndoInfo(false, {text::kSelect, 0});
  PlayTimer();
  PostChange(true);
  port_.Invalidate();
  return true;
}

void RVEditTemplateWnd::SelectBelow() {
  if (selection_.Size() != 1) return;
  EndEdit();
  DropGesture();
  const Rect card = SelectedArea();
  const Point middle{(card.left + card.right) / 2, (card.top + card.bottom) / 2};
  SelectBelowAt(card.Contains(gesture_.lastPoint) ? gesture_.lastPoint : middle);
  AddUndoInfo(false, {text::kSelect, 0});
  PlayTimer();
  PostChange(true);
  port_.Invalidate();
}

// A card that is gone is not selected any more.
void RVEditTemplateWnd::DropGoneFromSelection() {
  if (selection_.IsEmpty()) return;
  const std::vector<std::size_t> indexes = SelectedIndexes();
  std::size_t next = 0;
  selection_.Retain([&](const auto&) { return indexes[next++] != CardList::kNowhere; });
}

std::vector<std::size_t> RVEditTemplateWnd::SelectedIndexes() const {
  std::vector<CardKey> keys;
  keys.reserve(selection_.Size());
  for (const RVSelection::Entry& entry : selection_.Entries()) keys.push_back(entry.key);
  return page_.cards.IndexesOf(keys);
}

std::vector<Rect> RVEditTemplateWnd::SelectedRects() const {
  if (gesture_.Row().kind == GestureKind::Drag || gesture_.Row().kind == GestureKind::Click) return gesture_.Outlines();
  const PagePlacement place = Placement();
  std::vector<Rect> rects;
  for (const std::size_t index : SelectedIndexes()) {
    rects.push_back(index == CardList::kNowhere ? Rect() : ToPixels(place, RectOf(page_.cards[index])));
  }
  return rects;
}

Rect RVEditTemplateWnd::SelectedArea() const { return RectAround(SelectedRects()); }

// --- Inserting ---

bool RVEditTemplateWnd::Supports(int kind) const {
  const InsertKindRow* row = FindInsertKind(kind);
  return row && (support_ & row->support) != 0;
}

std::unique_ptr<RVCardControl> RVEditTemplateWnd::NewCard(int kind) const {
  const InsertKindRow* row = FindInsertKind(kind);
  if (!row || !Supports(kind)) return nullptr;
  std::unique_ptr<RVCardControl> card = row->kind().Create();
  if (row->frameColor) card->color = *row->frameColor;
  if (&card->GetRuntimeClass() == &RVCardLabel::Class()) {
    static_cast<RVCardLabel&>(*card).text = HostText(kNewCaptionText);
  }
  if (options_.hintsAtCards && &card->GetRuntimeClass() == &RVCardPrimitive::Class()) {
    static_cast<RVCardPrimitive&>(*card).size = kThinContour;
    static_cast<RVCardPrimitive&>(*card).isBackTransparent = true;
  }
  return card;
}

void RVEditTemplateWnd::AddControl(double x, double y, double width, double height) {
  AddCard(insertKind_, x, y, width, height);
}

void RVEditTemplateWnd::AddCard(int kind, double x, double y, double width, double height) {
  std::unique_ptr<RVCardControl> card = NewCard(kind);
  if (!card) return;
  SetRect(*card, {x, y, width, height});
  Insert(std::move(card));
}

void RVEditTemplateWnd::AddControlAtPointer() {
  double x = 0.0, y = 0.0, width = 0.0, height = 0.0;
  GetInitialControlDimensions(x, y, width, height);
  PageEdit edit = Edit({text::kInsert, 1});
  AddControl(x, y, width, height);
  edit.EndQuietly();
}

// No step by itself: the gesture or the command that inserts is one.
void RVEditTemplateWnd::Insert(std::unique_ptr<RVCardControl> card) {
  card->SetParent(&editedPage_);
  card->InitializeId();
  if (!gesture_.Row().keepsSelection) ClearSelection();
  selection_.AddSelection(*card);
  editedPage_.cards.PushFront(std::move(card));
  StartTimer();
  queue_.Post(&parent_, {Message::CardInserted, SelectedCardId(), 0});
}

bool RVEditTemplateWnd::InsertCardAt(int kind, Point at, UndoName name,
                                     const std::function<void(RVCardControl&)>& fill) {
  const PagePlacement place = Placement();
  std::unique_ptr<RVCardControl> card = NewCard(kind);
  if (!card || !place.IsValid() || preview_) return false;
  DropGesture();
  const SizeD usual = FindInsertKind(kind)->clickedSize;
  card->width = usual.width;
  card->height = usual.height;
  fill(*card);
  const CardRect from = ToMillimetres(place, {at.x, at.y, at.x, at.y});
  SetRect(*card, ClickedCardRect({place.pageWidth, place.pageHeight}, GridOf(page_.properties),
                                 {card->width, card->height}, {from.x, from.y}));
  PageEdit edit = Edit(name);
  Insert(std::move(card));
  edit.EndQuietly();
  PostChange(false);
  return true;
}

// Wide enough for the longest line at about what letters take, and high enough for all of them.
bool RVEditTemplateWnd::InsertText(const std::wstring& words, Point at) {
  constexpr double kLetter = 2.1;  // millimetres
  constexpr double kLine = 5.0;    // millimetres
  constexpr double kMargin = 3.0;  // millimetres
  std::size_t longest = 0, lines = 1, line = 0;
  for (const wchar_t letter : words) {
    lines += letter == L'\n' ? 1 : 0;
    line = letter == L'\n' ? 0 : line + 1;
    longest = std::max(longest, line);
  }
  const double wide = std::min(static_cast<double>(longest) * kLetter + kMargin, page_.properties.width);
  return InsertCardAt(tool::kLabel, at, {text::kPasteCards, 1}, [&](RVCardControl& card) {
    static_cast<RVCardLabel&>(card).text = words;
    card.width = std::max(card.width, wide);
    card.height = std::max(card.height, static_cast<double>(lines) * kLine + kMargin);
  });
}

// --- What changed elsewhere ---

void RVEditTemplateWnd::ImagesManagerModified() {
  RVCardImage::ReLoadAllOriginalImages();
  RedrawBackground();
}

// Only the cards that look different afterwards are changed.
void RVEditTemplateWnd::StylesModified() {
  PageEdit edit = Edit({text::kStylesChanged, 0});
  for (std::size_t i = 0; i < page_.cards.Size(); ++i) {
    const std::unique_ptr<RVCardControl> updated = page_.cards[i].GetClone();
    updated->UpdateStyleFromFile();
    if (!updated->HasSameRows(page_.cards[i])) edit.Card(i).UpdateStyleFromFile();
  }
  edit.EndQuietly();
}

void RVEditTemplateWnd::PostChange(bool selectionOnly) {
  queue_.Post(&parent_, {Message::SelectionOrGeometryChanged, SelectedCardId(), selectionOnly ? 1 : 0});
}

void RVEditTemplateWnd::Refuse(int textId) { parent_.OnMessage({Message::Refused, {}, textId}); }

}  // namespace xrpt
