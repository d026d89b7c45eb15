#include "formulas/checks/HostChecks.h"

#include <algorithm>

namespace xrpt {
namespace {

constexpr HostCheckRow kRows[] = {
    {"formule", CheckFormule, true},
    {"staticImage", CheckStaticImage, true},
    {"date", CheckDate, true},
    {"conditioned", CheckConditioned, false},
    {"reportGraph", CheckReportGraph, false},
    {"analogBar", CheckAnalogBar, false},
};

}  // namespace

std::span<const HostCheckRow> HostCheckRows() { return kRows; }

const HostCheckRow* FindHostCheck(std::string_view tag) {
  const auto row = std::find_if(std::begin(kRows), std::end(kRows), [tag](const auto& r) { return r.tag == tag; });
  return row == std::end(kRows) ? nullptr : row;
}

}  // namespace xrpt
