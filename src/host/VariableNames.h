// How a device variable's full name is put together and taken apart.
#pragma once

#include "platform/Host.h"

namespace xrpt {

// DEVICE.VARIABLE, DEVICE.VARIABLE.KIND or DEVICE.VARIABLE.GOBACK<period>. All that follows the second point is the
// kind; one that begins with GOBACK is the kind "GOBACK" and a period.
DriverVariable SplitVariableName(std::wstring_view name);
std::wstring JoinVariableName(const DriverVariable& parts);
FilteredDriverVariable SplitFilteredName(std::wstring_view name);

class VariableNames final : public VariableNaming {
 public:
  DriverVariable SplitDriverVariable(std::wstring_view name) const override { return SplitVariableName(name); }
  std::wstring JoinDriverVariable(const DriverVariable& parts) const override { return JoinVariableName(parts); }
  FilteredDriverVariable SplitFilterDriverVariable(std::wstring_view name) const override {
    return SplitFilteredName(name);
  }
  FilteredDriverVariable SplitBackFilterDriverVariable(std::wstring_view name) const override {
    return SplitFilteredName(name);
  }
};

}  // namespace xrpt
