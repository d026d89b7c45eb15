#include "canvas/MouseState.h"

namespace xrpt {
namespace {

struct Transition {
  int press;
  int drag;
};

constexpr Transition kFirstMove[] = {{kPressEmpty, kDrawCard},
                                     {kPressEmptyCtrl, kDrawCardCtrl},
                                     {kPressCard, kDragCard},
                                     {kPressCardCtrl, kDragCardCtrl},
                                     {kPressSelected, kDragSelected},
                                     {kPressSelectedCtrl, kDragSelectedCtrl},
                                     {kPressBand, kBandReplace},
                                     {kPressBandToggle, kBandToggle},
                                     {kPressBandAdd, kBandAdd},
                                     {kPressCardShift, kDragCardShift},
                                     {kPressSelectedShift, kDragSelectedShift}};

}  // namespace

int AfterFirstMove(int state) {
  for (const Transition& transition : kFirstMove) {
    if (transition.press == state) return transition.drag;
  }
  return state;
}

bool IsBand(int state) { return state >= kPressBand && state <= kBandAdd; }

bool IsDrawing(int state) {
  return state == kPressEmpty || state == kPressEmptyCtrl || state == kDrawCard || state == kDrawCardCtrl;
}

bool IsDraggingCards(int state) {
  return (state >= kDragCard && state <= kDragSelectedCtrl) || state == kDragCardShift || state == kDragSelectedShift;
}

bool ChangesSelectionOnly(int state) {
  return state == kIdle || state == kPressEmpty || state == kPressCard || state == kPressCardCtrl ||
         state == kPressSelected || (state >= kPressBand && state <= kPressCardShift);
}

int PressOnCard(bool wasSelected, bool control, bool shift) {
  if (control) return wasSelected ? kPressSelectedCtrl : kPressCardCtrl;
  if (shift) return wasSelected ? kPressSelectedShift : kPressCardShift;
  return wasSelected ? kPressSelected : kPressCard;
}

int PressOnPage(bool pointerTool, bool control, bool shift) {
  if (!pointerTool) return control ? kPressEmptyCtrl : kPressEmpty;
  if (control) return kPressBandToggle;
  return shift ? kPressBandAdd : kPressBand;
}

}  // namespace xrpt
