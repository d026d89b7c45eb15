// What the evaluator says of an expression, asked once however many cards of however many reports hold it.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/Host.h"
#include "platform/Xml.h"

namespace xrpt {

// What the parts of a driver variable's name say it belongs to: the report, unless it is the plant's.
bool IsVirtualDevice(const FilteredDriverVariable& parts);
bool IsGoBack(const FilteredDriverVariable& parts);

struct ExpressionReading {
  int analysis = 0;                             // see AnalysisCode
  int evaluation = 0;                           // see EvaluationCode
  int type = 0;                                 // see ValueType; of an expression that was evaluated
  bool hasModule = false;                       // told of one that fails only
  std::vector<FilteredDriverVariable> sources;  // virtual devices and go-back variables it and its formulas read

  bool IsEvaluated() const { return evaluation == kEvaluated || evaluation == kNoLiveValue; }
};

// A report's table of formulas, for the evaluator.
class FormulaSource {
 public:
  // Without formulas.
  FormulaSource() = default;
  // The "formules" element must outlive the source.
  explicit FormulaSource(const XmlNode& table);

  // All its formulas in one text: two tables with the same text are alike. Null without a table.
  const std::shared_ptr<const std::string>& Text() const { return text_; }
  // Null without a table. Copied out of the report when first asked for.
  const XmlDocument* Document() const;

 private:
  XmlNode table_;
  std::shared_ptr<const std::string> text_;
  mutable std::unique_ptr<XmlDocument> document_;
};

// Remembers texts, each with what was found out about it, as long as they are few and short.
template <class Value>
class TextMemory {
 public:
  // Null for a text not known.
  const Value* Find(std::string_view text) const {
    const auto known = values_.find(text);
    return known == values_.end() ? nullptr : &known->second;
  }
  // Good until the next one is added.
  const Value& Add(std::string_view text, Value&& value) {
    if (values_.size() >= kMostTexts) values_.clear();
    if (text.size() <= kLongestText) return values_.emplace(text, std::move(value)).first->second;
    passing_ = std::move(value);
    return passing_;
  }
  void Clear() { values_.clear(); }

 private:
  static constexpr std::size_t kMostTexts = 2048;
  static constexpr std::size_t kLongestText = 512;  // bytes
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };
  std::unordered_map<std::string, Value, Hash, std::equal_to<>> values_;
  Value passing_;
};

class ExpressionReadings {
 public:
  // Good until the next call.
  const ExpressionReading& Read(const Host& host, std::string_view utf8, const FormulaSource& formulas);
  void Clear();

 private:
  // Forgets what was read with other formulas.
  void Use(const FormulaSource& formulas);

  TextMemory<ExpressionReading> plain_;   // of expressions that use no formula
  TextMemory<ExpressionReading> linked_;  // of those that use formulas of the table
  std::shared_ptr<const std::string> table_;
};

}  // namespace xrpt
