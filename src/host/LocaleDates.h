// Moments read by the order and the month names of the host's locale.
#pragma once

#include <mutex>

#include "host/MomentText.h"
#include "platform/Host.h"

namespace xrpt {

class LocaleDates final : public DateService {
 public:
  explicit LocaleDates(const Host& host) : host_(host) {}
  bool String2DateTime(std::wstring_view text, RVDateTime& moment) const override;

 private:
  const Host& host_;
  mutable std::once_flag asked_;
  mutable DateOrder order_;  // the locale's, asked once
};

}  // namespace xrpt
