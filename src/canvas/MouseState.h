// The states of the mouse machine, a row each: what the first move after the press makes of it, what kind of gesture it
// is, and what the release does.
#pragma once

namespace xrpt {

enum MouseState : int {
  kIdle = 0,
  kPressEmpty = 1,  // with an insert tool
  kPressEmptyCtrl = 2,
  kPressCard = 3,  // a card that was not selected
  kPressCardCtrl = 4,
  kPressSelected = 5,
  kPressSelectedCtrl = 6,
  kDragCard = 7,
  kDragCardCtrl = 8,
  kDragSelected = 9,
  kDragSelectedCtrl = 10,
  kDrawCard = 11,
  kDrawCardCtrl = 12,  // the selection is kept
  kPressBand = 13,     // on empty page with the pointer tool
  kPressBandToggle = 14,
  kBandReplace = 15,
  kBandToggle = 16,
  kPressBandAdd = 17,
  kBandAdd = 18,
  kPressCardShift = 19,
  kPressSelectedShift = 20,
  kDragCardShift = 21,
  kDragSelectedShift = 22,
};

// What is going on: a click so far, cards being moved or resized, a card being drawn, a rubber band.
enum class GestureKind { None, Click, Drag, Draw, Band };

// What the release does to the selection: leaves it, selects the pressed card alone, takes it out or in, or selects
// what the band touches instead of, besides or in exchange for what is selected.
enum class SelectionRule { Keep, Alone, Remove, Add, Replace, Toggle };

struct MouseStateRow {
  int state;
  int afterFirstMove;
  GestureKind kind;
  SelectionRule onRelease;
  bool selectionOnly;  // a gesture that ended in this state changed the selection at most
  bool keepsSelection = false;
};

// The row of a state; that of kIdle for a number that is none.
const MouseStateRow& StateRow(int state);

// The states a press leads to. Ctrl wins over Shift.
int PressOnCard(bool wasSelected, bool control, bool shift);
int PressOnPage(bool pointerTool, bool control, bool shift);

}  // namespace xrpt
