// An expression made ready to run: flat code for a machine with a stack.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/expressions/Tokenizer.h"

namespace xrpt {

// What is wrong with an expression; none when the text is 0.
struct ExpressionError {
  int text = 0;
  std::wstring argument = {};  // for the "%s" of the text
  std::size_t position = 0;    // characters from 1, 0 when no place is to blame
};

struct Instruction {
  enum class Kind : std::uint8_t { Constant, Name, Variable, Module, Operate, Negate, Call };
  Kind kind;
  std::uint8_t what = 0;    // the operator or the function
  std::uint32_t index = 0;  // of the constant, name or variable; the number of arguments of a call
};

// A name in the text. The text must outlive the program.
struct Reference {
  std::wstring_view text;
  std::size_t position;  // of its first appearance: characters from 0, brackets included
  std::size_t length;
};

struct Program {
  // Longer or deeper texts are refused, which bounds what one expression costs.
  static constexpr std::size_t kLongest = 65536;  // characters
  static constexpr int kDeepest = 256;            // parentheses, signs and powers within each other

  std::vector<Instruction> code;
  std::vector<double> constants;
  std::vector<Reference> names;      // each once
  std::vector<Reference> variables;  // each once
  std::optional<Reference> module;   // the first
  bool logical = false;
  ExpressionError error;  // when there is one, the rest is what was read before it
};

Program Compile(std::wstring_view text);

}  // namespace xrpt
