#include "model/DateFormat.h"

namespace xrpt {
namespace {

// A pattern is hostile input too: no run asks for more zeros than this.
constexpr std::size_t kMaxWidth = 64;

std::wstring Padded(int number, std::size_t width) {
  std::wstring text = std::to_wstring(number);
  const std::size_t wanted = std::min(width, kMaxWidth);
  return text.size() < wanted ? std::wstring(wanted - text.size(), L'0') + text : text;
}

std::wstring Year(const std::tm& moment, std::size_t width) {
  const int year = moment.tm_year + 1900;
  return width >= 3 ? Padded(year, width) : Padded(year % 100, 2);
}

std::wstring Month(const std::tm& moment, std::size_t width, const LocaleService& locale) {
  if (width <= 2) return Padded(moment.tm_mon + 1, width);
  const std::wstring name = locale.MonthName(moment.tm_mon + 1);
  return width == 3 ? name.substr(0, 3) : name;
}

std::wstring Weekday(const std::tm& moment, std::size_t width, const LocaleService& locale) {
  const std::wstring name = locale.DayName(moment.tm_wday);
  return width < 4 ? name.substr(0, 3) : name;
}

bool IsField(wchar_t letter) { return std::wstring_view(L"yMdEHms").find(letter) != std::wstring_view::npos; }

std::wstring DateField(wchar_t letter, std::size_t width, const std::tm& moment, const LocaleService& locale) {
  switch (letter) {
    case L'y':
      return Year(moment, width);
    case L'M':
      return Month(moment, width, locale);
    case L'd':
      return Padded(moment.tm_mday, width);
    case L'E':
      return Weekday(moment, width, locale);
    case L'H':
      return Padded(moment.tm_hour, width);
    case L'm':
      return Padded(moment.tm_min, width);
    default:
      return Padded(moment.tm_sec, width);
  }
}

// Takes a quoted stretch that starts at `at` (a quote) and moves past it.
std::wstring Quoted(std::wstring_view pattern, std::size_t& at) {
  if (at + 1 < pattern.size() && pattern[at + 1] == L'\'') {
    at += 2;
    return L"'";
  }
  std::wstring text;
  for (++at; at < pattern.size(); ++at) {
    if (pattern[at] != L'\'') {
      text += pattern[at];
    } else if (at + 1 < pattern.size() && pattern[at + 1] == L'\'') {
      text += pattern[at++];
    } else {
      ++at;
      break;
    }
  }
  return text;
}

}  // namespace

std::wstring ParseDate(std::wstring_view pattern, const std::tm& moment, const LocaleService& locale) {
  std::wstring out;
  for (std::size_t at = 0; at < pattern.size();) {
    const wchar_t letter = pattern[at];
    if (letter == L'\'') {
      out += Quoted(pattern, at);
    } else if (!IsField(letter)) {
      out += letter;
      ++at;
    } else {
      const std::size_t end = std::min(pattern.find_first_not_of(letter, at), pattern.size());
      out += DateField(letter, end - at, moment, locale);
      at = end;
    }
  }
  return out;
}

}  // namespace xrpt
