// Texts between the library's wide strings and the toolkit's, and texts of the catalogue by number.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "platform/Host.h"

class QCoreApplication;

namespace xrpt {

inline QString ToQString(std::wstring_view text) {
  return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}
inline QString Translated(int textId) { return ToQString(HostText(textId)); }
// With its "%d" or "%s" replaced.
QString Translated(int textId, const QString& argument);

// The toolkit's own texts (Yes, Cancel, the file dialog) in a language ("es", "es_ES.UTF-8"), for as long as the
// application lives. False where there is no translation; they are English then.
bool TranslateToolkit(QCoreApplication& application, const std::string& language);

}  // namespace xrpt
