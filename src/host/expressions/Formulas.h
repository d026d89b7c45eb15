// The formulas an expression uses, compiled once each and put in the order in which they can be computed.
#pragma once

#include <memory>
#include <unordered_map>

#include "host/expressions/Program.h"
#include "platform/Xml.h"

namespace xrpt {

// The texts of a formulas document by name; of two with one name the first counts. The document is gone through only
// when names are asked for.
class FormulaTexts {
 public:
  // No document has no formulas.
  explicit FormulaTexts(const XmlDocument* formules) : formules_(formules) {}
  // Nothing for a name that no formula has.
  std::optional<std::wstring> Text(std::wstring_view name);

 private:
  std::optional<std::wstring> SearchText(std::wstring_view name) const;
  void Read();

  const XmlDocument* formules_;
  int asked_ = 0;
  bool isRead_ = false;
  std::unordered_map<std::wstring, XmlNode> texts_;
};

// An expression or a formula it uses.
struct Unit {
  static constexpr std::size_t kUndefined = static_cast<std::size_t>(-1);

  std::wstring text;  // what the program's views look into
  Program program;
  std::vector<std::size_t> names;  // the unit that each of the program's names stands for
};

// The expression is unit 0; a unit's formulas stand before it in `order`.
struct Linked {
  // Formulas of more characters together are not looked into.
  static constexpr std::size_t kLongest = 4u << 20;

  std::vector<std::unique_ptr<Unit>> units;
  std::vector<std::size_t> order;
  ExpressionError error;
};

// Goes through all that the expression uses, however often and in however long a chain. An error leaves out the
// formulas behind it.
Linked Link(std::wstring_view text, FormulaTexts& formulas);

}  // namespace xrpt
