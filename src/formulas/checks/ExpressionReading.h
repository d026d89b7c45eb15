// What the evaluator says of an expression, asked once however many cards of a report hold it.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/Host.h"

namespace xrpt {

struct ExpressionReading {
  int analysis = 0;                               // see AnalysisCode
  int evaluation = 0;                             // see EvaluationCode
  int type = 0;                                   // see ValueType; of an expression that was evaluated
  bool hasModule = false;                         // told of one that fails only
  std::vector<FilteredDriverVariable> variables;  // that it and its formulas read

  bool IsEvaluated() const { return evaluation == kEvaluated || evaluation == kNoLiveValue; }
};

class ExpressionReadings {
 public:
  // `formules` may be null, and is the same in all calls.
  const ExpressionReading& Read(const Host& host, std::string_view utf8, const XmlDocument* formules);

 private:
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };
  std::unordered_map<std::string, ExpressionReading, Hash, std::equal_to<>> readings_;
};

}  // namespace xrpt
