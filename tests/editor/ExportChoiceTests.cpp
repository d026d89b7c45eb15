// Pages to export, as people write them.
#include <gmock/gmock.h>

#include "editor/ExportChoice.h"

namespace xrpt {
namespace {

TEST(ExportChoice, PagesAreReadAsPeopleWriteThem) {
  const std::pair<const wchar_t*, PageNumbers> rows[] = {
      {L"2", {1}}, {L" 1 - 3 , 5", {0, 1, 2, 4}}, {L"5;4,4", {3, 4}}, {L"4-", {3, 4}}, {L"-2", {0, 1}}, {L"3-3", {2}},
  };
  for (const auto& [text, pages] : rows) EXPECT_EQ(PagesFrom(text, 5), pages) << text;
  for (const wchar_t* text : {L"", L" ", L",", L"1,", L"0", L"6", L"3-1", L"-", L"1-2-3", L"two", L"1.5",
                              L"99999999999999999999999999", L"1-99999999999999999999999"})
    EXPECT_EQ(PagesFrom(text, 5), std::nullopt) << text;
}

}  // namespace
}  // namespace xrpt
