// How the cost of each command grows with the cards it works on: 1,000, 10,000 and 100,000, all of them selected. Twice
// as many may cost a little more than twice as much and no more: an exponent above 1.2 fails the run. Each figure is
// the best of a few, of the whole command with its step of the history.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <functional>

#include "canvas/UndoTexts.h"
#include "editor/RVEditControlWnd.h"
#include "editor/SelectedFields.h"
#include "host/DefaultHost.h"
#include "model/RVCardLabel.h"
#include "support/AnsweringPort.h"

namespace xrpt {
namespace {

constexpr double kMostGrowth = 1.2;

void Fill(RVEditControlWnd& frame, std::size_t count) {
  PageEdit edit = frame.CurrentPage().Edit({text::kInsert, 1});
  for (std::size_t i = 0; i < count; ++i) {
    auto card = std::make_unique<RVCardLabel>();
    card->text = L"Energy of feeder " + std::to_wstring(i);
    card->x = static_cast<double>(i % 97) * 2.0;
    card->y = static_cast<double>(i % 89) * 3.0;
    card->width = card->height = 2.0;
    edit.Cards().PushBack(std::move(card));
  }
}

double Milliseconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

struct Row {
  const char* name;
  void (*command)(RVEditControlWnd& frame);
  std::size_t share = 1;  // of the cards there are, the part that is selected
};

const Row kRows[] = {
    {"select all", [](RVEditControlWnd& f) { f.CurrentPage().ControlSelectAll(); }},
    {"bring to front", [](RVEditControlWnd& f) { f.CurrentPage().ControlBringToFront(); }},
    {"send to back", [](RVEditControlWnd& f) { f.CurrentPage().ControlSendToBack(); }},
    {"align left", [](RVEditControlWnd& f) { f.CurrentPage().AlignSelectedControls(kAlignLeftEdges); }},
    {"distribute", [](RVEditControlWnd& f) { f.CurrentPage().DistributeSelectedControls(0); }},
    {"same size", [](RVEditControlWnd& f) { f.CurrentPage().ResizeSelectedControls(true, true); }},
    {"nudge", [](RVEditControlWnd& f) { f.CurrentPage().OnKeyDown(key::Down, {}); }},
    {"a field of all",
     [](RVEditControlWnd& f) {
       SelectedFields fields(f);
       fields.Assign(*fields.Find("color")->row, f.CurrentPage().Page().cards[0].color == 0 ? "FF" : "0");
       fields.Commit();
     }},
    {"panel of all", [](RVEditControlWnd& f) { SelectedFields(f).Fields(); }},
    {"copy", [](RVEditControlWnd& f) { f.CurrentPage().ControlCopy(); }, 5},
    {"delete and undo",
     [](RVEditControlWnd& f) {
       f.CurrentPage().ControlDelete();
       f.Undo();
     }},
    {"duplicate page and undo",
     [](RVEditControlWnd& f) {
       f.DuplicatePage();
       f.Undo();
     }},
};

double Cost(const Row& row, std::size_t count) {
  AnsweringPort port;
  RVEditControlWnd frame(port, EditingOptions::Comfort());
  Fill(frame, count);
  double best = 1e9;
  for (int i = 0; i < 3; ++i) {
    std::vector<std::size_t> places;
    for (std::size_t at = 0; at < count; at += row.share) places.push_back(at);
    frame.CurrentPage().SelectPlaces(places);
    best = std::min(best, Milliseconds([&] { row.command(frame); }));
    frame.Queue().Drain();
  }
  return best;
}

int Run() {
  bool grows = false;
  std::printf("  %-26s %10s %10s %10s   exponent\n", "command, milliseconds at", "1,000", "10,000", "100,000");
  for (const Row& row : kRows) {
    const double small = Cost(row, 1'000);
    const double middle = Cost(row, 10'000);
    const double large = Cost(row, 100'000);
    const double exponent = std::log10(large / middle);
    std::printf("  %-26s %10.3f %10.2f %10.1f   %.2f%s\n", row.name, small, middle, large, exponent,
                exponent > kMostGrowth ? "  TOO STEEP" : "");
    grows = grows || exponent > kMostGrowth;
  }
  return grows ? 1 : 0;
}

}  // namespace
}  // namespace xrpt

int main() {
  const auto host = xrpt::MakeDefaultHost({});
  xrpt::InstallHost(host.get());
  return xrpt::Run();
}
