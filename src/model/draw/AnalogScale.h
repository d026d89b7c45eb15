// The scale of an analog bar: where its bands, marks and value lie between its two ends. A pure rule.
#pragma once

#include <string>
#include <vector>

#include "model/NumberFormat.h"
#include "model/RVAnalogBar.h"

namespace xrpt {

enum class BandLevel { Normal, PreAlarm, Alarm };

// From and to are shares of the bar's length, 0 the left or lower end, 1 the other.
struct BarBand {
  double from = 0.0;
  double to = 1.0;
  BandLevel level = BandLevel::Normal;
};

struct BarMark {
  double at = 0.0;
  std::wstring text;
};

struct AnalogScale {
  std::vector<BarBand> bands;  // one after the other, from 0 to 1
  std::vector<BarMark> marks;  // the ends first, then the thresholds
  double origin = 0.0;         // where the value's bar starts
  double value = 0.5;
  std::wstring valueText;
};

// A scale end or threshold that is an expression is known only when the report runs; it stands at a usual place until
// then. One that is empty, or belongs to a side the bar does not watch, is not there.
//
// A power factor's scale has two halves that meet at 1 in the middle: inductive from the left, capacitive to the right.
// The lower thresholds stand on the inductive half and the upper ones on the capacitive; a bar that watches one side
// only has the same thresholds on both halves.
AnalogScale ScaleOf(const RVAnalogBar& card, const NumberSeparators& separators);

BandLevel LevelAt(const AnalogScale& scale, double at);

}  // namespace xrpt
