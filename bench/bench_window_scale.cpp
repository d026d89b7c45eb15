// The same as bench_scale in the real window, which shows what was done: panels, lists, ribbon, status bar, the page.
#include <unistd.h>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <cstdlib>
#include <filesystem>

#include "CardRows.h"
#include "desktop/MainWindow.h"
#include "host/qt/QtHost.h"

namespace xrpt {
namespace {

class WindowDesk final : public Desk {
 public:
  explicit WindowDesk(std::size_t count) {
    window_.resize(1280, 900);
    window_.show();
    Fill(count);
    Settle();
  }
  RVEditControlWnd& Editor() override { return window_.Frame(); }
  void Settle() override {
    for (int time = 0; time < 2; ++time) {
      Desk::Settle();
      QCoreApplication::processEvents();
    }
  }

 private:
  MainWindow window_;
};

// Questions are answered with yes.
void Answer() {
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (QAbstractButton* yes = box ? box->button(QMessageBox::Yes) : nullptr) yes->click();
}

int Run(const Path& folder) {
  HostOptions options;
  options.cfgFolder = options.imagesFolder = options.stateFolder = folder;
  options.settingsFile = folder / "settings.ini";
  const auto host = MakeQtHost(options);
  InstallHost(host.get());
  QTimer answers;
  QObject::connect(&answers, &QTimer::timeout, Answer);
  answers.start(5);
  const bool fine = MeasureAll([](std::size_t count) { return std::make_unique<WindowDesk>(count); });
  InstallHost(nullptr);
  return fine ? 0 : 1;
}

}  // namespace
}  // namespace xrpt

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  std::string pattern = (std::filesystem::temp_directory_path() / "xrpt-bench-XXXXXX").string();
  const xrpt::Path folder = ::mkdtemp(pattern.data());
  const int status = xrpt::Run(folder);
  std::error_code ignored;
  std::filesystem::remove_all(folder, ignored);
  return status;
}
