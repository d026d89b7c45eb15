// Numbers at the edge: the C library is the oracle for what is read, and reading for what is written.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <cwchar>
#include <limits>

#include "platform/Geometry.h"
#include "platform/Numbers.h"

namespace xrpt {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// To the bit, but for the many ways to be no number.
bool Same(double left, double right) {
  if (std::isnan(left) || std::isnan(right)) return std::isnan(left) && std::isnan(right);
  return left == right && std::signbit(left) == std::signbit(right);
}

double Library(std::string_view text) { return std::wcstod(std::wstring(text.begin(), text.end()).c_str(), nullptr); }

TEST(Numbers, DecimalsAreReadAsTheLibraryReadsThem) {
  for (const char* text : {"",
                           "-",
                           "+",
                           ".",
                           "0",
                           "-0",
                           "-0.00",
                           "5",
                           " \t\n5",
                           "+5",
                           "--5",
                           "-+5",
                           "+-5",
                           "- 5",
                           "12.50",
                           "12.5.7",
                           "12,5",
                           "1e3",
                           "1e",
                           "1e+",
                           "-1e-3",
                           "1e999",
                           "-1e999",
                           "1e-999",
                           "0.1e999",
                           "2e545e-",
                           "0x1p-5000",
                           "0x1p5000",
                           "0.0e9999",
                           "-.",
                           "0.0000000001",
                           "1234567890",
                           "12345678901",
                           "0.1234567891",
                           "0x1F",
                           "-0x.8p1",
                           "0x",
                           "inf",
                           "-Infinity",
                           "nan",
                           "-nan",
                           "infinite",
                           "T",
                           "99999999999999999999",
                           "4.9e-324",
                           "1.7976931348623157e308",
                           "1\x01",
                           "\x80"
                           "1"}) {
    EXPECT_TRUE(Same(ParseDecimal(text), Library(text))) << text << " reads as " << ParseDecimal(text);
  }
}

RC_GTEST_PROP(NumberProperties, AnythingMadeOfNumbersReadsAsTheLibraryReadsIt, ()) {
  const auto text =
      *rc::gen::container<std::string>(rc::gen::elementOf(std::string("0123456789012345678905+-. eEnaif")));
  RC_ASSERT(Same(ParseDecimal(text), Library(text)));
  const std::wstring wide(text.begin(), text.end());
  RC_ASSERT(Same(ParseDecimal(wide), Library(text)));
  const long long whole = std::wcstoll(wide.c_str(), nullptr, 10);
  RC_ASSERT(ParseInteger(text) == std::clamp<long long>(whole, std::numeric_limits<std::int32_t>::min(),
                                                        std::numeric_limits<std::int32_t>::max()));
}

RC_GTEST_PROP(NumberProperties, WhatIsWrittenReadsBack, (double value, Color color)) {
  RC_ASSERT(Same(ParseDecimal(FormatExact(value)), value));
  RC_ASSERT(ParseColor(FormatColor(color)) == color);
  char printed[400];
  std::snprintf(printed, sizeof printed, "%.2f", value);
  RC_ASSERT(FormatDecimal(value) == printed);
}

TEST(Numbers, TooLargeAndTooSmallOnesOfAnyLength) {
  const std::string zeros(500, '0');
  for (const std::string& text : {"1" + zeros, "0." + zeros + "1", "1" + zeros + "e-500", "0." + zeros + "1e501",
                                  "000" + zeros + "1e400", "0x" + zeros + "1", "0x1" + zeros, "0x0." + zeros + "1"}) {
    EXPECT_TRUE(Same(ParseDecimal(text), Library(text))) << text << " reads as " << ParseDecimal(text);
  }
}

TEST(Numbers, WideOnesEndAtTheFirstForeignCharacter) {
  EXPECT_EQ(ParseDecimal(L"1.5\x20AC"
                         L"7"),
            1.5);
  EXPECT_EQ(ParseDecimal(L"\x0661\x0662"), 0.0);
  EXPECT_EQ(ParseInteger(L"12\x00A0"), 12);
  EXPECT_EQ(ParseColor(L"FF\x0100"
                       L"FF"),
            0xFFu);
}

TEST(Numbers, ColoursAreHexadecimal) {
  const std::pair<const char*, Color> rows[] = {{"FF8000", 0xFF8000},
                                                {"ff8000", 0xFF8000},
                                                {"0x10", 0x10},
                                                {"FFFFFFFF", 0xFFFFFFFF},
                                                {"100000000", kNoColor},
                                                {"-1", 0xFFFFFFFF},
                                                {"12G4", 0x12},
                                                {"", 0},
                                                {"#FF", 0},
                                                {" 7F", 0x7F},
                                                {"0x", 0}};
  for (const auto& [text, color] : rows) EXPECT_EQ(ParseColor(text), color) << text;
  EXPECT_EQ(FormatColor(0), "000000");
  EXPECT_EQ(FormatColor(0xABC), "000ABC");
  EXPECT_EQ(FormatColor(0x1000000), "1000000");
}

TEST(Numbers, DecimalsAreCountedWithinReason) {
  EXPECT_EQ(FormatFixed(1.005, 0), "1");
  EXPECT_EQ(FormatFixed(2.5, -3), "2");  // half to even, as printf does
  EXPECT_EQ(FormatFixed(1.0, 1000).size(), 42u);
  EXPECT_EQ(FormatFixed(-kInfinity, 2), "-inf");
  EXPECT_EQ(FormatExact(0.1), "0.1");
}

TEST(Geometry, RoundsAwayFromZeroAndClampsWhatNoIntegerHolds) {
  const struct {
    double value;
    int rounded;
    int truncated;
    int pixel;
  } rows[] = {{0.5, 1, 0, 1},
              {-0.5, -1, 0, -1},
              {2.49, 2, 2, 2},
              {-7.9, -8, -7, -8},
              {1e10, 2147483647, 2147483647, 1 << 26},
              {-1e300, -2147483647 - 1, -2147483647 - 1, -(1 << 26)},
              {kInfinity, 2147483647, 2147483647, 1 << 26},
              {std::nan(""), 0, 0, 0}};
  for (const auto& row : rows) {
    EXPECT_EQ(roundi(row.value), row.rounded) << row.value;
    EXPECT_EQ(trunci(row.value), row.truncated) << row.value;
    EXPECT_EQ(ToPixel(row.value), row.pixel) << row.value;
  }
}

TEST(Geometry, RectanglesHoldTheirFirstEdgesOnly) {
  const Rect rect{10, 20, 30, 25};
  EXPECT_EQ(rect.Width(), 20);
  EXPECT_EQ(rect.Height(), 5);
  for (const Point inside : {Point{10, 20}, Point{29, 24}, Point{15, 22}}) EXPECT_TRUE(rect.Contains(inside));
  for (const Point outside : {Point{9, 20}, Point{10, 19}, Point{30, 24}, Point{29, 25}}) {
    EXPECT_FALSE(rect.Contains(outside)) << outside.x << ' ' << outside.y;
  }
  Rect moved{30, 25, 10, 20};
  moved.Normalize();
  EXPECT_EQ(moved, rect);
  moved.Offset(-3, 4);
  EXPECT_EQ(moved, (Rect{7, 24, 27, 29}));
  const RectD exact(1.0, 2.0, 4.0, 8.0);
  EXPECT_EQ(exact.Center(), (PointD{2.5, 5.0}));
  EXPECT_EQ(exact.Width() * 100 + exact.Height(), 306.0);
}

}  // namespace
}  // namespace xrpt
