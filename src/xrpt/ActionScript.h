// Action files: one action a line, `#` starts a comment. Parsed whole before anything runs, so that a mistake in the
// last line leaves the report untouched.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace xrpt {

struct Action {
  std::string name;
  std::vector<std::string> arguments;
  int line = 0;  // from 1
};

// Words of a line; double quotes hold words with spaces together, and within them \" and \\ stand for themselves.
// Nothing when a quote is not closed.
std::optional<std::vector<std::string>> SplitWords(std::string_view line);

struct ScriptError {
  int line = 0;
  std::string message;
};

// The actions of a text, each known and with arguments of the right number and kind. Nothing, and the first error,
// otherwise.
std::optional<std::vector<Action>> ParseScript(std::string_view text, ScriptError& error);

// Whole numbers and decimals of a script, strict: the whole word must be one.
std::optional<int> ScriptInteger(std::string_view word);
std::optional<double> ScriptNumber(std::string_view word);

}  // namespace xrpt
