#include "model/StyleReference.h"

#include "model/RVReportPage.h"

namespace xrpt {

bool ReadStyleReference(const RVCardControl& card, const XmlNode& reference, std::wstring& styleName,
                        RVReportPage* page) {
  if (!reference) return false;
  const std::wstring id = reference.Value();
  if (card.Services().styles->StyleId2Name(id, styleName)) return true;
  styleName.clear();
  if (page && !id.empty()) page->LoseStyle({card.Key(), id});
  return false;
}

void WriteStyleReference(StyleTable& styles, XmlWriter& out, const std::wstring& styleName) {
  std::wstring id;
  if (!styleName.empty() && styles.StyleName2Id(styleName, id)) out.Value("style", id);
}

bool TakeStyle(StyleTable& styles, const std::wstring& styleName, Font& font, Color& color) {
  const std::optional<StyleFont> style = styles.Font(styleName);
  if (!style) return false;
  font = {style->name, style->size, style->style};
  if (style->hasColor) color = style->color;
  return true;
}

}  // namespace xrpt
