// What the fields of a panel share, whatever form they stand in.
#pragma once

#include <functional>
#include <vector>

#include "formulas/ExpressionChoices.h"
#include "platform/Color.h"

namespace xrpt {

class FieldUndo;

struct FieldServices {
  FieldUndo& undo;
  // What the report's expressions may use now.
  std::function<ExpressionSources()> expressions;
  // Colours that choosers offer first.
  std::function<std::vector<Color>()> colors;
};

}  // namespace xrpt
