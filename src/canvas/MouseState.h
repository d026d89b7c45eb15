// The states of the mouse machine, and what the first move after a press makes of them.
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

// A state that is no press stays as it is.
int AfterFirstMove(int state);

bool IsBand(int state);
bool IsDrawing(int state);
// Cards are being moved or resized.
bool IsDraggingCards(int state);
// A gesture that ended in this state changed the selection at most.
bool ChangesSelectionOnly(int state);

// The states a press leads to. Ctrl wins over Shift.
int PressOnCard(bool wasSelected, bool control, bool shift);
int PressOnPage(bool pointerTool, bool control, bool shift);

}  // namespace xrpt
