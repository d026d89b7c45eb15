#include "host/MomentText.h"

#include <algorithm>
#include <chrono>
#include <cwctype>
#include <vector>

namespace xrpt {
namespace {

struct Part {
  int number = 0;
  std::size_t digits = 0;
  bool isMonth = false;  // read from a name
};

constexpr std::size_t kMostParts = 6;
constexpr std::size_t kMostDigits = 6;

bool StartsLike(std::wstring_view text, std::wstring_view start) {
  const auto same = [](wchar_t a, wchar_t b) {
    return std::towlower(static_cast<std::wint_t>(a)) == std::towlower(static_cast<std::wint_t>(b));
  };
  return !start.empty() && text.size() >= start.size() && std::equal(start.begin(), start.end(), text.begin(), same);
}

// 1 to 12, or 0 for a word that is no month of the locale.
int MonthOf(std::wstring_view word, const LocaleService& locale) {
  for (int month = 1; month <= 12; ++month) {
    if (word.size() >= 3 && StartsLike(locale.MonthName(month), word)) return month;
  }
  return 0;
}

std::size_t RunEnd(std::wstring_view text, std::size_t at, int (*belongs)(std::wint_t)) {
  while (at < text.size() && belongs(static_cast<std::wint_t>(text[at]))) ++at;
  return at;
}

Part NumberOf(std::wstring_view digits) {
  Part part{0, digits.size(), false};
  for (wchar_t c : digits.substr(0, kMostDigits)) part.number = part.number * 10 + (c - L'0');
  return part;
}

struct Parts {
  std::vector<Part> list;
  bool afternoon = false;
  bool morning = false;
};

void TakeWord(std::wstring_view word, const LocaleService& locale, Parts& parts) {
  parts.afternoon = parts.afternoon || StartsLike(word, L"pm");
  parts.morning = parts.morning || StartsLike(word, L"am");
  const int month = MonthOf(word, locale);
  if (month > 0) parts.list.push_back({month, 0, true});
}

Parts Split(std::wstring_view text, const LocaleService& locale) {
  Parts parts;
  for (std::size_t at = 0; at < text.size() && parts.list.size() < kMostParts;) {
    const wchar_t c = text[at];
    if (c >= L'0' && c <= L'9') {
      const std::size_t end = std::min(text.find_first_not_of(L"0123456789", at), text.size());
      parts.list.push_back(NumberOf(text.substr(at, end - at)));
      at = end;
    } else if (std::iswalpha(static_cast<std::wint_t>(c))) {
      const std::size_t end = RunEnd(text, at, std::iswalpha);
      TakeWord(text.substr(at, end - at), locale, parts);
      at = end;
    } else {
      ++at;
    }
  }
  return parts;
}

DateOrder OrderOf(const std::vector<Part>& parts, const DateOrder& localeOrder) {
  if (parts[0].digits == 4) return {0, 1, 2};
  if (parts[0].isMonth) return {2, 0, 1};
  if (parts[1].isMonth) return {2, 1, 0};
  return localeOrder.year == 0 && parts[2].digits == 4 ? DateOrder{} : localeOrder;
}

int FullYear(const Part& part) {
  return part.digits > 2 ? part.number : part.number + (part.number < 70 ? 2000 : 1900);
}

int HourOf(int hour, const Parts& parts) {
  if (parts.afternoon && hour < 12) return hour + 12;
  return parts.morning && hour == 12 ? 0 : hour;
}

// False for a day or an hour no calendar has.
bool Normalised(std::tm& moment) {
  using namespace std::chrono;
  const year_month_day day(year(moment.tm_year + 1900), month(static_cast<unsigned>(moment.tm_mon + 1)),
                           std::chrono::day(static_cast<unsigned>(moment.tm_mday)));
  if (moment.tm_year < 1 - 1900 || moment.tm_year > 9999 - 1900 || moment.tm_mon < 0 || moment.tm_mon > 11)
    return false;
  if (moment.tm_mday > 31 || !day.ok() || moment.tm_hour > 23 || moment.tm_min > 59 || moment.tm_sec > 60) return false;
  moment.tm_isdst = -1;
  moment.tm_wday = static_cast<int>(weekday(sys_days(day)).c_encoding());
  moment.tm_yday = static_cast<int>((sys_days(day) - sys_days(day.year() / January / 1)).count());
  return true;
}

std::optional<std::tm> MomentIn(const DateOrder& order, const Parts& parts) {
  const auto time = [&parts](std::size_t i) { return i < parts.list.size() ? parts.list[i].number : 0; };
  std::tm moment{};
  moment.tm_year = FullYear(parts.list[order.year]) - 1900;
  moment.tm_mon = parts.list[order.month].number - 1;
  moment.tm_mday = parts.list[order.day].number;
  moment.tm_hour = HourOf(time(3), parts);
  moment.tm_min = time(4);
  moment.tm_sec = time(5);
  if (!Normalised(moment)) return std::nullopt;
  return moment;
}

}  // namespace

// Asked of a date whose three numbers can be told apart.
DateOrder DateOrderOf(const LocaleService& locale) {
  std::tm probe{};
  probe.tm_year = 2033 - 1900;
  probe.tm_mon = 10;
  probe.tm_mday = 22;
  const Parts parts = Split(locale.DateTimeText(probe), locale);
  DateOrder order;
  for (std::size_t i = 0; i < std::min<std::size_t>(parts.list.size(), 3); ++i) {
    const int number = parts.list[i].number;
    if (number == 22) order.day = i;
    if (number == 11) order.month = i;
    if (number == 33 || number == 2033) order.year = i;
  }
  return order;
}

// A report travels: a date whose day can be no month was written where the day comes first, or the other way round.
std::optional<std::tm> ReadMoment(std::wstring_view text, const LocaleService& locale, const DateOrder& localeOrder) {
  const Parts parts = Split(text, locale);
  if (parts.list.size() < 3) return std::nullopt;
  const DateOrder order = OrderOf(parts.list, localeOrder);
  const std::optional<std::tm> moment = MomentIn(order, parts);
  if (moment || order.year == 0 || parts.list[order.month].isMonth) return moment;
  return MomentIn({order.year, order.day, order.month}, parts);
}

}  // namespace xrpt
