#include "formulas/checks/ReferenceCheck.h"

#include <algorithm>

#include "platform/Numbers.h"

namespace xrpt {
namespace {

bool IsDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

}  // namespace

bool isPeriodGoBackVirtual(std::wstring_view period) {
  return ParseInteger(period) == 0 && !std::all_of(period.begin(), period.end(), IsDigit);
}

bool ReferenceCheck::VirtualDevice(const FilteredDriverVariable& parts) {
  if (!data_.virtualDevices || virtualDevicesEnded_ || !IsVirtualDevice(parts)) return true;
  if (data_.virtualDevices->Has(parts.device)) {
    inspector_.usedVirtualDevices.insert(parts.device);
    return true;
  }
  virtualDevicesEnded_ = true;
  return inspector_.Raise(virtualDevice_, data_);
}

bool ReferenceCheck::GoBack(const FilteredDriverVariable& parts) {
  if (!data_.goBackVariables || goBacksEnded_ || !IsGoBack(parts) || IsGoBackDeclared(parts)) return true;
  goBacksEnded_ = true;
  return inspector_.Raise(goBack_, data_);
}

// A number of periods back needs no declaration, but cannot be negative.
bool ReferenceCheck::IsGoBackDeclared(const FilteredDriverVariable& parts) {
  if (!isPeriodGoBackVirtual(parts.period)) return ParseInteger(parts.period) >= 0;
  std::wstring id = parts.kind + parts.period;
  if (!data_.goBackVariables->Has(id)) return false;
  inspector_.usedGoBackVariables.insert(std::move(id));
  return true;
}

bool ReferenceCheck::All(const ExpressionReading& expression) {
  bool ok = true;
  for (const FilteredDriverVariable& parts : expression.sources) ok = VirtualDevice(parts) && ok;
  for (const FilteredDriverVariable& parts : expression.sources) ok = GoBack(parts) && ok;
  return ok;
}

}  // namespace xrpt
