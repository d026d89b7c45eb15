// How the groups of a ribbon page share its width. Pure rules over numbers.
#pragma once

#include <vector>

namespace xrpt {

// From roomy to narrow: with labels, small buttons without theirs, one button with a popup, behind the page's own
// button for what has no room at all.
enum class GroupRoom { Full, IconsOnly, Folded, Hidden };

// Pixels a group takes in each of the rooms that take any.
struct GroupWidths {
  int full = 0;
  int iconsOnly = 0;
  int folded = 0;

  int At(GroupRoom room) const;
};

// Groups give way from the right, one room at a time, and only where that makes them narrower. `more`: what the button
// for hidden groups takes.
std::vector<GroupRoom> FitGroups(const std::vector<GroupWidths>& groups, int more, int available);

}  // namespace xrpt
