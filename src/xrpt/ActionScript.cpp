#include "xrpt/ActionScript.h"

#include <charconv>

#include "editor/CommandCatalogue.h"
#include "xrpt/ActionNames.h"

namespace xrpt {
namespace {

bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\r'; }

bool IsModifier(std::string_view word) { return word == "ctrl" || word == "shift"; }

// What an argument has to be.
using Check = bool (*)(std::string_view);

bool IsInteger(std::string_view word) { return ScriptInteger(word).has_value(); }
bool IsCount(std::string_view word) { return ScriptInteger(word).value_or(-1) >= 0; }
bool IsPositive(std::string_view word) { return ScriptInteger(word).value_or(0) > 0; }
// Beyond what any screen has; within it pixels can be calculated with, and a script ends.
template <int Limit>
bool IsUpTo(std::string_view word) {
  return IsPositive(word) && *ScriptInteger(word) <= Limit;
}
constexpr int kMostPixels = 100'000;
constexpr int kMostDpi = 10'000;
constexpr int kMostTicks = 1'000'000;
constexpr double kMostZoom = 1'000.0;
bool IsNumber(std::string_view word) { return ScriptNumber(word).has_value(); }
bool IsZoom(std::string_view word) {
  const double zoom = ScriptNumber(word).value_or(0.0);
  return word == "fit" || word == "width" || (zoom > 0.0 && zoom <= kMostZoom);
}
bool IsCase(std::string_view word) { return word == "case"; }
bool IsAnswer(std::string_view word) { return word == "yes" || word == "no"; }
bool IsAny(std::string_view) { return true; }
bool IsTool(std::string_view word) { return ToolOf(word).has_value(); }
bool IsKey(std::string_view word) { return KeyOf(word).has_value(); }
bool IsCommand(std::string_view word) { return FindCommand(word) != nullptr; }

// An action's fixed arguments, and what may follow them.
struct Shape {
  std::string_view name;
  std::vector<Check> arguments;
  Check rest;  // null: nothing may follow
};

const std::vector<Shape>& Shapes() {
  static const std::vector<Shape> shapes = {
      {"client", {IsUpTo<kMostPixels>, IsUpTo<kMostPixels>}, nullptr},
      {"dpi", {IsUpTo<kMostDpi>, IsUpTo<kMostDpi>}, nullptr},
      {"zoom", {IsZoom}, nullptr},
      {"scroll", {IsCount, IsCount}, nullptr},
      {"page", {IsPositive}, nullptr},
      {"grid", {IsNumber, IsNumber}, nullptr},
      {"tool", {IsTool}, nullptr},
      {"press", {IsInteger, IsInteger}, IsModifier},
      {"move", {IsInteger, IsInteger}, nullptr},
      {"release", {IsInteger, IsInteger}, nullptr},
      {"lose-capture", {}, nullptr},
      {"key", {IsKey}, IsModifier},
      {"select", {}, IsAny},
      {"command", {IsCommand}, IsAny},
      {"tick", {IsUpTo<kMostTicks>}, nullptr},
      {"set", {IsAny, IsAny, IsAny}, IsAny},
      {"answer", {IsAnswer}, nullptr},
      {"new", {}, nullptr},
      {"open", {IsAny}, nullptr},
      {"save", {}, nullptr},
      {"save-as", {}, IsAny},
      {"rename", {IsAny}, nullptr},
      {"formula-add", {IsAny, IsAny}, nullptr},
      {"formula-modify", {IsAny, IsAny, IsAny}, nullptr},
      {"formula-delete", {IsAny}, IsAny},
      {"formula-copy", {IsAny}, IsAny},
      {"formula-paste", {}, nullptr},
      {"device-add", {IsAny}, nullptr},
      {"device-modify", {IsAny, IsAny}, nullptr},
      {"device-delete", {IsAny}, nullptr},
      {"goback-add", {IsAny}, nullptr},
      {"goback-modify", {IsAny, IsAny}, nullptr},
      {"goback-delete", {IsAny}, nullptr},
      {"search", {IsAny}, IsCase},
      {"replace", {IsAny, IsAny}, IsCase},
      {"replace-all", {IsAny, IsAny}, IsCase},
      {"print", {}, nullptr},
  };
  return shapes;
}

// Why an action cannot be; empty when it can.
std::string FaultOf(const Action& action) {
  for (const Shape& shape : Shapes()) {
    if (shape.name != action.name) continue;
    const std::size_t fixed = shape.arguments.size();
    if (action.arguments.size() < fixed) return action.name + ": an argument is missing";
    if (action.arguments.size() > fixed && !shape.rest) return action.name + ": too many arguments";
    for (std::size_t i = 0; i < action.arguments.size(); ++i) {
      const Check check = i < fixed ? shape.arguments[i] : shape.rest;
      if (!check(action.arguments[i])) return action.name + ": \"" + action.arguments[i] + "\" is not understood";
    }
    return {};
  }
  return "unknown action \"" + action.name + "\"";
}

template <class Number>
std::optional<Number> Whole(std::string_view word) {
  Number value{};
  const auto result = std::from_chars(word.data(), word.data() + word.size(), value);
  if (result.ec != std::errc() || result.ptr != word.data() + word.size()) return std::nullopt;
  return value;
}

}  // namespace

std::optional<int> ScriptInteger(std::string_view word) { return Whole<int>(word); }

std::optional<double> ScriptNumber(std::string_view word) { return Whole<double>(word); }

std::optional<std::vector<std::string>> SplitWords(std::string_view line) {
  std::vector<std::string> words;
  std::string word;
  bool inWord = false;
  bool quoted = false;
  for (std::size_t at = 0; at < line.size(); ++at) {
    const char c = line[at];
    if (!quoted && (IsSpace(c) || c == '#')) {
      if (inWord) words.push_back(word);
      word.clear();
      inWord = false;
      if (c == '#') break;
      continue;
    }
    inWord = true;
    if (c == '"') {
      quoted = !quoted;
    } else if (quoted && c == '\\' && at + 1 < line.size()) {
      word += line[++at];
    } else {
      word += c;
    }
  }
  if (quoted) return std::nullopt;
  if (inWord) words.push_back(word);
  return words;
}

std::optional<std::vector<Action>> ParseScript(std::string_view text, ScriptError& error) {
  std::vector<Action> actions;
  for (error.line = 1; !text.empty(); ++error.line) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::optional<std::vector<std::string>> words = SplitWords(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    if (!words) {
      error.message = "a quote is not closed";
      return std::nullopt;
    }
    if (words->empty()) continue;
    Action action{words->front(), {words->begin() + 1, words->end()}, error.line};
    error.message = FaultOf(action);
    if (!error.message.empty()) return std::nullopt;
    actions.push_back(std::move(action));
  }
  return actions;
}

}  // namespace xrpt
