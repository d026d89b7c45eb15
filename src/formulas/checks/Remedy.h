// Carries out what a finding proposes, through the door of whoever has the report open.
#pragma once

#include "formulas/checks/Finding.h"
#include "model/CardList.h"
#include "platform/Xml.h"

namespace xrpt {

// Gives out what is to be changed, and makes one step of it all.
class RemedyDoor {
 public:
  virtual ~RemedyDoor() = default;
  virtual CardList& Cards() = 0;        // of the page of the finding's card
  virtual XmlDocument& Formulas() = 0;  // of the report
};

// Makes the finding's changes. `card` is where its card stands in its page's list now, kNowhere for one that is not
// there any more. False, and nothing done, when there is nothing to change.
bool CarryOut(const Finding& finding, std::size_t card, RemedyDoor& door);

}  // namespace xrpt
