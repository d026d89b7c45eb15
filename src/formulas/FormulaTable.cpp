#include "formulas/FormulaTable.h"

#include <algorithm>

#include "platform/Characters.h"
#include "platform/Host.h"

namespace xrpt {
namespace {

bool IsFunction(std::wstring_view name) {
  const RVTokenProducer& tokens = CurrentHost().expressions->TokenProducer();
  for (int i = 0; i < tokens.NumberOfFunctions(); ++i) {
    if (tokens.GetFunction(i) == name) return true;
  }
  return false;
}

}  // namespace

FormulaTable ReadFormulas(const XmlDocument& document) {
  FormulaTable formulas;
  for (const XmlNode& node : document.Root()) {
    if (node.Tag() == "formule") formulas.push_back({node.Value("name"), node.Value("text")});
  }
  return formulas;
}

XmlDocument FormulasDocument(std::string_view root, const FormulaTable& formulas) {
  XmlDocument document(root);
  for (const Formula& formula : formulas) {
    XmlNode node = document.Root().NewChild("formule");
    node.SetValue("name", formula.name);
    node.SetValue("text", formula.text);
  }
  return document;
}

const Formula* FindFormula(const FormulaTable& formulas, std::wstring_view name) {
  const auto at = std::find_if(formulas.begin(), formulas.end(), [name](const Formula& f) { return f.name == name; });
  return at == formulas.end() ? nullptr : &*at;
}

bool IsValidFormulaName(std::wstring_view name) {
  if (name.empty() || IsDecimalDigit(name.front()) || IsFunction(name)) return false;
  return std::all_of(name.begin(), name.end(), IsNameCharacter);
}

int CheckBucles(const FormulaTable& formulas, int index) {
  std::vector<std::wstring> names, texts;
  for (const Formula& formula : formulas) {
    names.push_back(formula.name);
    texts.push_back(formula.text);
  }
  return CurrentHost().expressions->CheckBucles(names, texts, index);
}

}  // namespace xrpt
