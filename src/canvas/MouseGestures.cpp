// The mouse machine: a press starts a gesture, moves carry it on, the release ends it (GestureEnds.cpp says how).
#include "canvas/DragRules.h"
#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"

namespace xrpt {

// --- Press ---

void RVEditTemplateWnd::OnLButtonDown(Point point, MouseFlags flags) {
  point = Bounded(point);
  EndEdit();
  DropGesture();
  const HitCard hit = CardAt(page_.cards, Placement(), point);
  gesture_.hovered = hit.card ? hit.card->Key() : 0;
  const bool wasSelected = hit.card && selection_.IsSelected(*hit.card);
  const bool keeps = flags.control || flags.shift;
  // The pointer tool on empty page leaves the selection to the rubber band.
  if (!keeps && !wasSelected && (hit.card || insertKind_ != tool::kPointer)) ClearSelection();
  if (hit.card) {
    selection_.AddSelection(*hit.card);
    StartOnCard(hit, wasSelected, point, flags);
  } else if (!StartOnPage(point, flags)) {
    return port_.Invalidate();
  }
  StartGesture();
}

// False outside the page, where nothing starts but the rubber bands of whoever wants them there.
bool RVEditTemplateWnd::StartOnPage(Point point, MouseFlags flags) {
  const PagePlacement place = Placement();
  const bool pointer = insertKind_ == tool::kPointer;
  const bool outside = place.IsValid() && !place.PageRect().Contains(point);
  if (!place.IsValid() || (outside && !(pointer && options_.bandsBesidePage))) return false;
  const GridSteps grid = outside ? GridSteps() : GridOf(page_.properties);
  gesture_.StartBand(PressOnPage(pointer, flags.control, flags.shift),
                     {SnapPixel(HorizontalAxis(place, grid), point.x), SnapPixel(VerticalAxis(place, grid), point.y)});
  gesture_.activeCursor = pointer ? Cursor::SizeAll : Cursor::No;
  return true;
}

void RVEditTemplateWnd::StartOnCard(const HitCard& hit, bool wasSelected, Point point, MouseFlags flags) {
  const int style = hit.card->Resizable() ? HandleAt(hit.rect, point) : kNoEdge;
  gesture_.StartDrag(PressOnCard(wasSelected, flags.control, flags.shift), style, hit.card->Key(), point,
                     SelectedParts());
  gesture_.activeCursor = CursorOfStyle(style == kNoEdge ? kMoveAll : style, Cursor::Moving);
}

// The selected cards where they lie now, in selection order.
std::vector<Gesture::Part> RVEditTemplateWnd::SelectedParts() const {
  const PagePlacement place = Placement();
  std::vector<Gesture::Part> parts;
  for (const std::size_t index : SelectedIndexes()) {
    if (index == CardList::kNowhere) continue;
    const RVCardControl& card = page_.cards[index];
    const Rect rect = ToPixels(place, RectOf(card));
    parts.push_back({card.Key(), rect, {rect.left, rect.top}, card.Resizable(), rect});
  }
  return parts;
}

void RVEditTemplateWnd::StartGesture() {
  marching_.phase = 0;
  PauseTimer();
  port_.SetCapture();
  SetCursor(gesture_.activeCursor);
  port_.Invalidate();
  port_.SetFocus();
}

// --- Move ---

void RVEditTemplateWnd::OnMouseMove(Point point, DragModifiers modifiers) {
  point = Bounded(point);
  if (point == gesture_.lastPoint) return;
  gesture_.lastPoint = point;
  if (!gesture_.IsRunning()) return Hover(point);
  gesture_.Advance();
  gesture_.DragTo(point, modifiers, Ground());
  SetCursor(gesture_.DragCursor());
  port_.Invalidate();
}

void RVEditTemplateWnd::Hover(Point point) {
  const HitCard hit = CardAt(page_.cards, Placement(), point);
  const CardKey hovered = hit.card ? hit.card->Key() : 0;
  if (hit.card) {
    const int style = hit.card->Resizable() ? HandleAt(hit.rect, point) : kNoEdge;
    gesture_.activeCursor = CursorOfStyle(style == kNoEdge ? kMoveAll : style, Cursor::OverCard);
  } else {
    UpdateActiveCursor();
  }
  if (gesture_.activeCursor == gesture_.shownCursor && hovered == gesture_.hovered) return;
  gesture_.hovered = hovered;
  SetCursor(gesture_.activeCursor);
  port_.Invalidate();
}

void RVEditTemplateWnd::SetCursor(Cursor cursor) {
  gesture_.shownCursor = cursor;
  port_.SetCursor(cursor);
}

GestureGround RVEditTemplateWnd::Ground() const {
  GestureGround ground{Placement(), GridOf(page_.properties), {}};
  if (smartGuides_) ground.guides = [this, place = ground.place] { return GatherGuides(place); };
  return ground;
}

// The page and the cards that can be seen and are not moved themselves; the front ones when there are very many.
GuideSource RVEditTemplateWnd::GatherGuides(const PagePlacement& place) const {
  const Rect client = port_.ClientRect();
  GuideSource source;
  source.targets.push_back({place.PageRect(), {0.0, 0.0, place.pageWidth, place.pageHeight}});
  for (std::size_t i = 0; i < page_.cards.Size() && source.targets.size() < GuideSource::kMostTargets; ++i) {
    const CardRect card = RectOf(page_.cards[i]);
    const Rect rect = ToPixels(place, card);
    const bool moves = !gesture_.Band() && selection_.IsSelected(page_.cards[i]);
    if (!moves && IsVisible(client, rect)) source.targets.push_back({rect, card});
  }
  return source;
}

// --- Release and loss ---

void RVEditTemplateWnd::OnLButtonUp(Point point) {
  point = Bounded(point);
  bool selectionOnly = gesture_.Row().selectionOnly;
  const UndoName name = GestureName();
  if (gesture_.IsRunning()) {
    if (RepositioningControl()) selectionOnly = true;
    DropGesture();
    SetCursor(CardAt(page_.cards, Placement(), point).card ? Cursor::OverCard : Cursor::Arrow);
    RedrawBackground();
    StartTimer();
  }
  AddUndoInfo(false, name);
  PostChange(selectionOnly);
}

// The state goes first: letting go of the capture tells the window that it
// lost it.
void RVEditTemplateWnd::DropGesture() {
  if (!gesture_.IsRunning()) return;
  gesture_.End();
  port_.ReleaseCapture();
}

// Cancels a running gesture: no geometry is written, and the selection goes.
void RVEditTemplateWnd::OnCaptureChanged() {
  if (!gesture_.IsRunning()) return;
  DropGesture();
  ClearSelection();
  AddUndoInfo(false, {text::kSelect, 0});
  StartTimer();
  UpdateActiveCursor();
  SetCursor(gesture_.activeCursor);
  RedrawBackground();
  PostChange(true);
}

UndoName RVEditTemplateWnd::GestureName() const {
  const GestureKind kind = gesture_.Row().kind;
  if (kind == GestureKind::Draw) return {text::kInsert, 1};
  if (kind != GestureKind::Drag) return {text::kSelect, 0};
  return {gesture_.Moves() ? text::kMove : text::kResize, static_cast<int>(selection_.Size())};
}

}  // namespace xrpt
