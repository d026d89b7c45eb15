// Keeps the warning records of background checks until somebody wants to see them.
#pragma once

#include <mutex>

#include "platform/Host.h"
#include "platform/Xml.h"

namespace xrpt {

class WarningList final : public RVDebugInfo {
 public:
  void addWarning(const XmlNode& warning) override;
  // All records so far, in the order they came: root "warnings".
  XmlDocument Warnings() const;
  void Clear();

 private:
  mutable std::mutex lock_;
  XmlDocument warnings_{"warnings"};
};

}  // namespace xrpt
