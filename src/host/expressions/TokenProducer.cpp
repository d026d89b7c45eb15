#include "host/expressions/TokenProducer.h"

#include "host/expressions/Functions.h"
#include "host/expressions/Program.h"

namespace xrpt {
namespace {

const Function* FunctionAt(int index) {
  const auto at = static_cast<std::size_t>(index);
  return index >= 0 && at < Functions().size() ? &Functions()[at] : nullptr;
}

}  // namespace

int TokenProducer::NumberOfFunctions() const { return static_cast<int>(Functions().size()); }

std::wstring TokenProducer::GetFunction(int index) const {
  const Function* function = FunctionAt(index);
  return function ? std::wstring(function->name) : std::wstring();
}

FunctionHelp TokenProducer::GetFunctionHelp(int index) const {
  const Function* function = FunctionAt(index);
  if (!function) return {};
  const TextService& texts = *host_.texts;
  return {std::wstring(function->name), std::wstring(function->use), texts.Text(function->helpText),
          texts.Text(function->helpText + 1)};
}

std::vector<RVToken> TokenProducer::Tokens(std::wstring_view text) const {
  std::vector<RVToken> tokens;
  Tokenizer tokenizer(text.substr(0, Program::kLongest));
  for (Token token = tokenizer.Next(); token.type != kTokenEnd; token = tokenizer.Next()) {
    tokens.emplace_back(token.type, std::wstring(token.text), token.position, token.length);
  }
  return tokens;
}

}  // namespace xrpt
