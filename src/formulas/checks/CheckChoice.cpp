#include "formulas/checks/CheckChoice.h"

#include <algorithm>

#include "formulas/checks/EditorChecks.h"
#include "formulas/checks/HostCodes.h"

namespace xrpt {

CheckChoice CheckChoice::AllHost() {
  CheckChoice choice;
  choice.Add(L"host");
  return choice;
}

CheckChoice CheckChoice::All() {
  CheckChoice choice;
  choice.Add(L"all");
  return choice;
}

bool CheckChoice::Add(std::wstring_view word) {
  if (word == L"host" || word == L"all") {
    for (const CheckCode& code : kHostCodes) names_.insert(code.name);
    if (word == L"host") return true;
    for (const EditorCheck& check : EditorChecks()) names_.insert(check.code.name);
    return true;
  }
  const CheckCode* host = FindHostCode(word);
  const CheckCode* code = host ? host : FindEditorCode(word);
  if (code) names_.insert(code->name);
  return code != nullptr;
}

bool CheckChoice::HasAnyOfHost() const {
  return std::any_of(std::begin(kHostCodes), std::end(kHostCodes), [this](const CheckCode& c) { return Has(c); });
}

bool CheckChoice::HasAnyOfEditor() const {
  const auto checks = EditorChecks();
  return std::any_of(checks.begin(), checks.end(), [this](const EditorCheck& c) { return Has(c.code); });
}

}  // namespace xrpt
