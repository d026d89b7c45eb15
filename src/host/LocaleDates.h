// Moments read by the order and the month names of the host's locale.
#pragma once

#include "host/MomentText.h"
#include "platform/Host.h"

namespace xrpt {

class LocaleDates final : public DateService {
 public:
  explicit LocaleDates(const Host& host) : host_(host) {}
  bool String2DateTime(std::wstring_view text, RVDateTime& moment) const override {
    const auto read = ReadMoment(text, *host_.locale);
    if (read) moment = *read;
    return read.has_value();
  }

 private:
  const Host& host_;
};

}  // namespace xrpt
