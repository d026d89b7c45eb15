// No plant is connected: nothing has a reading.
#pragma once

#include "platform/Host.h"

namespace xrpt {

class NoValues final : public ValueService {
 public:
  std::optional<double> Reading(std::wstring_view) override { return std::nullopt; }
};

}  // namespace xrpt
