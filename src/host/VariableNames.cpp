#include "host/VariableNames.h"

namespace xrpt {
namespace {

constexpr std::wstring_view kGoBack = L"GOBACK";

// Cuts the text before the first point off `rest`.
std::wstring CutPart(std::wstring_view& rest) {
  const std::size_t point = rest.find(L'.');
  const std::wstring part(rest.substr(0, point));
  rest = point == std::wstring_view::npos ? std::wstring_view() : rest.substr(point + 1);
  return part;
}

void AppendPart(std::wstring& name, std::wstring_view part) {
  name += L'.';
  name += part;
}

}  // namespace

DriverVariable SplitVariableName(std::wstring_view name) {
  DriverVariable parts;
  parts.device = CutPart(name);
  parts.variable = CutPart(name);
  const bool goesBack = name.substr(0, kGoBack.size()) == kGoBack;
  parts.kind = name.substr(0, goesBack ? kGoBack.size() : name.size());
  parts.period = name.substr(parts.kind.size());
  return parts;
}

FilteredDriverVariable SplitFilteredName(std::wstring_view name) {
  const DriverVariable parts = SplitVariableName(name);
  return {parts.device, parts.variable, parts.kind, L"", parts.period, L""};
}

std::wstring JoinVariableName(const DriverVariable& parts) {
  std::wstring name = parts.device;
  const bool goesBack = parts.kind == kGoBack || (parts.kind.empty() && !parts.period.empty());
  const bool hasKind = goesBack || !parts.kind.empty();
  if (hasKind || !parts.variable.empty()) AppendPart(name, parts.variable);
  if (goesBack) {
    AppendPart(name, kGoBack);
    name += parts.period;
  } else if (hasKind) {
    AppendPart(name, parts.kind);
  }
  return name;
}

}  // namespace xrpt
