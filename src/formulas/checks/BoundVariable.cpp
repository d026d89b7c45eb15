#include "formulas/checks/BoundVariable.h"

namespace xrpt {
namespace {

std::wstring WithoutBrackets(std::wstring name) {
  const bool wrapped = name.size() > 1 && name.front() == L'[' && name.back() == L']';
  return wrapped ? name.substr(1, name.size() - 2) : std::move(name);
}

}  // namespace

bool CheckBoundVariable(Inspector& inspector, std::wstring given, const tagSDebugData& data, ReferenceCheck& references,
                        const CheckCode& unknown) {
  const std::wstring name = WithoutBrackets(std::move(given));
  const VariableNaming& naming = *inspector.TheHost().variables;
  const FilteredDriverVariable device = naming.SplitFilterDriverVariable(name);
  const FilteredDriverVariable goBack = naming.SplitBackFilterDriverVariable(name);
  bool ok = references.VirtualDevice(device);
  ok = references.GoBack(goBack) && ok;
  if (IsVirtualDevice(device) || IsGoBack(goBack) || inspector.IsInPlant(name)) return ok;
  return inspector.Raise(unknown, data);
}

}  // namespace xrpt
