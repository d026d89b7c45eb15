#include "host/SystemLocale.h"

#include <langinfo.h>
#include <locale.h>

#include <array>
#include <cwchar>

namespace xrpt {
namespace {

// The locale for this thread, for as long as it lives.
class ThreadLocale {
 public:
  explicit ThreadLocale(void* locale) : former_(uselocale(static_cast<locale_t>(locale))) {}
  ~ThreadLocale() { uselocale(former_); }
  ThreadLocale(const ThreadLocale&) = delete;
  ThreadLocale& operator=(const ThreadLocale&) = delete;

 private:
  locale_t former_;
};

// From the encoding of the thread's locale.
std::wstring Widen(const char* text) {
  std::mbstate_t state{};
  const std::size_t length = std::mbsrtowcs(nullptr, &text, 0, &state);
  if (length == static_cast<std::size_t>(-1)) return {};
  std::wstring wide(length, L'\0');
  state = {};
  std::mbsrtowcs(wide.data(), &text, length, &state);
  return wide;
}

}  // namespace

SystemLocale::SystemLocale(const char* name) : locale_(newlocale(LC_ALL_MASK, name, nullptr)) {
  if (!locale_) locale_ = newlocale(LC_ALL_MASK, "C", nullptr);
}

SystemLocale::~SystemLocale() { freelocale(static_cast<locale_t>(locale_)); }

std::wstring SystemLocale::Info(int item) const {
  const ThreadLocale scope(locale_);
  return Widen(nl_langinfo_l(item, static_cast<locale_t>(locale_)));
}

std::wstring SystemLocale::DecimalSeparator() const {
  const std::wstring mark = Info(RADIXCHAR);
  return mark.empty() ? L"." : mark;
}

std::wstring SystemLocale::ThousandsSeparator() const {
  const std::wstring mark = Info(THOUSEP);
  if (!mark.empty()) return mark;
  return DecimalSeparator() == L"," ? L"." : L",";
}

std::wstring SystemLocale::MonthName(int month) const {
  return month >= 1 && month <= 12 ? Info(MON_1 + month - 1) : std::wstring();
}

std::wstring SystemLocale::DayName(int weekday) const {
  return weekday >= 0 && weekday <= 6 ? Info(DAY_1 + weekday) : std::wstring();
}

std::wstring SystemLocale::DateTimeText(const std::tm& local) const {
  const ThreadLocale scope(locale_);
  std::array<wchar_t, 128> text{};
  return {text.data(), std::wcsftime(text.data(), text.size(), L"%x %X", &local)};
}

}  // namespace xrpt
