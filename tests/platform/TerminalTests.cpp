// Nothing that a terminal would obey comes out of a report.
#include "platform/Json.h"
#include "platform/Text.h"

#include <gtest/gtest.h>

namespace xrpt {
namespace {

// Escape, a C1 control sequence introducer, delete, right-to-left override, line separator, and honest letters.
constexpr const char* kHostile =
    "a\x1B[2J\xC2\x9B"
    "31m\x7F\xE2\x80\xAE\xE2\x80\xA8\r\n\tñ€";

TEST(Terminal, SeesNoCommands) {
  EXPECT_EQ(ForTerminal(kHostile), "a [2J 31m      ñ€");
  EXPECT_EQ(ForTerminal(kHostile, true), "a [2J 31m    \n\tñ€");
}

TEST(Terminal, JsonKeepsEveryCharacterAndShowsNone) {
  JsonWriter out;
  out.String(std::string_view(kHostile));
  EXPECT_EQ(out.Text(), R"("a\u001b[2J\u009b31m\u007f\u202e\u2028\r\n\tñ€")");
}

}  // namespace
}  // namespace xrpt
