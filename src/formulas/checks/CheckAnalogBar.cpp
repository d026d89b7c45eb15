// Analog bars: the variable, and limits a bar can be drawn between.
#include "formulas/checks/BarLimits.h"
#include "formulas/checks/BoundVariable.h"
#include "formulas/checks/HostChecks.h"
#include "formulas/checks/HostCodes.h"
#include "platform/Numbers.h"

namespace xrpt {
namespace {

bool Says(const XmlNode& element, std::string_view word) {
  std::string joined;
  return element.WholeText(joined) == word;
}

std::optional<double> LimitIn(const XmlNode& element) {
  if (!element) return std::nullopt;
  std::string joined;
  return ParseDecimal(element.WholeText(joined));
}

PowerFactorBands BandsOf(const XmlNode& type) {
  if (Says(type, "MAX")) return PowerFactorBands::MaximumOnly;
  return Says(type, "MIN") ? PowerFactorBands::MinimumOnly : PowerFactorBands::Both;
}

// A bar's elements, looked for in the order of the file.
struct BarElements {
  explicit BarElements(const XmlNode& card) : cursor(card) {}

  XmlCursor cursor;
  XmlNode typeVar = cursor.Find("typeVar");
  XmlNode type = cursor.Find("type");
  XmlNode variable = cursor.Find("variable");

  BarLimits Limits() {
    BarLimits limits;
    limits.maximum = LimitIn(cursor.Find("maxValue"));
    limits.minimum = LimitIn(cursor.Find("minValue"));
    limits.preMaximum = LimitIn(cursor.Find("preMaxValue"));
    limits.alarmMaximum = LimitIn(cursor.Find("alarmMaxValue"));
    limits.preMinimum = LimitIn(cursor.Find("preMinValue"));
    limits.alarmMinimum = LimitIn(cursor.Find("alarmMinValue"));
    return limits;
  }
};

// The bands of a power factor must be told; a bar without them is not checked further.
bool CheckLimits(const Inspector& inspector, BarElements& bar, const tagSDebugData& data) {
  const bool isPowerFactor = Says(bar.typeVar, "PF");
  if (isPowerFactor && !bar.type) return false;
  const BarLimits limits = bar.Limits();
  const bool ok = isPowerFactor ? ArePowerFactorLimits(limits, BandsOf(bar.type)) : AreAscending(limits);
  return ok || inspector.Raise(HostCode(L"ANALOGBARCTRL_BAD_VALUE"), data);
}

}  // namespace

// An undeclared go-back variable carries the graph's code, which hosts know for both.
bool CheckAnalogBar(Inspector& inspector, const XmlNode& card, tagSDebugData& data, bool) {
  BarElements bar(card);
  if (!bar.variable) return inspector.Raise(HostCode(L"ANALOGBARCTRL_VARIABLE_EMPTY"), data);
  ReferenceCheck references(inspector, data, HostCode(L"ANALOGBARCTRL_VIRTUAL_DEVICE_ERROR"),
                            HostCode(L"REPORTGRAPH_GOBACK_VARIABLE_ERROR"));
  const bool ok = CheckBoundVariable(inspector, bar.variable, data, references, HostCode(L"ANALOGBARCTRL_VAR_ERROR"));
  return CheckLimits(inspector, bar, data) && ok;
}

}  // namespace xrpt
