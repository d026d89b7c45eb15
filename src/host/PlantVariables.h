// Driver variables looked up in the host's device catalogue.
#pragma once

#include "platform/Host.h"

namespace xrpt {

class PlantVariables final : public DriverVariableService {
 public:
  explicit PlantVariables(const Host& host) : host_(host) {}
  std::unique_ptr<RVDriverVariable> NewDriverVariable() override;

 private:
  const Host& host_;
};

}  // namespace xrpt
