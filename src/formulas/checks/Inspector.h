// What the host's checks work with: the host's services, what a report's cards refer to, and where findings go. One for
// each thread.
#pragma once

#include <functional>
#include <memory>

#include "formulas/checks/DebugData.h"
#include "platform/Host.h"

namespace xrpt {

class Inspector {
 public:
  using Found = std::function<void(const Finding&, const tagSDebugData&)>;

  Inspector(const Host& host, Found found) : host_(host), found_(std::move(found)) {}

  const Host& TheHost() const { return host_; }
  // A finding of the card being checked. False, which is what a check then says.
  bool Raise(const CheckCode& code, const tagSDebugData& data, std::optional<std::wstring> detail = std::nullopt,
             bool dontConsider = false) const;
  // Of the element's own text.
  const ExpressionReading& Read(const XmlNode& expression, tagSDebugData& data) const;
  // Whether the plant has a driver variable of that full name. The plant is looked at once.
  bool IsInPlant(std::wstring_view variable);
  // The plant may be another one from here on.
  void ForgetPlant() { plant_.reset(); }

  // Declared ones that some card refers to.
  UsedIds usedVirtualDevices;
  UsedIds usedGoBackVariables;

 private:
  const Host& host_;
  Found found_;
  std::unique_ptr<RVDriverVariable> plant_;
};

}  // namespace xrpt
