#include "host/expressions/Machine.h"

#include <cmath>

#include "host/expressions/Functions.h"

namespace xrpt {
namespace {

double Compute(Operator op, double a, double b) {
  switch (op) {
    case Operator::Add:
      return a + b;
    case Operator::Subtract:
      return a - b;
    case Operator::Multiply:
      return a * b;
    case Operator::Divide:
      return a / b;
    case Operator::Power:
      return std::pow(a, b);
    case Operator::Less:
      return a < b;
    case Operator::LessOrEqual:
      return a <= b;
    case Operator::Greater:
      return a > b;
    case Operator::GreaterOrEqual:
      return a >= b;
    case Operator::Equal:
      return a == b;
    case Operator::NotEqual:
      return a != b;
    case Operator::And:
      return a != 0.0 && b != 0.0;
    case Operator::Or:
      return a != 0.0 || b != 0.0;
    case Operator::None:
    case Operator::Not:
      break;
  }
  return 0.0;
}

}  // namespace

double Machine::Run(const Program& program, std::span<const double> names, std::span<const double> variables) {
  stack_.clear();
  for (const Instruction& step : program.code) {
    switch (step.kind) {
      case Instruction::Kind::Constant:
        stack_.push_back(program.constants[step.index]);
        break;
      case Instruction::Kind::Name:
        stack_.push_back(names[step.index]);
        break;
      case Instruction::Kind::Variable:
        stack_.push_back(variables[step.index]);
        break;
      case Instruction::Kind::Operate:
        Operate(static_cast<Operator>(step.what));
        break;
      case Instruction::Kind::Negate:
        stack_.back() = -stack_.back();
        break;
      case Instruction::Kind::Call:
        Call(step.what, step.index);
        break;
      case Instruction::Kind::Module:
        return 0.0;
    }
  }
  return stack_.back();
}

void Machine::Operate(Operator op) {
  if (op == Operator::Not) {
    stack_.back() = stack_.back() == 0.0 ? 1.0 : 0.0;
    return;
  }
  const double right = stack_.back();
  stack_.pop_back();
  stack_.back() = Compute(op, stack_.back(), right);
}

void Machine::Call(int function, std::size_t arguments) {
  const std::span<const double> given(stack_.data() + stack_.size() - arguments, arguments);
  const double result = Functions()[static_cast<std::size_t>(function)].compute(given);
  stack_.resize(stack_.size() - arguments + 1);
  stack_.back() = result;
}

}  // namespace xrpt
