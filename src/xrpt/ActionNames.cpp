#include "xrpt/ActionNames.h"

#include <array>
#include <utility>

#include "canvas/InsertTools.h"
#include "platform/Window.h"

namespace xrpt {
namespace {

using Named = std::pair<std::string_view, int>;

constexpr std::array<Named, 9> kTools = {{{"label", tool::kLabel},
                                          {"image", tool::kImage},
                                          {"date", tool::kDate},
                                          {"formule", tool::kFormule},
                                          {"conditioned", tool::kConditioned},
                                          {"reportGraph", tool::kReportGraph},
                                          {"analogBar", tool::kAnalogBar},
                                          {"primitive", tool::kPrimitive},
                                          {"pointer", tool::kPointer}}};

constexpr std::array<Named, 6> kKeys = {{{"Left", key::Left},
                                         {"Right", key::Right},
                                         {"Up", key::Up},
                                         {"Down", key::Down},
                                         {"Delete", key::Delete},
                                         {"Escape", key::Escape}}};

template <std::size_t N>
std::optional<int> Find(const std::array<Named, N>& list, std::string_view name) {
  for (const auto& [known, code] : list) {
    if (known == name) return code;
  }
  return std::nullopt;
}

}  // namespace

std::optional<int> ToolOf(std::string_view name) { return Find(kTools, name); }

std::optional<int> KeyOf(std::string_view name) {
  if (name.size() == 1 && name[0] >= 'a' && name[0] <= 'z') return name[0] - 'a' + 'A';
  if (name.size() == 1 && name[0] >= 'A' && name[0] <= 'Z') return name[0];
  return Find(kKeys, name);
}

}  // namespace xrpt
