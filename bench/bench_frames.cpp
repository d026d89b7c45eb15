// Whether the window stays smooth while reports are checked beside it: a page of 10,000 formulas scrolled and painted
// frame after frame, with nothing else, while the host's debugger goes through a large folder, and while the open
// report itself is checked over and over. A frame is late when a screen of 60 pictures a second would have missed it.
#include <unistd.h>

#include <QApplication>
#include <QScrollBar>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "Measure.h"
#include "canvas/RVEditTemplateWnd.h"
#include "desktop/MainWindow.h"
#include "desktop/ProblemsDesk.h"
#include "desktop/page/PageFrame.h"
#include "desktop/page/PageView.h"
#include "desktop/panels/ProblemsWatch.h"
#include "editor/RVEditControlWnd.h"
#include "formulas/RVReportDebugger.h"
#include "host/qt/QtHost.h"

namespace {

using namespace xrpt;

constexpr int kCards = 10'000;
constexpr int kReports = 60;
constexpr double kFrame = 1000.0 / 60.0;  // milliseconds
constexpr double kMeasured = 4000.0;

std::string ReportText() {
  std::string cards;
  for (int i = 0; i < kCards; ++i) {
    const std::string n = std::to_string(i);
    cards += "<formule><id>c" + n + "</id><x>" + std::to_string(i % 190) + "</x><y>" + std::to_string(i / 40) +
             "</y><width>6</width><height>3</height><value>[MAIN.P" + n + "] + " + n + "</value></formule>";
  }
  return "<reportLayout><id>R</id><name>r</name><page><id>p</id>" + cards + "</page></reportLayout>";
}

class Desk {
 public:
  explicit Desk(const std::filesystem::path& report) {
    window_.resize(1280, 900);
    window_.show();
    window_.Open(report.wstring());
    WaitUntilChecked();
    window_.Frame().SetZoom(2.0);
  }

  // What each frame takes, in milliseconds, with something else done before it.
  void Frames(const char* what, const std::function<void()>& beside) {
    std::vector<double> frames;
    const bench::Stopwatch watch;
    while (watch.Milliseconds() < kMeasured) {
      beside();
      const bench::Stopwatch frame;
      window_.Frame().CurrentPage().ScrollTo(static_cast<int>(frames.size() % 200),
                                             static_cast<int>(frames.size() % 300));
      window_.Pages().View().viewport()->repaint();
      QCoreApplication::processEvents();
      frames.push_back(frame.Milliseconds());
    }
    Tell(what, frames);
  }

  void CheckAfresh() {
    auto& problems = const_cast<ProblemsWatch&>(window_.Problems().Watch());
    if (problems.IsDone()) problems.LookAfresh();
  }

 private:
  void WaitUntilChecked() {
    const bench::Stopwatch watch;
    do {
      window_.Frame().Queue().Drain();
      QCoreApplication::processEvents();
    } while (watch.Milliseconds() < 1000.0 || (!window_.Problems().Watch().IsDone() && watch.Milliseconds() < 60000.0));
  }

  static void Tell(const char* what, std::vector<double>& frames) {
    std::sort(frames.begin(), frames.end());
    const auto late = std::count_if(frames.begin(), frames.end(), [](double frame) { return frame > kFrame; });
    std::printf("  %-44s median %6.2f ms, 95%% %6.2f, 99%% %6.2f, longest %6.2f; %ld of %zu frames late\n", what,
                frames[frames.size() / 2], frames[frames.size() * 95 / 100], frames[frames.size() * 99 / 100],
                frames.back(), static_cast<long>(late), frames.size());
  }

  MainWindow window_;
};

}  // namespace

int main(int argc, char** argv) {
  if (!std::getenv("DISPLAY") && !std::getenv("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  std::string pattern = (std::filesystem::temp_directory_path() / "xrpt-bench-XXXXXX").string();
  const std::filesystem::path folder = ::mkdtemp(pattern.data());
  HostOptions options;
  options.cfgFolder = options.imagesFolder = options.stateFolder = folder;
  options.settingsFile = folder / "settings.ini";
  options.dpi = 96;
  const auto host = MakeQtHost(options);
  InstallHost(host.get());
  const std::string text = ReportText();
  for (int i = 0; i < kReports; ++i) std::ofstream(folder / ("R" + std::to_string(i) + ".r.xrpt")) << text;
  {
    Desk desk(folder / "R0.r.xrpt");
    desk.Frames("nothing else", [] {});
    RVReportDebugger debugger(*host);
    desk.Frames("host's debugger over 60 reports of 10,000", [&debugger] {
      if (debugger.stopped()) debugger.start();
    });
    debugger.stop();
    desk.Frames("open report checked afresh all the time", [&desk] { desk.CheckAfresh(); });
    desk.Frames("nothing else", [] {});
  }
  std::error_code ignored;
  std::filesystem::remove_all(folder, ignored);
  return 0;
}
