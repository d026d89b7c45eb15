// The editor as a program: a host on the folders named on the command line, one window, the report asked for or the
// start page.
#include <CLI/CLI.hpp>
#include <QApplication>
#include <QLocale>
#include <QTimer>

#include "desktop/FileKeeper.h"
#include "desktop/MainWindow.h"
#include "desktop/TextIds.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"
#include "desktop/look/Theme.h"
#include "editor/RVEditControlWnd.h"
#include "host/http/QtHttp.h"
#include "host/qt/QtHost.h"
#include "platform/Text.h"

namespace {

struct Arguments {
  std::string config;
  std::string images;
  std::string language;
  std::string theme;
  std::string report;
  std::string samples;
};

// Status of the program when it should end at once.
std::optional<int> ReadArguments(int argc, char** argv, Arguments& arguments) {
  CLI::App program("Editor of report templates.", "xrpt-editor");
  program.add_option("--config", arguments.config, "Folder of reports and styles")->type_name("DIR");
  program.add_option("--images", arguments.images, "Folder of the image store")->type_name("DIR");
  program.add_option("--language", arguments.language, "Language of the texts (en, es)");
  program.add_option("--theme", arguments.theme, "light, dark or system")
      ->check(CLI::IsMember({"light", "dark", "system"}));
  program.add_option("--samples", arguments.samples, "Folder of reports to begin new ones from")->type_name("DIR");
  program.add_option("report", arguments.report, "Report to open, by name or file")->type_name("REPORT");
  program.footer("Example: xrpt-editor --config examples/config --images examples/images Consumo_mensual");
  try {
    program.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return program.exit(error) == 0 ? 0 : 2;
  }
  return std::nullopt;
}

xrpt::ThemeChoice ThemeOf(const std::string& name) {
  if (name == "light") return xrpt::ThemeChoice::Light;
  if (name == "dark") return xrpt::ThemeChoice::Dark;
  return name.empty() ? xrpt::StoredThemeChoice() : xrpt::ThemeChoice::System;
}

}  // namespace

int main(int argc, char** argv) {
  Arguments arguments;
  if (const auto status = ReadArguments(argc, argv, arguments)) return *status;

  QApplication application(argc, argv);
  xrpt::HostOptions options;
  options.cfgFolder = arguments.config;
  options.imagesFolder = arguments.images;
  options.language = arguments.language.empty() ? QLocale().name().toStdString() : arguments.language;
  options = xrpt::WithUserFolders(options);
  const auto host = xrpt::MakeQtHost(options);
  host->http = std::make_unique<xrpt::QtHttp>(*host);
  xrpt::InstallHost(host.get());
  xrpt::TranslateToolkit(application, options.language);

  QApplication::setApplicationDisplayName(xrpt::Translated(xrpt::text::kProgramName));
  QApplication::setWindowIcon(xrpt::ApplicationIcon());
  xrpt::ApplyTheme(application, ThemeOf(arguments.theme));
  int status = 0;
  {
    xrpt::MainWindow window;
    window.SetSamples(arguments.samples);
    window.Frame().RememberIn(options.stateFolder / "notes");
    if (arguments.report.empty()) {
      window.ShowStart();
    } else {
      window.Open(xrpt::FromUtf8(arguments.report));
    }
    window.show();
    QTimer::singleShot(0, &window, [&window] { window.Files().OfferRecovered(); });
    status = QApplication::exec();
  }
  xrpt::InstallHost(nullptr);
  return status;
}
