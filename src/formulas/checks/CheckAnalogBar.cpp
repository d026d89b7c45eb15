// Analog bars: the variable, and limits a bar can be drawn between.
#include "formulas/checks/BarLimits.h"
#include "formulas/checks/BoundVariable.h"
#include "formulas/checks/HostChecks.h"
#include "formulas/checks/HostCodes.h"
#include "platform/Numbers.h"

namespace xrpt {
namespace {

std::optional<double> LimitIn(const XmlNode& card, std::string_view name) {
  const XmlNode limit = card.Node(name);
  if (!limit) return std::nullopt;
  std::string joined;
  return ParseDecimal(limit.WholeText(joined));
}

BarLimits LimitsOf(const XmlNode& card) {
  return {LimitIn(card, "minValue"),    LimitIn(card, "alarmMinValue"), LimitIn(card, "preMinValue"),
          LimitIn(card, "preMaxValue"), LimitIn(card, "alarmMaxValue"), LimitIn(card, "maxValue")};
}

PowerFactorBands BandsOf(const std::wstring& type) {
  if (type == L"MAX") return PowerFactorBands::MaximumOnly;
  return type == L"MIN" ? PowerFactorBands::MinimumOnly : PowerFactorBands::Both;
}

// The bands of a power factor must be told; a bar without them is not checked further.
bool CheckLimits(const Inspector& inspector, const XmlNode& card, const tagSDebugData& data) {
  const bool isPowerFactor = card.Value("typeVar") == L"PF";
  const XmlNode type = card.Node("type");
  if (isPowerFactor && !type) return false;
  const BarLimits limits = LimitsOf(card);
  const bool ok = isPowerFactor ? ArePowerFactorLimits(limits, BandsOf(type.Value())) : AreAscending(limits);
  return ok || inspector.Raise(HostCode(L"ANALOGBARCTRL_BAD_VALUE"), data);
}

}  // namespace

// An undeclared go-back variable carries the graph's code, which hosts know for both.
bool CheckAnalogBar(Inspector& inspector, const XmlNode& card, tagSDebugData& data, bool) {
  const XmlNode variable = card.Node("variable");
  if (!variable) return inspector.Raise(HostCode(L"ANALOGBARCTRL_VARIABLE_EMPTY"), data);
  ReferenceCheck references(inspector, data, HostCode(L"ANALOGBARCTRL_VIRTUAL_DEVICE_ERROR"),
                            HostCode(L"REPORTGRAPH_GOBACK_VARIABLE_ERROR"));
  const bool ok =
      CheckBoundVariable(inspector, variable.Value(), data, references, HostCode(L"ANALOGBARCTRL_VAR_ERROR"));
  return CheckLimits(inspector, card, data) && ok;
}

}  // namespace xrpt
