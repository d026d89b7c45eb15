// The page window's cards and selection: inserting, finding, selecting, editing from outside.
#include "canvas/HitTest.h"
#include "canvas/InsertKinds.h"
#include "canvas/MouseState.h"
#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"
#include "model/RVCardImage.h"
#include "model/RVCardLabel.h"
#include "platform/SystemNames.h"

namespace xrpt {
namespace {

Point TopLeft(const Rect& rect) { return {rect.left, rect.top}; }

}  // namespace

void RVEditTemplateWnd::Select(const RVCardControl& card, const Rect& rect) {
  selection_.AddSelection(rect, TopLeft(rect), card.id, card.Resizable());
}

void RVEditTemplateWnd::SelectAlone(const std::wstring& id) {
  ClearSelection();
  const RVCardControl* card = page_.cards.Find(id);
  if (card) Select(*card, ToPixels(Placement(), RectOf(*card)));
}

void RVEditTemplateWnd::SelectControls(const std::vector<std::wstring>& ids) {
  DropGesture();
  ClearSelection();
  const PagePlacement place = Placement();
  for (const std::wstring& id : ids) {
    const RVCardControl* card = page_.cards.Find(id);
    if (card && !selection_.IsSelected(id)) Select(*card, ToPixels(place, RectOf(*card)));
  }
  PlayTimer();
  port_.Invalidate();
}

void RVEditTemplateWnd::ClearSelection() { selection_.Clear(); }

std::wstring RVEditTemplateWnd::SelectedCardId() const {
  return selection_.Size() == 1 ? selection_.Entries().front().id : std::wstring();
}

bool RVEditTemplateWnd::SelectControlById(std::wstring_view id) {
  pickedId_.clear();
  const RVCardControl* card = page_.cards.Find(id);
  if (!card) return false;
  DropGesture();
  PauseTimer();
  SelectAlone(card->id);
  pickedId_ = card->id;
  StartTimer();
  PostChange(true);
  port_.Invalidate();
  return true;
}

// Cards move by align, undo, zoom and scroll while they are selected; a gesture starts where they are now. A card that
// is gone is not selected any more.
void RVEditTemplateWnd::RefreshRects() {
  const PagePlacement place = Placement();
  const std::vector<std::size_t> indexes = SelectedIndexes();
  for (std::size_t i = 0; i < indexes.size(); ++i) {
    if (indexes[i] != CardList::kNowhere) selection_.SetRect(i, ToPixels(place, RectOf(page_.cards[indexes[i]])));
  }
  std::size_t next = 0;
  selection_.Retain([&](const auto&) { return indexes[next++] != CardList::kNowhere; });
}

void RVEditTemplateWnd::UpdateRect(std::wstring_view id, const Rect& rect) {
  const int index = selection_.Find(id);
  if (index >= 0) selection_.SetRect(static_cast<std::size_t>(index), rect);
}

std::vector<std::size_t> RVEditTemplateWnd::SelectedIndexes() const {
  std::vector<std::size_t> indexes(selection_.Size(), CardList::kNowhere);
  std::size_t wanted = indexes.size();
  for (std::size_t card = 0; card < page_.cards.Size() && wanted > 0; ++card) {
    const int entry = selection_.Find(page_.cards[card].id);
    if (entry < 0 || indexes[static_cast<std::size_t>(entry)] != CardList::kNowhere) continue;
    indexes[static_cast<std::size_t>(entry)] = card;
    --wanted;
  }
  return indexes;
}

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
  AddControl(x, y, width, height);
  RedrawBackground();
  AddUndoInfo(false, {text::kInsert, 1});
}

void RVEditTemplateWnd::Insert(std::unique_ptr<RVCardControl> card) {
  card->SetParent(&page_);
  card->InitializeId();
  if (mouseState_ != kDrawCardCtrl) ClearSelection();
  const Rect drawn = selection_.Band().value_or(ToPixels(Placement(), RectOf(*card)));
  selection_.AddSelection(drawn, selection_.anchor, card->id, card->Resizable());
  page_.cards.PushFront(std::move(card));
  StartTimer();
  queue_.Post(&parent_, {Message::CardInserted, SelectedCardId(), 0});
}

// --- Changes from outside ---

void RVEditTemplateWnd::CommitEdit(UndoName name) {
  if (name.textId == 0) name = {text::kChange, static_cast<int>(std::max<std::size_t>(1, selection_.Size()))};
  RedrawBackground();
  AddUndoInfo(false, name);
  queue_.Post(&parent_, {Message::CardChanged, SelectedCardId(), 0});
}

void RVEditTemplateWnd::CommitPageEdit() {
  const RVGlobalProperties& before = history_.Newest().Page();
  const bool resized = before.width != page_.properties.width || before.height != page_.properties.height;
  if (resized && zoom_ < 0.0) SetMode(0);
  InitializeScrollBars(false);
  RedrawBackground();
  AddUndoInfo(false, {text::kChangePage, 0});
  queue_.Post(&parent_, {Message::CardChanged, {}, 0});
}

void RVEditTemplateWnd::ImagesManagerModified() {
  RVCardImage::ReLoadAllOriginalImages();
  RedrawBackground();
}

void RVEditTemplateWnd::StylesModified() {
  for (std::size_t i = 0; i < page_.cards.Size(); ++i) page_.cards.Edit(i).UpdateStyleFromFile();
  RedrawBackground();
}

void RVEditTemplateWnd::PostChange(bool selectionOnly) {
  queue_.Post(&parent_, {Message::SelectionOrGeometryChanged, SelectedCardId(), selectionOnly ? 1 : 0});
}

}  // namespace xrpt
