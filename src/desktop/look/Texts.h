// Texts between the library's wide strings and the toolkit's, and texts of the catalogue by number.
#pragma once

#include <QString>
#include <string_view>

#include "platform/Host.h"

namespace xrpt {

inline QString ToQString(std::wstring_view text) {
  return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}
inline QString Translated(int textId) { return ToQString(HostText(textId)); }
// With its "%d" or "%s" replaced.
QString Translated(int textId, const QString& argument);

}  // namespace xrpt
