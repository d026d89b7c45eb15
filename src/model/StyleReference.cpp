#include "model/StyleReference.h"

namespace xrpt {

bool ReadStyleReference(StyleTable& styles, const XmlNode& reference, std::wstring& styleName) {
  if (!reference) return false;
  const bool known = styles.StyleId2Name(reference.Value(), styleName);
  if (!known) styleName.clear();
  return known;
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
