// Expressions as the library uses them: analysing a text, evaluating it with a report's formulas, and the tokens and
// functions it may hold. Who evaluates is the host's; the embedded evaluator is in `host/`.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace xrpt {

class XmlDocument;

// What a stretch of an expression is. The numbers of names and driver variables are the host's; a report's checks ask
// for them.
enum TokenType {
  kTokenNumber = 1,
  kTokenOperator = 2,
  kTokenOpen = 3,       // (
  kTokenClose = 4,      // )
  kTokenSeparator = 5,  // ,
  kTokenFunction = 6,
  kTokenModule = 7,  // MODULE::NAME
  kTokenName = 20,   // a formula
  kTokenDriverVariable = 21,
  kTokenWrong = 99,  // no part of any expression
};

class RVToken {
 public:
  RVToken(int type, std::wstring text, std::size_t position, std::size_t length)
      : type_(type), text_(std::move(text)), position_(position), length_(length) {}
  int GetType() const { return type_; }
  // A driver variable's name stands without its brackets.
  const std::wstring& GetText() const { return text_; }
  // Where it stands in the expression: characters, from 0, brackets included.
  std::size_t Position() const { return position_; }
  std::size_t Length() const { return length_; }

 private:
  int type_;
  std::wstring text_;
  std::size_t position_;
  std::size_t length_;
};

// What AnalizeExpression answers; any other value says that the text is no expression.
enum AnalysisCode { kNumericExpression = 0, kLogicalExpression = 1 };

// What Evaluate answers. Any other value says that the expression cannot be evaluated at all.
enum EvaluationCode {
  kEvaluated = 0,
  kEvaluationFails = 1,
  kUndefinedNames = 40,
  kNoLiveValue = 62,  // evaluated, but samples stand in for variables without a reading
};

// The type Evaluate gives a value.
enum ValueType { kNumericValue = 0, kLogicalValue = 1 };

// One expression.
class RVEvaluator {
 public:
  virtual ~RVEvaluator() = default;

  // The host's features to switch on, by number; the list ends at its end or at -1.
  virtual void SetFlags(std::span<const int> features) = 0;
  void SetFlags(std::initializer_list<int> features) { SetFlags({features.begin(), features.size()}); }
  virtual void EnableDiscriminators(bool enable) = 0;

  // See AnalysisCode. Needs no formulas: a name stands for a number.
  virtual int AnalizeExpression() = 0;
  // The formulas that names stand for: root "formules", "formule" with "name" and "text". The document is looked into
  // while the evaluator lives.
  virtual void SetFormules(const XmlDocument& formules) = 0;
  // See EvaluationCode. Analyses first when nobody did. The value is set when the code is 0 or 62, and may be infinite
  // or no number; a logical one is 1 or 0.
  virtual int Evaluate(double& value, int& type) = 0;

  // Names that no formula has, each once, in order of appearance; those of the formulas used come after the
  // expression's own. Known once the expression was evaluated.
  virtual std::vector<RVToken> GetUndefinedTokens() const = 0;
  // Driver variables (type 21), each once, in order of appearance; when formulas are set, those of the formulas used
  // come after the expression's own. Positions are those of the text the token stands in.
  virtual void GetDeviceVariables(std::vector<RVToken>& tokens) const = 0;

  // What went wrong last, for people, and where: characters from 1, 0 when no place is to blame. Empty when nothing
  // did.
  virtual std::wstring ErrorText() const = 0;
  virtual std::size_t ErrorPosition() const = 0;
};

// A built-in function, for choosers and completion.
struct FunctionHelp {
  std::wstring name;
  std::wstring use;      // "atan2(y, x)"
  std::wstring help;     // one line in the user's language
  std::wstring example;  // "atan2(1, 1) = 0.785398"
};

class RVTokenProducer {
 public:
  virtual ~RVTokenProducer() = default;
  virtual int NumberOfFunctions() const = 0;
  // The name of a function, from 0; empty outside the range.
  virtual std::wstring GetFunction(int index) const = 0;
  virtual FunctionHelp GetFunctionHelp(int index) const = 0;
  // The whole text cut into tokens, blanks left out. A text that is no expression is cut all the same, as far as it is
  // no longer than expressions may be.
  virtual std::vector<RVToken> Tokens(std::wstring_view text) const = 0;
};

// Makes evaluators, and answers what needs none. Safe to use from several threads at once, as are evaluators of
// different threads.
class ExpressionService {
 public:
  virtual ~ExpressionService() = default;
  virtual std::unique_ptr<RVEvaluator> NewEvaluator(std::wstring_view text) = 0;
  virtual const RVTokenProducer& TokenProducer() const = 0;
  // A code of Evaluate for people; empty for 0.
  virtual std::wstring ErrorMsg(int code) const = 0;
  // 1 when the formula of that index (from 1; -1: any of them) takes part in a circle of formulas that refer to each
  // other or leads into one, else 0. A formula that refers to itself is a circle.
  virtual int CheckBucles(std::span<const std::wstring> names, std::span<const std::wstring> texts,
                          int index) const = 0;
  // Whether the expression refers to a module of the host, MODULE::NAME, which nothing here can compute.
  virtual bool isThereAModuleInExpression(std::wstring_view text) const = 0;
};

}  // namespace xrpt
