// The page window's cards and selection: inserting, finding, selecting, editing from outside.
#include <unordered_map>

#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"
#include "model/RVCardImage.h"
#include "model/RVCardLabel.h"
#include "platform/SystemNames.h"

namespace xrpt {

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
