// Runs programs: a stack of numbers, no calls, no jumps, so that time follows from the length of the code.
#pragma once

#include <span>

#include "host/expressions/Program.h"

namespace xrpt {

class Machine {
 public:
  // Values of the program's names and variables, in its order. The program has no error and no module. Logical results
  // are 1 and 0; whatever is not 0 counts as true.
  double Run(const Program& program, std::span<const double> names, std::span<const double> variables);

 private:
  void Operate(Operator op);
  void Call(int function, std::size_t arguments);

  std::vector<double> stack_;  // its room is used again
};

}  // namespace xrpt
