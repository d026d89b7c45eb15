// A report's formulas as a list, and the rules of their names.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Xml.h"

namespace xrpt {

struct Formula {
  std::wstring name;
  std::wstring text;
  bool operator==(const Formula&) const = default;
};
using FormulaTable = std::vector<Formula>;

inline constexpr std::string_view kFormulesRoot = "formules";

// The "formule" elements of a document, in order, whatever its root.
FormulaTable ReadFormulas(const XmlDocument& document);
// A document of that root that holds the formulas in order.
XmlDocument FormulasDocument(std::string_view root, const FormulaTable& formulas);
// The first of a name; null when none has it.
const Formula* FindFormula(const FormulaTable& formulas, std::wstring_view name);

// Letters, digits and "_", no digit in front, and no function's name.
bool IsValidFormulaName(std::wstring_view name);

// 1 when a formula refers to itself by way of whatever others (index from 1; -1: any of them).
int CheckBucles(const FormulaTable& formulas, int index);

}  // namespace xrpt
