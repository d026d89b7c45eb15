#include "desktop/look/Texts.h"

#include "platform/Text.h"

namespace xrpt {

QString Translated(int textId, const QString& argument) {
  return ToQString(FormatText(HostText(textId), argument.toStdWString()));
}

}  // namespace xrpt
