// Reading a moment as people write it: the sample value of a date card.
#pragma once

#include <ctime>
#include <optional>
#include <string_view>

#include "platform/Host.h"

namespace xrpt {

// Where year, month and day stand among the three numbers of a date.
struct DateOrder {
  std::size_t year = 2;
  std::size_t month = 1;
  std::size_t day = 0;
};
// As the locale writes a date.
DateOrder DateOrderOf(const LocaleService& locale);

// Takes day, month and year in the locale's order (a four-figure number in front is always the year, a month's name is
// one wherever it stands) and the time after them, of which any part may be missing. Where that order gives no date,
// day and month change places. Nothing for a text without a date that can be.
std::optional<std::tm> ReadMoment(std::wstring_view text, const LocaleService& locale, const DateOrder& localeOrder);

}  // namespace xrpt
