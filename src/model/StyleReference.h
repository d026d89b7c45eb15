// Cards keep a style by its name; files hold its identifier, so that renaming a style breaks no report.
#pragma once

#include <string>

#include "platform/Color.h"
#include "platform/Fonts.h"
#include "platform/Host.h"
#include "platform/Xml.h"
#include "platform/XmlWriter.h"

namespace xrpt {

class RVCardControl;
class RVReportPage;

// Takes the name of the style whose identifier a "style" element holds. True when the style is known and should be
// applied now; an unknown identifier empties the name and is noted on the card's page, when there is one, and an
// element that is missing leaves the name alone.
bool ReadStyleReference(const RVCardControl& card, const XmlNode& reference, std::wstring& styleName,
                        RVReportPage* page);

// Writes "style" when the name is known; a style nobody knows is not written.
void WriteStyleReference(StyleTable& styles, XmlWriter& out, const std::wstring& styleName);

// Takes face, style, size and, when the style has one, colour. A font's orientation stays the card's own. False, and
// nothing taken, when the style is unknown.
bool TakeStyle(StyleTable& styles, const std::wstring& styleName, Font& font, Color& color);

}  // namespace xrpt
