// The mouse machine: a press starts a gesture, moves carry it on, the release ends it (GestureEnds.cpp says how).
#include "canvas/DragRules.h"
#include "canvas/Handles.h"
#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"

namespace xrpt {

// --- Press ---

void RVEditTemplateWnd::OnLButtonDown(Point point, MouseFlags flags) {
  point = Bounded(point);
  EndEdit();
  DropGesture();
  if (preview_) return port_.SetFocus();
  const Grip grip = GripAt(point, flags.alt);
  const HitCard& hit = grip.hit;
  gesture_.hovered = hit.card ? hit.card->Key() : 0;
  const bool wasSelected = hit.card && selection_.IsSelected(*hit.card);
  const bool keeps = flags.control || flags.shift;
  // The pointer tool on empty page leaves the selection to the rubber band.
  if (!keeps && !wasSelected && (hit.card || insertKind_ != tool::kPointer)) ClearSelection();
  if (hit.card) {
    selection_.AddSelection(*hit.card);
    SelectGroups();
    StartOnCard(grip, wasSelected, point, flags);
  } else if (!StartOnPage(point, flags)) {
    return port_.Invalidate();
  }
  StartGesture();
}

// Where an insert tool is in hand and works anywhere, cards are in nobody's way.
bool RVEditTemplateWnd::DrawsOverCards() const {
  return options_.placesByClick && insertKind_ != tool::kPointer && Supports(insertKind_);
}

RVEditTemplateWnd::Grip RVEditTemplateWnd::GripAt(Point point, bool alt) const {
  if (preview_ || DrawsOverCards()) return {};
  if (alt && options_.altCopies) {
    const HitCard selected = SelectedCardAt(point);
    if (selected.card) return {selected, kMoveAll};
  }
  Grip grip = HandleGripAt(point);
  if (grip.hit.card) return grip;
  grip.hit = CardUnder(point);
  if (grip.hit.card) grip.style = StyleInside(grip.hit, point);
  return grip;
}

// A visible handle, on whichever side of the card's edge; that of the card selected last first.
RVEditTemplateWnd::Grip RVEditTemplateWnd::HandleGripAt(Point point) const {
  const PagePlacement place = Placement();
  if (!options_.showsHandles || !place.IsValid() || selection_.Size() > kMostWithHandles) return {};
  const std::vector<std::size_t> selected = ChangeableIndexes();
  for (std::size_t i = selected.size(); i-- > 0;) {
    if (selected[i] == CardList::kNowhere || !page_.cards[selected[i]].Resizable()) continue;
    const Rect rect = ToPixels(place, RectOf(page_.cards[selected[i]]));
    if (const int style = VisibleHandleAt(rect, point)) return {{&page_.cards[selected[i]], rect}, style};
  }
  return {};
}

HitCard RVEditTemplateWnd::SelectedCardAt(Point point) const {
  const PagePlacement place = Placement();
  if (!place.IsValid()) return {};
  for (const std::size_t index : SelectedIndexes()) {
    if (index == CardList::kNowhere) continue;
    const Rect rect = ToPixels(place, RectOf(page_.cards[index]));
    if (rect.Contains(point)) return {&page_.cards[index], rect};
  }
  return {};
}

int RVEditTemplateWnd::StyleInside(const HitCard& hit, Point point) const {
  if (!hit.card->Resizable()) return kNoEdge;
  const bool moves = options_.showsHandles && selection_.IsSelected(*hit.card) && IsTooSmallForBands(hit.rect);
  return moves ? kMoveAll : HandleAt(hit.rect, point);
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
  gesture_.activeCursor = pointer ? Cursor::SizeAll : DrawsOverCards() ? Cursor::Cross : Cursor::No;
  return true;
}

void RVEditTemplateWnd::StartOnCard(const Grip& grip, bool wasSelected, Point point, MouseFlags flags) {
  const int style = grip.style;
  gesture_.StartDrag(PressOnCard(wasSelected, flags.control, flags.shift), style, grip.hit.card->Key(), point,
                     SelectedParts());
  if (flags.alt && options_.altCopies && gesture_.Moves()) gesture_.MakeCopies();
  gesture_.activeCursor = CursorOfStyle(style == kNoEdge ? kMoveAll : style, Cursor::Moving);
}

// The selected cards where they lie now, in selection order.
std::vector<Gesture::Part> RVEditTemplateWnd::SelectedParts() const {
  const PagePlacement place = Placement();
  std::vector<Gesture::Part> parts;
  for (const std::size_t index : ChangeableIndexes()) {
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
  const bool makesAny = DrawsOverCards() && gesture_.Row().kind == GestureKind::Draw;
  SetCursor(makesAny ? Cursor::Cross : gesture_.DragCursor());
  port_.Invalidate();
}

bool RVEditTemplateWnd::ScrollTowards(Point pointer, DragModifiers modifiers) {
  if (!gesture_.IsRunning()) return false;
  pointer = Bounded(pointer);
  const Rect client = port_.ClientRect();
  const PagePlacement before = Placement();
  ScrollTo(viewport_.Horizontal().position + ScrollStep(pointer.x, client.left, client.right),
           viewport_.Vertical().position + ScrollStep(pointer.y, client.top, client.bottom));
  const PagePlacement after = Placement();
  const Point by{roundi(after.offsetX) - roundi(before.offsetX), roundi(after.offsetY) - roundi(before.offsetY)};
  if (by == Point()) return false;
  gesture_.Shift(by);
  gesture_.lastPoint = pointer;
  gesture_.Advance();
  gesture_.DragTo(pointer, modifiers, Ground());
  port_.Invalidate();
  return true;
}

void RVEditTemplateWnd::Hover(Point point) {
  const Grip grip = GripAt(point, false);
  const CardKey hovered = grip.hit.card ? grip.hit.card->Key() : 0;
  if (grip.hit.card) {
    gesture_.activeCursor = CursorOfStyle(grip.style == kNoEdge ? kMoveAll : grip.style, Cursor::OverCard);
  } else {
    UpdateActiveCursor();
    if (DrawsOverCards() && !preview_ && Placement().PageRect().Contains(point)) gesture_.activeCursor = Cursor::Cross;
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
  const auto add = [&](const CardRect& line) { source.targets.push_back({ToPixels(place, line), line}); };
  for (const double x : Lines().down) add({x, 0.0, 0.0, place.pageHeight});
  for (const double y : Lines().across) add({0.0, y, place.pageWidth, 0.0});
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
    const bool draws = gesture_.Row().kind == GestureKind::Draw;
    const bool madeNothing = RepositioningControl();
    selectionOnly = madeNothing || (selectionOnly && !(draws && options_.placesByClick));
    DropGesture();
    SetCursor(CardUnder(point).card ? Cursor::OverCard : Cursor::Arrow);
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
  if (kind == GestureKind::Drag && gesture_.Copies()) return {text::kCopyCards, static_cast<int>(selection_.Size())};
  if (kind != GestureKind::Drag) return {text::kSelect, 0};
  return {gesture_.Moves() ? text::kMove : text::kResize, static_cast<int>(selection_.Size())};
}

}  // namespace xrpt
