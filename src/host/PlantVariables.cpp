#include "host/PlantVariables.h"

#include <map>

namespace xrpt {
namespace {

class PlantVariable final : public RVDriverVariable {
 public:
  explicit PlantVariable(const Host& host) : naming_(*host.variables) {
    for (Device& device : host.devices->Devices()) {
      for (DeviceVariable& variable : device.variables) {
        known_.emplace(std::pair(device.id, variable.id), std::move(variable));
      }
    }
  }

  void Setup(std::wstring_view name) override {
    const DriverVariable parts = naming_.SplitDriverVariable(name);
    wanted_ = {parts.device, parts.variable};
    found_ = nullptr;
  }

  bool Lock() override {
    const auto at = known_.find(wanted_);
    found_ = at == known_.end() ? nullptr : &at->second;
    return found_ != nullptr;
  }

  std::optional<DeviceVariable> Info() const override {
    return found_ ? std::optional<DeviceVariable>(*found_) : std::nullopt;
  }

 private:
  using Key = std::pair<std::wstring, std::wstring>;  // device, variable

  const VariableNaming& naming_;
  std::map<Key, DeviceVariable> known_;
  Key wanted_;
  const DeviceVariable* found_ = nullptr;
};

}  // namespace

std::unique_ptr<RVDriverVariable> PlantVariables::NewDriverVariable() { return std::make_unique<PlantVariable>(host_); }

}  // namespace xrpt
