#include "canvas/MouseState.h"

namespace xrpt {
namespace {

using Kind = GestureKind;
using Rule = SelectionRule;

constexpr MouseStateRow kRows[] = {
    {kIdle, kIdle, Kind::None, Rule::Keep, true},
    {kPressEmpty, kDrawCard, Kind::Draw, Rule::Keep, true},
    {kPressEmptyCtrl, kDrawCardCtrl, Kind::Draw, Rule::Keep, false},
    {kPressCard, kDragCard, Kind::Click, Rule::Keep, true},
    {kPressCardCtrl, kDragCardCtrl, Kind::Click, Rule::Keep, true},
    {kPressSelected, kDragSelected, Kind::Click, Rule::Alone, true},
    {kPressSelectedCtrl, kDragSelectedCtrl, Kind::Click, Rule::Remove, false},
    {kDragCard, kDragCard, Kind::Drag, Rule::Keep, false},
    {kDragCardCtrl, kDragCardCtrl, Kind::Drag, Rule::Keep, false},
    {kDragSelected, kDragSelected, Kind::Drag, Rule::Keep, false},
    {kDragSelectedCtrl, kDragSelectedCtrl, Kind::Drag, Rule::Keep, false},
    {kDrawCard, kDrawCard, Kind::Draw, Rule::Keep, false},
    {kDrawCardCtrl, kDrawCardCtrl, Kind::Draw, Rule::Keep, false, true},
    {kPressBand, kBandReplace, Kind::Band, Rule::Replace, true},
    {kPressBandToggle, kBandToggle, Kind::Band, Rule::Toggle, true},
    {kBandReplace, kBandReplace, Kind::Band, Rule::Replace, true},
    {kBandToggle, kBandToggle, Kind::Band, Rule::Toggle, true},
    {kPressBandAdd, kBandAdd, Kind::Band, Rule::Add, true},
    {kBandAdd, kBandAdd, Kind::Band, Rule::Add, true},
    {kPressCardShift, kDragCardShift, Kind::Click, Rule::Keep, true},
    {kPressSelectedShift, kDragSelectedShift, Kind::Click, Rule::Add, false},
    {kDragCardShift, kDragCardShift, Kind::Drag, Rule::Keep, false},
    {kDragSelectedShift, kDragSelectedShift, Kind::Drag, Rule::Keep, false},
};

constexpr bool RowsStandAtTheirNumbers() {
  int number = 0;
  for (const MouseStateRow& row : kRows) {
    if (row.state != number++) return false;
  }
  return true;
}
static_assert(RowsStandAtTheirNumbers());

}  // namespace

const MouseStateRow& StateRow(int state) {
  constexpr int kCount = static_cast<int>(sizeof kRows / sizeof kRows[0]);
  return kRows[state > 0 && state < kCount ? state : 0];
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
