// What the history of mass edits costs in memory and time: all cards of a page nudged twenty times, all undone, all
// done again. Each in a process of its own.
#include <malloc.h>

#include <cstdlib>

#include "Measure.h"
#include "canvas/UndoTexts.h"
#include "editor/RVEditControlWnd.h"
#include "host/DefaultHost.h"
#include "model/RVCardLabel.h"
#include "support/AnsweringPort.h"

namespace xrpt {
namespace {

constexpr int kNudges = 20;

void Fill(RVEditControlWnd& frame, int count) {
  PageEdit edit = frame.CurrentPage().Edit({text::kInsert, 1});
  for (int i = 0; i < count; ++i) {
    auto card = std::make_unique<RVCardLabel>();
    card->text = L"Energy of feeder " + std::to_wstring(i);
    card->x = i % 97 * 2.0;
    card->y = i % 89 * 3.0;
    card->width = card->height = 2.0;
    edit.Cards().PushBack(std::move(card));
  }
}

double Resident() {
  ::malloc_trim(0);
  return bench::ResidentBytes() / 1048576.0;
}

enum class Figure { Memory, Nudge, Undo, Redo };

// Megabytes added by the nudges, or milliseconds of one nudge, undo or redo.
double NudgeAll(int cards, Figure wanted) {
  AnsweringPort port;
  RVEditControlWnd frame(port, EditingOptions::Comfort());
  Fill(frame, cards);
  frame.CurrentPage().ControlSelectAll();
  frame.Queue().Drain();
  const double before = Resident();
  const bench::Stopwatch nudging;
  for (int i = 0; i < kNudges; ++i) {
    frame.CurrentPage().OnKeyDown(i % 2 == 0 ? key::Down : key::Right, {});
    frame.Queue().Drain();
  }
  if (wanted == Figure::Memory) return Resident() - before;
  if (wanted == Figure::Nudge) return nudging.Milliseconds() / kNudges;
  const bench::Stopwatch undoing;
  int steps = 0;
  while (frame.CurrentPage().Page().cards[0].y > 0.0 && steps < kNudges) {
    frame.Undo();
    ++steps;
  }
  if (wanted == Figure::Undo) return undoing.Milliseconds() / steps;
  const bench::Stopwatch redoing;
  for (int i = 0; i < steps; ++i) frame.Redo();
  return redoing.Milliseconds() / steps;
}

int Run(int cards) {
  const auto host = MakeDefaultHost({});
  InstallHost(host.get());
  const auto figure = [cards](Figure wanted) {
    return bench::Measure([cards, wanted] { return NudgeAll(cards, wanted); }).own;
  };
  std::printf("%d nudges of all of %d cards: %.0f MB added; one nudge %.1f ms, undo %.1f ms, redo %.1f ms\n", kNudges,
              cards, figure(Figure::Memory), figure(Figure::Nudge), figure(Figure::Undo), figure(Figure::Redo));
  return 0;
}

}  // namespace
}  // namespace xrpt

// Takes the number of cards.
int main(int argc, char** argv) { return xrpt::Run(argc > 1 ? std::atoi(argv[1]) : 100000); }
