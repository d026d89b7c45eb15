#include "model/StyleReference.h"

#include "model/RVReportPage.h"
#include "platform/Host.h"

namespace xrpt {

bool ReadStyleReference(const XmlNode& reference, std::wstring& styleName, RVReportPage* page) {
  if (!reference) return false;
  const std::wstring id = reference.Value();
  const bool known = CurrentHost().styles->StyleId2Name(id, styleName);
  if (known) return true;
  styleName.clear();
  if (page && !id.empty()) ++page->lostStyles;
  return false;
}

void WriteStyleReference(XmlWriter& out, const std::wstring& styleName) {
  std::wstring id;
  if (!styleName.empty() && CurrentHost().styles->StyleName2Id(styleName, id)) out.Value("style", id);
}

bool TakeStyle(const std::wstring& styleName, Font& font, Color& color) {
  const std::optional<StyleFont> style = CurrentHost().styles->Font(styleName);
  if (!style) return false;
  font = {style->name, style->size, style->style};
  if (style->hasColor) color = style->color;
  return true;
}

}  // namespace xrpt
