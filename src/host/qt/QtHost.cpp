#include "host/qt/QtHost.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <clocale>
#include <cstdio>

#include "host/qt/QtClipboard.h"
#include "host/qt/QtFonts.h"
#include "host/qt/QtLocale.h"
#include "host/qt/QtPictures.h"
#include "host/qt/QtScreen.h"
#include "host/qt/QtSettings.h"

namespace xrpt {
namespace {

// What is wrong with a picture is said once, by whoever wanted it.
void QuietPictureReaders() { QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false\nqt.svg*=false")); }

// Where there is no window the toolkit's warnings are about windows; errors still matter.
void KeepErrorsOnly(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtCriticalMsg || type == QtFatalMsg) std::fprintf(stderr, "%s\n", qPrintable(message));
}

}  // namespace

void EnsureHeadlessQt() {
  if (QCoreApplication::instance()) return;
  static int argumentCount = 1;
  static char name[] = "xrpt";
  static char* arguments[] = {name, nullptr};
  qInstallMessageHandler(KeepErrorsOnly);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static const QGuiApplication application(argumentCount, arguments);
  std::setlocale(LC_NUMERIC, "C");
}

std::unique_ptr<Host> MakeQtHost(const HostOptions& options) {
  EnsureHeadlessQt();
  QuietPictureReaders();
  auto host = MakeDefaultHost(options);
  host->settings = std::make_unique<QtSettings>(host->setup->RegisterKey(), options.settingsFile, *host->logger);
  host->pictures = std::make_unique<QtPictures>();
  host->fonts = std::make_unique<QtFonts>();
  host->clipboard = std::make_unique<QtClipboard>();
  host->locale = std::make_unique<QtLocale>();
  host->screen = std::make_unique<QtScreen>(options.dpi);
  LimitPictures(*host, options);
  return host;
}

}  // namespace xrpt
