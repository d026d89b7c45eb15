// Numbers and dates as the user writes them, asked of the C library without touching the program's own locale.
#pragma once

#include "platform/Host.h"

namespace xrpt {

class SystemLocale final : public LocaleService {
 public:
  // An empty name is the user's own locale; one the system does not know is taken as "C".
  explicit SystemLocale(const char* name = "");
  ~SystemLocale() override;
  SystemLocale(const SystemLocale&) = delete;
  SystemLocale& operator=(const SystemLocale&) = delete;

  std::wstring DecimalSeparator() const override;
  std::wstring ThousandsSeparator() const override;
  std::wstring MonthName(int month) const override;
  std::wstring DayName(int weekday) const override;
  std::wstring DateTimeText(const std::tm& local) const override;

 private:
  std::wstring Info(int item) const;

  void* locale_;
};

}  // namespace xrpt
