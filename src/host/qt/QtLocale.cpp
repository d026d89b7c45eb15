#include "host/qt/QtLocale.h"

#include <QDateTime>

namespace xrpt {

std::wstring QtLocale::DecimalSeparator() const {
  const QString mark = locale_.decimalPoint();
  return mark.isEmpty() ? L"." : mark.toStdWString();
}

std::wstring QtLocale::ThousandsSeparator() const {
  const QString mark = locale_.groupSeparator();
  if (!mark.isEmpty()) return mark.toStdWString();
  return DecimalSeparator() == L"," ? L"." : L",";
}

std::wstring QtLocale::MonthName(int month) const {
  return month >= 1 && month <= 12 ? locale_.standaloneMonthName(month).toStdWString() : std::wstring();
}

std::wstring QtLocale::DayName(int weekday) const {
  if (weekday < 0 || weekday > 6) return {};
  return locale_.standaloneDayName(weekday == 0 ? Qt::Sunday : weekday).toStdWString();
}

std::wstring QtLocale::DateTimeText(const std::tm& local) const {
  const QDate date(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
  const QTime time(local.tm_hour, local.tm_min, std::min(local.tm_sec, 59));
  return locale_.toString(QDateTime(date, time), QLocale::ShortFormat).toStdWString();
}

}  // namespace xrpt
