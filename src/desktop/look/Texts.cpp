#include "desktop/look/Texts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "platform/Text.h"

namespace xrpt {

QString Translated(int textId, const QString& argument) {
  return ToQString(FormatText(HostText(textId), argument.toStdWString()));
}

bool TranslateToolkit(QCoreApplication& application, const std::string& language) {
  auto* translator = new QTranslator(&application);
  const QLocale locale(QString::fromStdString(language));
  const bool isThere = translator->load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                                        QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  return isThere && QCoreApplication::installTranslator(translator);
}

}  // namespace xrpt
