// What the host's checks work with: the host's services, what a report's cards refer to, and where findings go. One for
// each thread.
#pragma once

#include <functional>
#include <memory>

#include "formulas/checks/DebugData.h"
#include "platform/Host.h"

namespace xrpt {

// A driver variable that something is bound to.
struct BoundVariable {
  FilteredDriverVariable device;  // cut up for its device
  FilteredDriverVariable goBack;  // and for its period
  bool isInPlant = false;         // not asked for what belongs to the report
};

class Inspector {
 public:
  using Found = std::function<void(const Finding&, const tagSDebugData&)>;

  Inspector(const Host& host, Found found) : host_(host), found_(std::move(found)) {}

  const Host& TheHost() const { return host_; }
  // A finding of the card being checked. False, which is what a check then says.
  bool Raise(const CheckCode& code, const tagSDebugData& data, std::optional<std::wstring> detail = std::nullopt,
             bool dontConsider = false) const;
  // Of the element's own text.
  const ExpressionReading& Read(const XmlNode& expression, const tagSDebugData& data);
  // Of a driver variable's name, which surrounding brackets do not change.
  const BoundVariable& Look(const XmlNode& name);
  // Whether the element's text names a moment in the user's locale.
  bool IsMoment(const XmlNode& text);
  // Whether there is a file for the picture that an "image" element names.
  bool HasPicture(const XmlNode& image);
  // Plant, values and pictures may be others from here on.
  void Forget();

  // Declared ones that some card refers to.
  UsedIds usedVirtualDevices;
  UsedIds usedGoBackVariables;

 private:
  bool IsInPlant(std::wstring_view variable);

  const Host& host_;
  Found found_;
  ExpressionReadings expressions_;
  TextMemory<BoundVariable> variables_;
  TextMemory<bool> pictures_;
  TextMemory<bool> moments_;
  std::unique_ptr<RVDriverVariable> plant_;
};

}  // namespace xrpt
