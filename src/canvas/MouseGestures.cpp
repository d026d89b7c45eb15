// The mouse machine: a press starts a gesture, moves carry it on, the release ends it (DragGestures.cpp says how).
#include "canvas/DragRules.h"
#include "canvas/HitTest.h"
#include "canvas/InsertTools.h"
#include "canvas/MouseState.h"
#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"

namespace xrpt {

// --- Press ---

void RVEditTemplateWnd::OnLButtonDown(Point point, MouseFlags flags) {
  point = Bounded(point);
  DropGesture();
  const HitCard hit = CardAt(page_.cards, Placement(), point);
  hoverId_ = hit.card ? hit.card->id : std::wstring();
  pressedId_ = hoverId_;
  const bool wasSelected = hit.card && selection_.IsSelected(hit.card->id);
  const bool keeps = flags.control || flags.shift;
  // The pointer tool on empty page leaves the selection to the rubber band.
  if (!keeps && !wasSelected && (hit.card || insertKind_ != tool::kPointer)) ClearSelection();
  if (hit.card && !wasSelected) Select(*hit.card, hit.rect);
  RefreshRects();
  if (hit.card) {
    StartOnCard(hit.card->id, wasSelected, point, hit.rect, flags);
  } else if (!StartOnPage(point, flags)) {
    return port_.Invalidate();
  }
  StartGesture();
}

// False outside the page, where nothing starts.
bool RVEditTemplateWnd::StartOnPage(Point point, MouseFlags flags) {
  const PagePlacement place = Placement();
  if (!place.IsValid() || !place.PageRect().Contains(point)) return false;
  const bool pointer = insertKind_ == tool::kPointer;
  const GridSteps grid = GridOf(page_.properties);
  mouseState_ = PressOnPage(pointer, flags.control, flags.shift);
  selection_.StartBand(
      {SnapPixel(HorizontalAxis(place, grid), point.x), SnapPixel(VerticalAxis(place, grid), point.y)});
  selection_.draggingStyle = kRightEdge | kBottomEdge;
  activeCursor_ = pointer ? Cursor::SizeAll : Cursor::No;
  return true;
}

void RVEditTemplateWnd::StartOnCard(const std::wstring& id, bool wasSelected, Point point, const Rect& rect,
                                    MouseFlags flags) {
  const RVCardControl* card = page_.cards.Find(id);
  const int style = card && card->Resizable() ? HandleAt(rect, point) : kNoEdge;
  mouseState_ = PressOnCard(wasSelected, flags.control, flags.shift);
  selection_.draggingStyle = style;
  selection_.anchor = point;
  for (std::size_t i = 0; i < selection_.Size(); ++i) {
    const RVSelection::Entry& entry = selection_.Entries()[i];
    selection_.SetFixedPoint(i, FixedCorner(entry.rect, style, entry.fixedPoint));
  }
  activeCursor_ = CursorOfStyle(style == kNoEdge ? kMoveAll : style, Cursor::Moving);
}

void RVEditTemplateWnd::StartGesture() {
  phase_ = 0;
  PauseTimer();
  pressPoint_ = selection_.anchor;
  snaps_ = true;
  guideSource_.reset();
  guideHits_ = {};
  port_.SetCapture();
  SetCursor(activeCursor_);
  port_.Invalidate();
  port_.SetFocus();
}

// --- Move ---

void RVEditTemplateWnd::OnMouseMove(Point point, DragModifiers modifiers) {
  point = Bounded(point);
  if (point == lastPoint_) return;
  lastPoint_ = point;
  if (mouseState_ == kIdle) return Hover(point);
  mouseState_ = AfterFirstMove(mouseState_);
  DragTo(point, modifiers);
  SetNewCursor();
  port_.Invalidate();
}

void RVEditTemplateWnd::Hover(Point point) {
  const HitCard hit = CardAt(page_.cards, Placement(), point);
  const std::wstring hoverId = hit.card ? hit.card->id : std::wstring();
  const int style = hit.card && hit.card->Resizable() ? HandleAt(hit.rect, point) : kNoEdge;
  if (hit.card) {
    activeCursor_ = CursorOfStyle(style == kNoEdge ? kMoveAll : style, Cursor::OverCard);
  } else {
    UpdateActiveCursor();
  }
  if (activeCursor_ == cursor_ && hoverId == hoverId_) return;
  hoverId_ = hoverId;
  SetCursor(activeCursor_);
  port_.Invalidate();
}

void RVEditTemplateWnd::DragTo(Point point, const DragModifiers& modifiers) {
  snaps_ = !(smartGuides_ && modifiers.alt);
  guideLines_.clear();
  guideHits_ = {};
  switch (selection_.draggingStyle) {
    case kLeftEdge:
    case kRightEdge:
      return ResizeDraggingRect(point, true, false);
    case kTopEdge:
    case kBottomEdge:
      return ResizeDraggingRect(point, false, true);
    case kLeftEdge | kBottomEdge:
    case kRightEdge | kBottomEdge:
    case kLeftEdge | kTopEdge:
    case kRightEdge | kTopEdge:
      return ResizeDraggingRect(point, true, true);
    default:
      return MoveDraggingRect(smartGuides_ && modifiers.shift ? KeepAxis(pressPoint_, point) : point);
  }
}

// --- Cursor ---

void RVEditTemplateWnd::SetCursor(Cursor cursor) {
  cursor_ = cursor;
  port_.SetCursor(cursor);
}

bool RVEditTemplateWnd::IsTooSmall() const {
  const auto small = [](const Rect& r) { return r.Width() < kSmallestDragged || r.Height() < kSmallestDragged; };
  if (selection_.Band()) return small(*selection_.Band());
  const auto& entries = selection_.Entries();
  return std::any_of(entries.begin(), entries.end(), [small](const auto& entry) { return small(entry.rect); });
}

// The forbidden cursor says that letting go now would change nothing.
void RVEditTemplateWnd::SetNewCursor() {
  if (activeCursor_ == Cursor::Moving) return SetCursor(Cursor::Moving);
  if (IsDrawing(mouseState_)) return SetCursor(IsTooSmall() ? Cursor::No : Cursor::SizeNWSE);
  SetCursor(IsDraggingCards(mouseState_) && IsTooSmall() ? Cursor::No : activeCursor_);
}

// --- Release and loss ---

void RVEditTemplateWnd::OnLButtonUp(Point point) {
  point = Bounded(point);
  bool selectionOnly = ChangesSelectionOnly(mouseState_);
  const UndoName name = GestureName();
  if (mouseState_ != kIdle) {
    if (RepositioningControl()) selectionOnly = true;
    DropGesture();
    SetCursor(CardAt(page_.cards, Placement(), point).card ? Cursor::OverCard : Cursor::Arrow);
    RedrawBackground();
    StartTimer();
  }
  AddUndoInfo(false, name);
  PostChange(selectionOnly);
}

// Ends a gesture without writing anything. The state goes first: letting go of the capture tells the window that it
// lost it.
void RVEditTemplateWnd::DropGesture() {
  if (mouseState_ == kIdle) return;
  mouseState_ = kIdle;
  selection_.draggingStyle = kNoEdge;
  selection_.SetRectUndefined();
  guideLines_.clear();
  guideSource_.reset();
  port_.ReleaseCapture();
}

// Cancels a running gesture: no geometry is written, and the selection goes.
void RVEditTemplateWnd::OnCaptureChanged() {
  if (mouseState_ == kIdle) return;
  DropGesture();
  ClearSelection();
  AddUndoInfo(false, {text::kSelect, 0});
  StartTimer();
  UpdateActiveCursor();
  SetCursor(activeCursor_);
  RedrawBackground();
  PostChange(true);
}

UndoName RVEditTemplateWnd::GestureName() const {
  const int count = static_cast<int>(selection_.Size());
  if (IsDrawing(mouseState_)) return {text::kInsert, 1};
  if (!IsDraggingCards(mouseState_)) return {text::kSelect, 0};
  const bool moves = selection_.draggingStyle == kMoveAll || selection_.draggingStyle == kNoEdge;
  return {moves ? text::kMove : text::kResize, count};
}

}  // namespace xrpt
