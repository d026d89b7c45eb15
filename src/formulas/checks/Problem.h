// A finding in a report that is being edited.
#pragma once

#include "formulas/checks/Finding.h"
#include "model/RVCardControl.h"

namespace xrpt {

struct Problem {
  Finding finding;
  CardKey card = 0;  // what tells its card apart while the report goes on changing; 0 for none
  bool operator==(const Problem&) const = default;
};

}  // namespace xrpt
