// What the fields of a panel share, whatever form they stand in.
#pragma once

#include <functional>

#include "formulas/ExpressionChoices.h"

namespace xrpt {

class FieldUndo;

struct FieldServices {
  FieldUndo& undo;
  // What the report's expressions may use now.
  std::function<ExpressionSources()> expressions;
};

}  // namespace xrpt
