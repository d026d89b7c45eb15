// From text to program: each operand is read as far as operators that bind tighter than the one before it reach.
#include <span>

#include "host/expressions/ExpressionTexts.h"
#include "host/expressions/Functions.h"
#include "host/expressions/NameMap.h"
#include "host/expressions/Program.h"

namespace xrpt {
namespace {

// How tight an operator binds; 0 for none. A sign before an operand binds tighter than * and looser than ^.
constexpr int kSignBinding = 7;
constexpr int kNotBinding = 9;
constexpr int BindingOf(Operator op) {
  switch (op) {
    case Operator::Or:
      return 1;
    case Operator::And:
      return 2;
    case Operator::Equal:
    case Operator::NotEqual:
      return 3;
    case Operator::Less:
    case Operator::LessOrEqual:
    case Operator::Greater:
    case Operator::GreaterOrEqual:
      return 4;
    case Operator::Add:
    case Operator::Subtract:
      return 5;
    case Operator::Multiply:
    case Operator::Divide:
      return 6;
    case Operator::Power:
      return 8;
    case Operator::None:
    case Operator::Not:
      break;
  }
  return 0;
}

constexpr bool IsLogical(Operator op) { return BindingOf(op) <= 4; }

// What stands right of an operator ends where one of this binding follows; powers are taken from the right.
constexpr int BindingBehind(Operator op) { return op == Operator::Power ? kSignBinding : BindingOf(op); }

// Signs of other languages that people type for ours.
struct Mistaken {
  std::wstring_view typed;
  std::wstring_view meant;
};
constexpr Mistaken kMistaken[] = {{L"=", L"=="}, {L"&", L"&&"}, {L"|", L"||"}, {L"{", L"("},
                                  {L"}", L")"},  {L"×", L"*"},  {L"·", L"*"},  {L"÷", L"/"},
                                  {L"−", L"-"},  {L"≤", L"<="}, {L"≥", L">="}, {L"≠", L"!="}};

class Compiler {
 public:
  Compiler(std::wstring_view text, Program& program) : tokens_(text), program_(program) {}

  void Run() {
    program_.code.reserve(kUsualLength);
    Step();
    if (token_.type == kTokenEnd) {
      program_.error.text = text::kEmptyExpression;
      return;
    }
    program_.logical = Expression(0);
    if (!Failed() && token_.type != kTokenEnd) FailAfterOperand();
  }

 private:
  // Each reads one thing, writes its code and says whether it is logical.
  bool Expression(int binding);
  bool Nested(int binding);
  bool Operand();
  bool Signed();
  bool Parenthesis();
  bool Call();
  bool Module();
  std::vector<bool> Arguments();

  static constexpr std::size_t kUsualLength = 16;  // instructions

  void Step() { token_ = tokens_.Next(); }
  bool Failed() const { return program_.error.text != 0; }
  void Fail(int text, std::wstring_view argument = {}) { FailAt(token_, text, argument); }
  void FailAt(const Token& token, int text, std::wstring_view argument = {});
  bool FailMistaken();
  void FailAtOperand();
  void FailAfterOperand();
  bool TakeOpening(const Token& function);
  void Close(const Token& opening);

  void Emit(Instruction::Kind kind, std::size_t index = 0, int what = 0) {
    program_.code.push_back({kind, static_cast<std::uint8_t>(what), static_cast<std::uint32_t>(index)});
  }
  void EmitConstant();
  void EmitReference(Instruction::Kind kind, std::vector<Reference>& list, NameMap<std::size_t>& places);

  Tokenizer tokens_;
  Program& program_;
  Token token_;
  int depth_ = 0;
  NameMap<std::size_t> names_;
  NameMap<std::size_t> variables_;
};

// The first mistake is the one that is told.
void Compiler::FailAt(const Token& token, int text, std::wstring_view argument) {
  if (!Failed()) program_.error = {text, std::wstring(argument), token.position + 1};
}

bool Compiler::FailMistaken() {
  for (const Mistaken& sign : kMistaken) {
    if (token_.type == kTokenWrong && token_.text == sign.typed) Fail(text::kPerhapsMeant, sign.meant);
  }
  return Failed();
}

void Compiler::FailAtOperand() {
  if (token_.type == kTokenEnd) return Fail(text::kEndsTooSoon);
  if (token_.type == kTokenWrong && token_.text.front() == L'[') return Fail(text::kBracketNotClosed);
  if (!FailMistaken()) Fail(text::kNotExpected, token_.text);
}

// What may not follow an operand.
void Compiler::FailAfterOperand() {
  if (token_.type == kTokenSeparator) return Fail(text::kDecimalPoint);
  if (token_.type == kTokenClose || token_.type == kTokenWrong) return FailAtOperand();
  Fail(text::kOperatorMissing, token_.text);
}

bool Compiler::Expression(int binding) {
  bool logical = Operand();
  while (!Failed() && BindingOf(token_.op) > binding) {
    const Operator op = token_.op;
    Step();
    op == Operator::Power ? Nested(BindingBehind(op)) : Expression(BindingBehind(op));
    Emit(Instruction::Kind::Operate, 0, static_cast<int>(op));
    logical = IsLogical(op);
  }
  return logical;
}

// For what may stand within itself again and again.
bool Compiler::Nested(int binding) {
  if (++depth_ > Program::kDeepest) Fail(text::kTooDeep, std::to_wstring(Program::kDeepest));
  const bool logical = !Failed() && Expression(binding);
  --depth_;
  return logical;
}

bool Compiler::Operand() {
  switch (token_.type) {
    case kTokenNumber:
      EmitConstant();
      return false;
    case kTokenName:
      EmitReference(Instruction::Kind::Name, program_.names, names_);
      return false;
    case kTokenDriverVariable:
      EmitReference(Instruction::Kind::Variable, program_.variables, variables_);
      return false;
    case kTokenModule:
      return Module();
    case kTokenFunction:
      return Call();
    case kTokenOpen:
      return Parenthesis();
    case kTokenOperator:
      return Signed();
    default:
      FailAtOperand();
      return false;
  }
}

bool Compiler::Signed() {
  const Operator op = token_.op;
  if (op != Operator::Subtract && op != Operator::Add && op != Operator::Not) {
    FailAtOperand();
    return false;
  }
  Step();
  Nested(op == Operator::Not ? kNotBinding : kSignBinding);
  if (op == Operator::Subtract) Emit(Instruction::Kind::Negate);
  if (op == Operator::Not) Emit(Instruction::Kind::Operate, 0, static_cast<int>(op));
  return op == Operator::Not;
}

bool Compiler::Parenthesis() {
  const Token opening = token_;
  Step();
  const bool logical = Nested(0);
  Close(opening);
  return logical;
}

void Compiler::Close(const Token& opening) {
  if (Failed()) return;
  if (token_.type == kTokenClose) return Step();
  if (token_.type == kTokenEnd) return FailAt(opening, text::kParenthesisNotClosed);
  FailAfterOperand();
}

bool Compiler::TakeOpening(const Token& function) {
  Step();
  if (token_.type != kTokenOpen) {
    FailAt(function, text::kWriteFunctionAs, Functions()[static_cast<std::size_t>(function.function)].use);
  }
  return !Failed();
}

bool Compiler::Call() {
  const Token name = token_;
  if (!TakeOpening(name)) return false;
  const Function& function = Functions()[static_cast<std::size_t>(name.function)];
  const std::vector<bool> logical = Arguments();
  if (logical.size() < function.fewest || logical.size() > function.most) {
    FailAt(name, text::kWriteFunctionAs, function.use);
    return false;
  }
  Emit(Instruction::Kind::Call, logical.size(), name.function);
  return function.choosesResult && logical[1] && logical[2];
}

// In parentheses, with commas between; says of each whether it is logical.
std::vector<bool> Compiler::Arguments() {
  const Token opening = token_;
  std::vector<bool> logical;
  Step();
  if (token_.type == kTokenClose) {
    Step();
    return logical;
  }
  logical.push_back(Nested(0));
  while (!Failed() && token_.type == kTokenSeparator) {
    Step();
    logical.push_back(Nested(0));
  }
  Close(opening);
  return logical;
}

// MODULE::NAME, with or without arguments: read to the end, though nothing here computes it.
bool Compiler::Module() {
  if (!program_.module) program_.module = {token_.text, token_.position, token_.length};
  Step();
  const std::size_t arguments = token_.type == kTokenOpen ? Arguments().size() : 0;
  Emit(Instruction::Kind::Module, arguments);
  return false;
}

void Compiler::EmitConstant() {
  Emit(Instruction::Kind::Constant, program_.constants.size());
  program_.constants.push_back(token_.number);
  Step();
}

void Compiler::EmitReference(Instruction::Kind kind, std::vector<Reference>& list, NameMap<std::size_t>& places) {
  if (token_.text.empty()) return Fail(text::kNoVariableName);
  const std::size_t* known = places.Find(token_.text);
  const std::size_t place = known ? *known : list.size();
  if (!known) {
    places.Add(token_.text, place);
    list.push_back({token_.text, token_.position, token_.length});
  }
  Emit(kind, place);
  const Token name = token_;
  Step();
  if (kind == Instruction::Kind::Name && token_.type == kTokenOpen) FailAt(name, text::kNoSuchFunction, name.text);
}

}  // namespace

Program Compile(std::wstring_view text) {
  Program program;
  if (text.size() > Program::kLongest) {
    program.error = {text::kTooLong, std::to_wstring(Program::kLongest), 0};
    return program;
  }
  Compiler(text, program).Run();
  return program;
}

}  // namespace xrpt
