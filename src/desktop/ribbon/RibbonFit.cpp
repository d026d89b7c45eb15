#include "desktop/ribbon/RibbonFit.h"

#include <algorithm>

namespace xrpt {

int GroupWidths::At(GroupRoom room) const {
  switch (room) {
    case GroupRoom::Full:
      return full;
    case GroupRoom::IconsOnly:
      return iconsOnly;
    case GroupRoom::Folded:
      return folded;
    case GroupRoom::Hidden:
      break;
  }
  return 0;
}

std::vector<GroupRoom> FitGroups(const std::vector<GroupWidths>& groups, int more, int available) {
  std::vector<GroupRoom> rooms(groups.size(), GroupRoom::Full);
  int taken = 0;
  for (const GroupWidths& group : groups) taken += group.full;
  for (const GroupRoom room : {GroupRoom::IconsOnly, GroupRoom::Folded, GroupRoom::Hidden}) {
    if (taken <= available) return rooms;
    if (room == GroupRoom::Hidden) taken += more;
    for (std::size_t i = groups.size(); i-- > 0 && taken > available;) {
      const int gain = groups[i].At(rooms[i]) - groups[i].At(room);
      if (gain <= 0) continue;
      rooms[i] = room;
      taken -= gain;
    }
  }
  return rooms;
}

}  // namespace xrpt
