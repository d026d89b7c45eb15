// The codes of the checks whose findings go to the host's diagnostics collector. Each says that a report would fail
// when it runs, or declares what nobody uses.
#pragma once

#include <iterator>
#include <span>

#include "formulas/checks/CheckCode.h"

namespace xrpt {

inline constexpr CheckCode kHostCodes[] = {
    {L"DATECTRL_DATE_ERROR", 32647, Severity::Error},
    {L"CONDITIONALCTRL_FORMULE_EMPTY", 32648, Severity::Error},
    {L"FORMULECTRL_FORMULE_EMPTY", 32649, Severity::Error},
    {L"CONDITIONALCTRL_FORMULE_EXPRESSION_ERROR", 32650, Severity::Error},
    {L"FORMULECTRL_FORMULE_EXPRESSION_ERROR", 32651, Severity::Error},
    {L"CONDITIONALCTRL_DATE_ERROR", 32652, Severity::Error},
    {L"CONDITIONALCTRL_CONDITION_EXPRESSION_ERROR", 32653, Severity::Error},
    {L"CONDITIONALCTRL_CONDITION_EMPTY", 32654, Severity::Error},
    {L"CONDITIONALCTRL_NO_CONDITION", 32655, Severity::Error},
    {L"CONDITIONALCTRL_IMAGE_EMPTY", 32656, Severity::Error},
    {L"IMAGECTRL_IMAGE_EMPTY", 32657, Severity::Error},
    {L"REPORTGRAPH_VAR_ERROR", 34171, Severity::Error},
    {L"REPORTGRAPH_NO_VAR", 34172, Severity::Error},
    {L"ANALOGBARCTRL_VARIABLE_EMPTY", 34884, Severity::Error},
    {L"ANALOGBARCTRL_BAD_VALUE", 34885, Severity::Error},
    {L"ANALOGBARCTRL_VAR_ERROR", 35753, Severity::Error},
    {L"FORMULECTRL_VIRTUAL_DEVICE_ERROR", 36159, Severity::Error},
    {L"CONDITIONALCTRL_VIRTUAL_DEVICE_ERROR", 36160, Severity::Error},
    {L"CONDITIONALCTRL_CONDITION_VIRTUAL_DEVICE_ERROR", 36161, Severity::Error},
    {L"ANALOGBARCTRL_VIRTUAL_DEVICE_ERROR", 36162, Severity::Error},
    {L"REPORTGRAPH_VIRTUAL_DEVICE_ERROR", 36163, Severity::Error},
    {L"REPORT_VIRTUAL_DEVICE_ERROR", 36164, Severity::Warning},
    {L"FORMULECTRL_GOBACK_VARIABLE_ERROR", 36251, Severity::Error},
    {L"CONDITIONALCTRL_GOBACK_VARIABLE_ERROR", 36252, Severity::Error},
    // The next two stand for what hosts may know already; nothing here raises them.
    {L"CONDITIONALCTRL_CONDITION_GOBACK_VARIABLE_ERROR", 36253, Severity::Error},
    {L"ANALOGBARCTRL_GOBACK_VARIABLE_ERROR", 36254, Severity::Error},
    {L"REPORTGRAPH_GOBACK_VARIABLE_ERROR", 36255, Severity::Error},
    {L"REPORT_GOBACK_VARIABLE_ERROR", 36256, Severity::Warning},
};

// Null for a name that is no code of the table. Capitals matter.
constexpr const CheckCode* FindHostCode(std::wstring_view name) {
  for (const CheckCode& code : kHostCodes) {
    if (code.name == name) return &code;
  }
  return nullptr;
}

// A code by its name; one that is not in the table does not compile.
consteval const CheckCode& HostCode(std::wstring_view name) { return *FindHostCode(name); }

}  // namespace xrpt
