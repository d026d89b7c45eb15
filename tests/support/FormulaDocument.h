// A formulas document from names and texts.
#pragma once

#include <initializer_list>
#include <string>
#include <utility>

#include "platform/Xml.h"

namespace xrpt {

using NamedFormula = std::pair<std::wstring, std::wstring>;

inline void AddFormula(XmlDocument& document, const std::wstring& name, const std::wstring& text) {
  XmlNode formula = document.Root().NewChild("formule");
  formula.SetValue("name", name);
  formula.SetValue("text", text);
}

inline XmlDocument FormulaDocument(std::initializer_list<NamedFormula> formulas) {
  XmlDocument document("formules");
  for (const NamedFormula& formula : formulas) AddFormula(document, formula.first, formula.second);
  return document;
}

}  // namespace xrpt
