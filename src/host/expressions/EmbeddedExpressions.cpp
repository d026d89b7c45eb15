#include "host/expressions/EmbeddedExpressions.h"

#include "host/expressions/Circles.h"
#include "host/expressions/Evaluator.h"
#include "host/expressions/ExpressionTexts.h"

namespace xrpt {
namespace {

int TextOf(int code) {
  switch (code) {
    case kEvaluationFails:
      return text::kFailsWhenEvaluated;
    case kUndefinedNames:
      return text::kNamesNotDefined;
    case kNoLiveValue:
      return text::kNoLiveValueYet;
    default:
      return text::kCannotBeEvaluated;
  }
}

constexpr int kEveryFormula = -1;

}  // namespace

std::unique_ptr<RVEvaluator> EmbeddedExpressions::NewEvaluator(std::wstring_view text) {
  return std::make_unique<Evaluator>(host_, text);
}

std::wstring EmbeddedExpressions::ErrorMsg(int code) const {
  return code == kEvaluated ? std::wstring() : host_.texts->Text(TextOf(code));
}

int EmbeddedExpressions::CheckBucles(std::span<const std::wstring> names, std::span<const std::wstring> texts,
                                     int index) const {
  if (index == kEveryFormula) return HasCircle(names, texts) ? 1 : 0;
  return index >= 1 && LeadsIntoCircle(names, texts, static_cast<std::size_t>(index - 1)) ? 1 : 0;
}

bool EmbeddedExpressions::isThereAModuleInExpression(std::wstring_view text) const {
  Tokenizer tokenizer(text);
  for (Token token = tokenizer.Next(); token.type != kTokenEnd; token = tokenizer.Next()) {
    if (token.type == kTokenModule) return true;
  }
  return false;
}

}  // namespace xrpt
