// All that the host's evaluator says of an expression, asked at once.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Xml.h"

namespace xrpt {

// How the host's evaluator is to be used.
struct EvaluatorSettings {
  std::vector<int> features;  // the host's numbers
  bool discriminators = true;
};

struct ExpressionReport {
  int analysis = 0;               // 0 numeric, 1 logical, else no expression
  std::optional<int> evaluation;  // see EvaluationCode; none for what is no expression
  int type = 0;                   // of the value: 1 logical
  double value = 0.0;             // when `evaluation` is 0 or 62
  std::vector<std::wstring> undefined;
  std::vector<std::wstring> variables;
  std::wstring error;        // empty when there is none
  std::size_t position = 0;  // of the error: characters from 1, 0 for none

  bool IsExpression() const { return evaluation.has_value(); }
  bool HasValue() const;
};

ExpressionReport ReportOn(std::wstring_view expression, const XmlDocument& formules, const EvaluatorSettings& settings);

}  // namespace xrpt
