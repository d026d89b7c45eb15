#include "formulas/checks/Finding.h"

#include "platform/Host.h"
#include "platform/Text.h"

namespace xrpt {

// Texts with a "%s" say where the detail belongs; after the others it follows.
std::wstring MessageOf(const Finding& finding) {
  const std::wstring text = HostText(finding.code->textId);
  if (!finding.detail) return text;
  return text.find(L"%s") == text.npos ? text + L" " + *finding.detail : FormatText(text, *finding.detail);
}

}  // namespace xrpt
