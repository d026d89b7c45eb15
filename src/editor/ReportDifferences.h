// How two states of a report differ, in the words of the property panel: for a user who must choose between them.
#pragma once

#include <string>
#include <vector>

#include "model/RVReport.h"

namespace xrpt {

struct Difference {
  std::wstring where;   // "Page 2, Label · Total, Font size"
  std::wstring onDisk;  // empty: not there, or nothing that can be shown in a line
  std::wstring here;
};

// Pages are compared in order, cards by their identifiers. Gives at most `most`; `left` receives how many more there
// are. The revision does not count.
std::vector<Difference> DifferencesOf(const RVReport& onDisk, const RVReport& here, std::size_t most,
                                      std::size_t& left);

}  // namespace xrpt
