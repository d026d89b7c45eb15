// What the variables of a card refer to: a virtual device or a go-back variable of the report, or the plant.
#pragma once

#include "formulas/checks/Inspector.h"

namespace xrpt {

// Whether the period of a go-back reference names a variable the report declares; a number does not.
bool isPeriodGoBackVirtual(std::wstring_view period);

// One card's variables against what the report declares. Declared ones count as used. Each of the two kinds is checked
// up to its first problem; the checks say whether they raised nothing.
class ReferenceCheck {
 public:
  ReferenceCheck(Inspector& inspector, tagSDebugData& data, const CheckCode& virtualDevice, const CheckCode& goBack)
      : inspector_(inspector), data_(data), virtualDevice_(virtualDevice), goBack_(goBack) {}

  bool VirtualDevice(const FilteredDriverVariable& parts);
  bool GoBack(const FilteredDriverVariable& parts);
  // All variables of an expression: first the virtual devices, then the go-back variables.
  bool All(const ExpressionReading& expression);

 private:
  bool IsGoBackDeclared(const FilteredDriverVariable& parts);

  Inspector& inspector_;
  tagSDebugData& data_;
  const CheckCode& virtualDevice_;
  const CheckCode& goBack_;
  bool virtualDevicesEnded_ = false;
  bool goBacksEnded_ = false;
};

}  // namespace xrpt
