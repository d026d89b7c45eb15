#include "host/expressions/Tokenizer.h"

#include <algorithm>

#include "host/expressions/Functions.h"
#include "platform/Characters.h"
#include "platform/Numbers.h"

namespace xrpt {
namespace {

struct Sign {
  std::wstring_view text;
  int type;
  Operator op;
};

// The longer of two that begin alike comes first.
constexpr Sign kSigns[] = {
    {L"<=", kTokenOperator, Operator::LessOrEqual},
    {L">=", kTokenOperator, Operator::GreaterOrEqual},
    {L"==", kTokenOperator, Operator::Equal},
    {L"!=", kTokenOperator, Operator::NotEqual},
    {L"&&", kTokenOperator, Operator::And},
    {L"||", kTokenOperator, Operator::Or},
    {L"+", kTokenOperator, Operator::Add},
    {L"-", kTokenOperator, Operator::Subtract},
    {L"*", kTokenOperator, Operator::Multiply},
    {L"/", kTokenOperator, Operator::Divide},
    {L"^", kTokenOperator, Operator::Power},
    {L"<", kTokenOperator, Operator::Less},
    {L">", kTokenOperator, Operator::Greater},
    {L"!", kTokenOperator, Operator::Not},
    {L"(", kTokenOpen, Operator::None},
    {L")", kTokenClose, Operator::None},
    {L",", kTokenSeparator, Operator::None},
};

constexpr std::wstring_view kModuleMark = L"::";

}  // namespace

Token Tokenizer::Next() {
  while (at_ < text_.size() && IsWhiteSpace(text_[at_])) ++at_;
  if (at_ == text_.size()) return {kTokenEnd, at_, 0, {}};
  const wchar_t c = text_[at_];
  if (IsDecimalDigit(c) || (c == L'.' && IsDecimalDigit(At(at_ + 1)))) return NumberToken();
  if (IsNameCharacter(c)) return NameToken();
  if (c == L'[') return VariableToken();
  return SignToken();
}

Token Tokenizer::Take(int type, std::size_t length) {
  Token token{type, at_, length, text_.substr(at_, length)};
  at_ += length;
  return token;
}

Token Tokenizer::NumberToken() {
  std::size_t end = SkipDigits(at_);
  if (At(end) == L'.') end = SkipDigits(end + 1);
  Token token = Take(kTokenNumber, SkipExponent(end) - at_);
  token.number = ParseDecimal(token.text);
  return token;
}

std::size_t Tokenizer::SkipDigits(std::size_t at) const {
  while (IsDecimalDigit(At(at))) ++at;
  return at;
}

// An "e" without digits behind it is no exponent.
std::size_t Tokenizer::SkipExponent(std::size_t at) const {
  if (At(at) != L'e' && At(at) != L'E') return at;
  const std::size_t digits = at + (At(at + 1) == L'+' || At(at + 1) == L'-' ? 2 : 1);
  return IsDecimalDigit(At(digits)) ? SkipDigits(digits) : at;
}

std::size_t Tokenizer::NameEnd(std::size_t at) const {
  while (at < text_.size() && IsNameCharacter(text_[at])) ++at;
  return at;
}

Token Tokenizer::NameToken() {
  std::size_t end = NameEnd(at_);
  if (text_.substr(end, kModuleMark.size()) == kModuleMark) {
    const std::size_t name = end + kModuleMark.size();
    end = NameEnd(name);
    return Take(end > name ? kTokenModule : kTokenWrong, end - at_);
  }
  Token token = Take(kTokenName, end - at_);
  token.function = FindFunction(token.text);
  if (token.function >= 0) token.type = kTokenFunction;
  return token;
}

// A bracket that is never closed is wrong from there to the end.
Token Tokenizer::VariableToken() {
  const std::size_t end = text_.find_first_of(L"[]", at_ + 1);
  if (end == text_.npos || text_[end] == L'[') return Take(kTokenWrong, std::min(end, text_.size()) - at_);
  Token token = Take(kTokenDriverVariable, end + 1 - at_);
  token.text = Trimmed(token.text.substr(1, token.length - 2));
  return token;
}

Token Tokenizer::SignToken() {
  const std::wstring_view rest = text_.substr(at_);
  for (const Sign& sign : kSigns) {
    if (rest.front() != sign.text.front() || rest.substr(0, sign.text.size()) != sign.text) continue;
    Token token = Take(sign.type, sign.text.size());
    token.op = sign.op;
    return token;
  }
  return Take(kTokenWrong, 1);
}

}  // namespace xrpt
