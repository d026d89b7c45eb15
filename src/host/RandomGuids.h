// Identifiers nobody else has: 122 random bits from a generator seeded once by the system.
#pragma once

#include <mutex>
#include <random>

#include "platform/Host.h"

namespace xrpt {

class RandomGuids final : public GuidService {
 public:
  RandomGuids();
  std::wstring NewGuidText() override;

 private:
  std::mutex mutex_;
  std::mt19937_64 random_;
};

}  // namespace xrpt
