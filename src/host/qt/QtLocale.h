// Numbers and dates as the user's desktop is set to write them.
#pragma once

#include <QLocale>

#include "platform/Host.h"

namespace xrpt {

class QtLocale final : public LocaleService {
 public:
  explicit QtLocale(QLocale locale = QLocale::system()) : locale_(std::move(locale)) {}
  std::wstring DecimalSeparator() const override;
  std::wstring ThousandsSeparator() const override;
  std::wstring MonthName(int month) const override;
  std::wstring DayName(int weekday) const override;
  std::wstring DateTimeText(const std::tm& local) const override;

 private:
  QLocale locale_;
};

}  // namespace xrpt
