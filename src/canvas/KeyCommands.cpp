// Keys and the context menu.
#include "canvas/DragRules.h"
#include "canvas/HitTest.h"
#include "canvas/MouseState.h"
#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"

namespace xrpt {
namespace {

// Commands of the popup menu, by the numbers hosts know them by.
enum MenuCommand : int {
  kDelete = 415,
  kCopy = 57634,
  kCut = 57635,
  kFind = 57636,
  kPaste = 57637,
  kReplace = 57641,
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
  if (IsArrow(code) && !selection_.IsEmpty()) return MoveByKey(code, flags.control);
  if (flags.control) {
    switch (code) {
      case 'C':
        return ControlCopy();
      case 'V':
        return ControlPaste();
      case 'X':
        return ControlCut();
      case 'Z':
        return flags.shift ? ControlRedo() : ControlUndo();
      case 'Y':
        return ControlRedo();
      case 'E':
        return ControlSelectAll();
      default:
        break;
    }
  }
  parent_.OnMessage({Message::KeyDown, {}, keyFlags, code});
}

void RVEditTemplateWnd::KeyProcessESC(long long keyFlags) {
  parent_.OnMessage({Message::KeyDown, {}, keyFlags, key::Escape});
}

// A key press runs as a whole gesture, so that page and grid bind as for the mouse.
void RVEditTemplateWnd::MoveByKey(int code, bool control) {
  const PagePlacement place = Placement();
  if (!place.IsValid() || mouseState_ != kIdle) return;
  const GridSteps grid = GridOf(page_.properties);
  const Point direction = Direction(code);
  RefreshRects();
  snaps_ = true;
  guideHits_ = {};
  const Rect all = selection_.CalculateGlobalRect();
  selection_.anchor = {(all.left + all.right) / 2, (all.top + all.bottom) / 2};
  selection_.draggingStyle = kMoveAll;
  mouseState_ = kDragCard;
  cursor_ = Cursor::Moving;
  const Point step = MoveInside(all,
                                {direction.x * ArrowStep(HorizontalAxis(place, grid), control),
                                 direction.y * ArrowStep(VerticalAxis(place, grid), control)},
                                place);
  selection_.Offset(step.x, step.y);
  RepositioningControl();
  selection_.draggingStyle = kNoEdge;
  selection_.SetRectUndefined();
  mouseState_ = kIdle;
  RedrawBackground();
  PostChange(false);
  Hover(port_.CursorPosition());
  AddUndoInfo(false, {text::kMove, static_cast<int>(selection_.Size())});
}

// --- The context menu ---

void RVEditTemplateWnd::OnRButtonUp(Point point) {
  PauseTimer();
  hoverId_.clear();
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

bool RVEditTemplateWnd::OnCommand(int command) {
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
    default:
      return ToggleToolbar(command - kFirstToolbar);
  }
}

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
