// How formula and date cards show what they hold, by rows.
#include <cmath>

#include "CardSupport.h"
#include "model/DateFormat.h"
#include "model/NumberFormat.h"
#include "model/RVCardFormule.h"

namespace xrpt {
namespace {

struct ParsedFormat {
  const wchar_t* text;
  int integers;
  int decimals;
  bool left;
  bool right;
};

TEST(NumberFormats, AreReadFromATextWithAPoint) {
  static constexpr ParsedFormat rows[] = {
      {L"5", -1, 3, false, false},    {L"", -1, 3, false, false},         {L"5.2", 5, 2, false, false},
      {L"05.02", 5, 2, true, true},   {L"123.4", -1, 4, false, false},    {L"5.", 5, -1, false, false},
      {L".2", -1, 2, false, false},   {L"12.34", 2, 4, false, false},     {L"0Z.1", 12, 1, true, false},
      {L" .1", -16, 1, false, false}, {L"0 .0 ", -16, -16, false, false}, {L"1.z", 1, 9, false, false},
      {L"1.123", 1, 3, false, false}, {L"1.2.3", 1, 3, false, false}};
  for (const ParsedFormat& row : rows) {
    std::int32_t integers = 0;
    std::int32_t decimals = 0;
    bool left = true;
    bool right = true;
    RVCardFormule::ParseFormat(row.text, integers, decimals, left, right);
    EXPECT_EQ(std::tuple(integers, decimals, left, right), std::tuple(row.integers, row.decimals, row.left, row.right))
        << ToUtf8(row.text);
  }
}

struct Formatted {
  double value;
  NumberFormat format;  // integers, decimals, thousands, left, right
  const wchar_t* text;
};

TEST(NumberFormats, ShowAValue) {
  const double infinity = std::numeric_limits<double>::infinity();
  const Formatted rows[] = {{2.5, {-1, 3, false, false, false}, L"2.5"},
                            {2.5, {-1, 3, false, false, true}, L"2.500"},
                            {3.0, {-1, 3, false, false, false}, L"3"},
                            {3.0, {-1, 0, false, false, true}, L"3"},
                            {1234.5, {2, 1, false, false, false}, L"**.*"},
                            {-12.5, {2, 1, false, false, false}, L"**.*"},
                            {123.0, {2, 0, false, false, false}, L"**"},
                            {-7.0, {4, 0, false, true, false}, L"-0007"},
                            {7.25, {4, 1, false, true, false}, L"0007.2"},
                            {7.0, {-1, 2, false, true, true}, L"7.00"},
                            {1234567.5, {-1, 2, true, false, false}, L"1,234,567.5"},
                            {-123456.0, {-1, 2, true, false, false}, L"-123,456"},
                            {123.0, {-1, 2, true, false, false}, L"123"},
                            {7.0, {4, 0, true, true, false}, L"0,007"},
                            {1.0 / 3.0, {-1, -1, false, false, false}, L"0.33333"},
                            {infinity, {-1, 3, false, false, false}, L"#"},
                            {-infinity, {-1, 3, false, false, false}, L"#"},
                            {std::nan(""), {-1, 3, false, false, false}, L"#"},
                            {1e300, {2147483647, 2147483647, false, true, false}, nullptr}};
  for (const Formatted& row : rows) {
    const std::wstring text = FormatDouble(row.value, row.format, {});
    EXPECT_TRUE(!row.text || text == row.text) << row.value << " " << ToUtf8(text);
    EXPECT_LT(text.size(), 1000u) << "hostile counts are bounded";
  }
  EXPECT_EQ(FormatDouble(1234.5, {-1, 2, true, false, true}, {L",", L"."}), L"1.234,50");
}

TEST(DateFormats, ShowAMoment) {
  std::tm moment{};
  moment.tm_year = 2024 - 1900;
  moment.tm_mon = 10;
  moment.tm_mday = 7;
  moment.tm_wday = 4;
  moment.tm_hour = 5;
  moment.tm_min = 3;
  moment.tm_sec = 9;
  static constexpr std::pair<const wchar_t*, const wchar_t*> rows[] = {{L"dd/MM/yyyy HH:mm:ss", L"07/11/2024 05:03:09"},
                                                                       {L"d.M.yy H:m:s", L"7.11.24 5:3:9"},
                                                                       {L"y yyy yyyyyy", L"24 2024 002024"},
                                                                       {L"MMM MMMM MMMMM", L"Nov November November"},
                                                                       {L"E EEE EEEE", L"Thu Thu Thursday"},
                                                                       {L"'at' HH 'o''clock'", L"at 05 o'clock"},
                                                                       {L"''d''", L"'7'"},
                                                                       {L"'open dd", L"open dd"},
                                                                       {L"ddd hh", L"007 hh"},
                                                                       {L"", L""}};
  for (const auto& [pattern, text] : rows) {
    EXPECT_EQ(ToUtf8(ParseDate(pattern, moment, PlainLocale())), ToUtf8(text)) << ToUtf8(pattern);
  }
  EXPECT_LT(ParseDate(std::wstring(100000, L'd'), moment, PlainLocale()).size(), 1000u);
}

}  // namespace
}  // namespace xrpt
