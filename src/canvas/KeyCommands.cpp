// Keys and the context menu.
#include <algorithm>
#include <cmath>

#include "canvas/DragRules.h"
#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"

namespace xrpt {
namespace {

// Commands of the popup menu, by the numbers hosts know them by.
enum MenuCommand : int {
  kDelete = 415,
  kCopy = 57634,
  kCut = 57635,
  kFind = kFindCommand,
  kPaste = 57637,
  kReplace = kReplaceCommand,
  kSelectAll = 57642,
  kUndo = 57643,
  kFirstToolbar = 800,
  kLastToolbar = 850,
};

bool IsArrow(int code) { return code >= key::Left && code <= key::Down; }

Point Direction(int code) {
  switch (code) {
    case key::Left:
      return {-1, 0};
    case key::Up:
      return {0, -1};
    case key::Right:
      return {1, 0};
    default:
      return {0, 1};
  }
}

}  // namespace

void RVEditTemplateWnd::OnKeyDown(int code, MouseFlags flags, long long keyFlags) {
  if (code == key::Escape) return KeyProcessESC(keyFlags);
  flags.control = flags.control || port_.IsControlDown();
  if (code == key::Delete) return ControlDelete();
  if (IsArrow(code) && !selection_.IsEmpty()) {
    return flags.alt && options_.altCopies ? MoveFinely(code) : MoveByKey(code, flags.control);
  }
  if (flags.control && OnControlKey(code, flags.shift)) return;
  parent_.OnMessage({Message::KeyDown, {}, keyFlags, code});
}

// False for a key that is the parent's; undo keys are where they mean the whole report.
bool RVEditTemplateWnd::OnControlKey(int code, bool shift) {
  if (options_.reportHistory && (code == 'Z' || code == 'Y')) return false;
  switch (code) {
    case 'C':
      ControlCopy();
      return true;
    case 'V':
      ControlPaste();
      return true;
    case 'X':
      ControlCut();
      return true;
    case 'Z':
      shift ? ControlRedo() : ControlUndo();
      return true;
    case 'Y':
      ControlRedo();
      return true;
    case 'E':
      ControlSelectAll();
      return true;
    case 'F':
      OnControlSearch();
      return true;
    case 'H':
      OnControlReplace();
      return true;
    default:
      return false;
  }
}

void RVEditTemplateWnd::KeyProcessESC(long long keyFlags) {
  parent_.OnMessage({Message::KeyDown, {}, keyFlags, key::Escape});
}

// A key press runs as a whole gesture, so that page and grid bind as for the mouse.
void RVEditTemplateWnd::MoveByKey(int code, bool control) {
  const PagePlacement place = Placement();
  if (!place.IsValid() || gesture_.IsRunning()) return;
  const GridSteps grid = GridOf(page_.properties);
  const Point direction = Direction(code);
  gesture_.StartDrag(kDragCard, kMoveAll, 0, {}, SelectedParts());
  const Rect all = gesture_.GlobalRect();
  const Point from{(all.left + all.right) / 2, (all.top + all.bottom) / 2};
  gesture_.StartDrag(kDragCard, kMoveAll, 0, from, SelectedParts());
  gesture_.shownCursor = Cursor::Moving;
  gesture_.DragTo({from.x + direction.x * ArrowStep(HorizontalAxis(place, grid), control),
                   from.y + direction.y * ArrowStep(VerticalAxis(place, grid), control)},
                  {}, {place, grid, {}});
  RepositioningControl();
  gesture_.End();
  RedrawBackground();
  PostChange(false);
  Hover(port_.CursorPosition());
  AddUndoInfo(false, {text::kMove, static_cast<int>(selection_.Size())});
}

// By a tenth of a millimetre, whatever grid and zoom; all together stay on the page. Moves that follow each other are
// one step.
void RVEditTemplateWnd::MoveFinely(int code) {
  constexpr double kFine = 0.1;
  if (gesture_.IsRunning()) return;
  std::vector<std::size_t> indexes = ChangeableIndexes();
  std::erase(indexes, CardList::kNowhere);
  const RVGlobalProperties& page = page_.properties;
  const Point direction = Direction(code);
  const bool fits = std::all_of(indexes.begin(), indexes.end(), [&](std::size_t index) {
    const CardRect card = RectOf(page_.cards[index]);
    const double x = card.x + direction.x * kFine, y = card.y + direction.y * kFine;
    return (x >= 0.0 || direction.x >= 0) && (y >= 0.0 || direction.y >= 0) &&
           (x + card.width <= page.width || direction.x <= 0) && (y + card.height <= page.height || direction.y <= 0);
  });
  if (!fits) return;
  PageEdit edit = Edit({text::kMove, static_cast<int>(selection_.Size())}, "finely");
  for (const std::size_t index : indexes) {
    RVCardControl& card = edit.Card(index);
    card.x = std::round((card.x + direction.x * kFine) * 1e4) / 1e4;
    card.y = std::round((card.y + direction.y * kFine) * 1e4) / 1e4;
  }
  edit.EndQuietly();
  PostChange(false);
}

// --- The context menu ---

void RVEditTemplateWnd::OnRButtonUp(Point point) {
  EndEdit();
  if (options_.rightClickSelects) SelectUnder(point);
  PauseTimer();
  gesture_.hovered = 0;
  const tagEditMenuState state = EditMenuState();
  const MenuItem separator;
  const bool isToolbarShown = toolbar_.isShown && toolbar_.isShown();
  port_.TrackPopupMenu({{kCut, 32379, state.cut, false, {}},
                        {kCopy, 732, state.copy, false, {}},
                        {kPaste, 742, state.paste, false, {}},
                        {kUndo, 33962, state.undo, false, {}},
                        separator,
                        {kDelete, 734, state.delete_, false, {}},
                        {kSelectAll, 33845, state.selectAll, false, {}},
                        {kFind, 218, true, false, {}},
                        {kReplace, 34893, true, false, {}},
                        separator,
                        {0, 32526, true, false, {{kFirstToolbar, toolbar_.textId, true, isToolbarShown, {}}}}},
                       point);
  PlayTimer();
}

// What the menu's commands work on is what was clicked.
void RVEditTemplateWnd::SelectUnder(Point point) {
  const HitCard hit = CardUnder(Bounded(point));
  if (!hit.card || preview_ || selection_.IsSelected(*hit.card) || gesture_.IsRunning()) return;
  SelectAlone(hit.card->Key());
  SelectGroups();
  AddUndoInfo(false, {text::kSelect, 0});
  PostChange(true);
  port_.Invalidate();
}

bool RVEditTemplateWnd::OnCommand(int command) {
  EndEdit();
  switch (command) {
    case kCopy:
      ControlCopy();
      return true;
    case kPaste:
      ControlPaste();
      return true;
    case kCut:
      ControlCut();
      return true;
    case kSelectAll:
      ControlSelectAll();
      return true;
    case kDelete:
      ControlDelete();
      return true;
    case kUndo:
      ControlUndo();
      return true;
    case kFind:
      OnControlSearch();
      return true;
    case kReplace:
      OnControlReplace();
      return true;
    default:
      return ToggleToolbar(command - kFirstToolbar);
  }
}

void RVEditTemplateWnd::OnControlSearch() { parent_.OnMessage({Message::Command, {}, kFind}); }

void RVEditTemplateWnd::OnControlReplace() { parent_.OnMessage({Message::Command, {}, kReplace}); }

bool RVEditTemplateWnd::ToggleToolbar(int toolbar) {
  if (toolbar < 0 || toolbar > kLastToolbar - kFirstToolbar || !toolbar_.toggle) return false;
  toolbar_.toggle(toolbar);
  return true;
}

void RVEditTemplateWnd::GetEditMenuState(tagEditMenuState& state) const { state = EditMenuState(); }

tagEditMenuState RVEditTemplateWnd::EditMenuState() const {
  return {IsActionCutEnabled(),    IsActionCopyEnabled(),      IsActionPasteEnabled(),
          IsActionDeleteEnabled(), IsActionSelectAllEnabled(), IsActionUndoEnabled()};
}

}  // namespace xrpt
