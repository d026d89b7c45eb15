// Which of the checks are wanted, by the codes they raise.
#pragma once

#include <set>
#include <string_view>

#include "formulas/checks/CheckCode.h"

namespace xrpt {

class CheckChoice {
 public:
  static CheckChoice AllHost();
  static CheckChoice All();

  // "host", "all", or the name of a code; false for any other word.
  bool Add(std::wstring_view word);
  bool Has(const CheckCode& code) const { return names_.contains(code.name); }
  bool HasAnyOfHost() const;
  bool HasAnyOfEditor() const;

 private:
  std::set<std::wstring_view> names_;  // of the tables' codes
};

}  // namespace xrpt
