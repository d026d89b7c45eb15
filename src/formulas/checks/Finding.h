// What a check found: the code, where it is, and what could be done about it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "formulas/checks/CheckCode.h"

namespace xrpt {

// Where a card stands in its report. Identifiers alone would not do: cards may lack one, or share it.
struct CardPlace {
  int page = 0;    // from 1; 0 for what belongs to no page
  int card = -1;   // from 0, front to back, as in the page's list; -1 for what belongs to no card
  int inner = -1;  // from 0, the alternative of a conditioned card; -1 for the card itself
  bool operator==(const CardPlace&) const = default;
};

// One thing to change, of the finding's card where it is about one.
struct Change {
  enum class Kind {
    SetField,       // `field` of the card takes `value`, both as in the file
    NewId,          // the card gets a fresh identity
    MoveToFront,    // of its page
    RemoveFormula,  // the one named `value`
  };
  Kind kind;
  std::string field;  // full name, "font/size"
  std::wstring value;
  bool operator==(const Change&) const = default;
};

// The changes belong together: one step of the history. Without any nobody but the user knows what to do.
struct Remedy {
  int textId = 0;  // says what would be done
  std::vector<Change> changes = {};
  bool operator==(const Remedy&) const = default;
};

struct Finding {
  const CheckCode* code = nullptr;
  CardPlace place = {};
  std::wstring cardId = {};                           // of the card, or of the conditioned card around it; may be empty
  int kindTextId = 0;                                 // what kind of card it is, for people; 0 for none
  std::optional<std::wstring> detail = std::nullopt;  // more than the code says
  bool dontConsider = false;                          // nothing the report's author can put right here
  Remedy remedy = {};
  bool operator==(const Finding&) const = default;
};

// The finding as a sentence, without its place.
std::wstring MessageOf(const Finding& finding);

}  // namespace xrpt
