#include "host/WarningList.h"

namespace xrpt {

void WarningList::addWarning(const XmlNode& warning) {
  const std::lock_guard lock(lock_);
  warnings_.Root().Append(warning);
}

XmlDocument WarningList::Warnings() const {
  const std::lock_guard lock(lock_);
  return warnings_.Clone();
}

void WarningList::Clear() {
  const std::lock_guard lock(lock_);
  warnings_.Create("warnings");
}

}  // namespace xrpt
