// Whether the window keeps up: the panel after a selection, also of ten thousand cards, and choosers over a large plant
// and a large picture store, opened and filtered as one types.
#include <QApplication>
#include <QLineEdit>
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "Measure.h"
#include "canvas/PageEdit.h"
#include "desktop/dialogs/PictureChooser.h"
#include "desktop/dialogs/VariableChooser.h"
#include "desktop/panels/PropertyPanel.h"
#include "editor/RVEditControlWnd.h"
#include "host/qt/QtHost.h"
#include "model/RVCardLabel.h"
#include "support/AnsweringPort.h"

namespace {

using namespace xrpt;
using bench::BestOf;

bool Report(const char* what, double taken, double limit) {
  std::printf("%-52s %8.2f ms (limit %.0f)\n", what, taken, limit);
  return taken < limit;
}

constexpr int kCards = 10'000;
constexpr int kPictures = 5'000;
constexpr int kDevices = 500;
constexpr int kVariables = 100;  // of each device

void FillPage(RVEditControlWnd& frame) {
  PageEdit edit = frame.CurrentPage().Edit({});
  for (int i = 0; i < kCards; ++i) {
    auto card = std::make_unique<RVCardLabel>();
    card->x = i % 100 * 2.0;
    card->y = i / 100 * 2.5;
    card->text = L"P" + std::to_wstring(i);
    edit.Cards().PushBack(std::move(card));
  }
}

void WritePlant(const Path& folder) {
  std::ofstream out(folder / "devices.xml");
  out << "<devices>";
  for (int device = 0; device < kDevices; ++device) {
    out << "<device><id>D" << device << "</id><name>Meter " << device << "</name>";
    for (int variable = 0; variable < kVariables; ++variable)
      out << "<variable><id>V" << variable << "</id><name>Power " << variable << "</name></variable>";
    out << "</device>";
  }
  out << "</devices>";
}

void WritePictures(const Path& folder) {
  constexpr char kDot[] =
      "iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mNk+M9QDwADhgGAWjR9awAAAABJRU5ErkJggg==";
  std::filesystem::create_directories(folder);
  for (int i = 0; i < kPictures; ++i) std::ofstream(folder / ("picture" + std::to_string(i) + ".img")) << kDot;
}

template <class Chooser>
bool MeasureChooser(const char* open, const char* filter, double openLimit, double filterLimit) {
  bool ok = Report(open,
                   BestOf(3,
                          [] {
                            Chooser chooser(L"", nullptr);
                            chooser.show();
                            QCoreApplication::processEvents();
                          }),
                   openLimit);
  Chooser chooser(L"", nullptr);
  chooser.show();
  auto* line = chooser.template findChild<QLineEdit*>();
  int key = 0;
  ok &= Report(filter,
               BestOf(9,
                      [&] {
                        line->setText(QString::number(++key));
                        QCoreApplication::processEvents();
                      }),
               filterLimit);
  return ok;
}

bool MeasurePanel(RVEditControlWnd& frame) {
  PropertyPanel panel(frame);
  panel.resize(280, 900);
  panel.show();
  std::size_t at = 0;
  bool ok = Report("panel after one of 10,000 cards was selected",
                   BestOf(9,
                          [&] {
                            frame.CurrentPage().SelectPlaces({++at});
                            panel.Refresh();
                          }),
                   16.0);
  frame.CurrentPage().ControlSelectAll();
  panel.Refresh();
  return Report("panel with 10,000 cards selected", BestOf(9, [&] { panel.Refresh(); }), 16.0) && ok;
}

}  // namespace

int main(int count, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(count, arguments);
  const Path folder = std::filesystem::temp_directory_path() / "xrpt-bench-desktop";
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder / "cfg");
  WritePlant(folder / "cfg");
  WritePictures(folder / "images");
  HostOptions options;
  options.cfgFolder = folder / "cfg";
  options.imagesFolder = folder / "images";
  options.stateFolder = folder / "state";
  options.settingsFile = folder / "settings.ini";
  options.logToStderr = false;
  const std::unique_ptr<Host> host = MakeQtHost(options);
  InstallHost(host.get());
  AnsweringPort port;
  bool ok = true;
  {
    RVEditControlWnd frame(port, EditingOptions::Comfort());
    FillPage(frame);
    ok &= MeasurePanel(frame);
    ok &=
        MeasureChooser<VariableChooser>("variable chooser over 50,000 opens", "and filters as one types", 200.0, 50.0);
    ok &= MeasureChooser<PictureChooser>("picture chooser over 5,000 opens", "and filters as one types", 200.0, 50.0);
  }
  std::filesystem::remove_all(folder);
  return ok ? 0 : 1;
}
