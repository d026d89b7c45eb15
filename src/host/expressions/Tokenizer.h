// Cuts an expression into tokens, one at a time and without copying.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/Expressions.h"

namespace xrpt {

// What stands between operands.
enum class Operator {
  None,
  Add,
  Subtract,
  Multiply,
  Divide,
  Power,
  Less,
  LessOrEqual,
  Greater,
  GreaterOrEqual,
  Equal,
  NotEqual,
  And,
  Or,
  Not,
};

struct Token {
  int type = kTokenWrong;  // see TokenType; 0 at the end of the text
  std::size_t position = 0;
  std::size_t length = 0;
  std::wstring_view text;        // a name, a function, a driver variable without its brackets; else as it stands
  double number = 0.0;           // of a number
  Operator op = Operator::None;  // of an operator
  int function = -1;             // of a function: its place in the table
};

inline constexpr int kTokenEnd = 0;

class Tokenizer {
 public:
  // The text must outlive the tokenizer and its tokens.
  explicit Tokenizer(std::wstring_view text) : text_(text) {}
  // The end again and again once it is reached.
  Token Next();

 private:
  Token NumberToken();
  Token NameToken();
  Token VariableToken();
  Token SignToken();
  std::size_t NameEnd(std::size_t at) const;
  std::size_t SkipDigits(std::size_t at) const;
  std::size_t SkipExponent(std::size_t at) const;
  wchar_t At(std::size_t at) const { return at < text_.size() ? text_[at] : L'\0'; }
  Token Take(int type, std::size_t length);

  std::wstring_view text_;
  std::size_t at_ = 0;
};

}  // namespace xrpt
