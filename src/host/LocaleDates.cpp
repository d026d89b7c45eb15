#include "host/LocaleDates.h"

namespace xrpt {

bool LocaleDates::String2DateTime(std::wstring_view text, RVDateTime& moment) const {
  std::call_once(asked_, [this] { order_ = DateOrderOf(*host_.locale); });
  const auto read = ReadMoment(text, *host_.locale, order_);
  if (read) moment = *read;
  return read.has_value();
}

}  // namespace xrpt
