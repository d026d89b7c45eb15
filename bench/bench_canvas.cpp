// What a user feels on a page of 10,000 cards: a mouse move with 100 of them selected, a move that only hovers, and the
// snapshot after a card was moved, in time and in memory. Medians of many repetitions in one run.
#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "canvas/RVEditTemplateWnd.h"
#include "host/DefaultHost.h"
#include "model/RVCardLabel.h"
#include "support/StillWindow.h"

namespace xrpt {
namespace {

constexpr int kColumns = 100;
constexpr int kRows = 100;

class Nobody final : public MessageTarget {
 public:
  void OnMessage(const MessageData&) override {}
};

struct Desk {
  Desk() : window(page, port, queue, nobody) {
    for (int i = 0; i < kColumns * kRows; ++i) {
      auto card = std::make_unique<RVCardLabel>();
      card->text = L"Energy of feeder " + std::to_wstring(i);
      card->SetParent(&page);
      card->x = i % kColumns * 2.1;
      card->y = static_cast<double>(i / kColumns) * 2.9;
      card->width = card->height = 2.0;
      page.cards.PushBack(std::move(card));
    }
    window.SetDpi(127, 127);
    window.SetInsertKind(2);
    window.AddUndoInfo(true);
  }
  void Select(std::size_t count) {
    std::vector<std::wstring> ids;
    for (std::size_t i = 0; i < count; ++i) ids.push_back(page.cards[i * 97 % page.cards.Size()].id);
    window.SelectControls(ids);
    window.AddUndoInfo(true);
  }
  Point CenterOf(std::size_t card) const {
    const Rect rect = ToPixels(window.Placement(), RectOf(page.cards[card]));
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
  }

  RVReportPage page;
  StillWindow port{{0, 0, 1200, 1400}};
  MessageQueue queue;
  Nobody nobody;
  RVEditTemplateWnd window;
};

template <class Work>
double MedianMs(int repetitions, const Work& work) {
  std::vector<double> times;
  for (int i = 0; i < repetitions; ++i) {
    const auto start = std::chrono::steady_clock::now();
    work(i);
    times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
  }
  std::nth_element(times.begin(), times.begin() + repetitions / 2, times.end());
  return times[static_cast<std::size_t>(repetitions) / 2];
}

void Print(const char* what, double value, double limit, const char* unit) {
  std::printf("  %-44s %10.4f %s, under %.0f: %s\n", what, value, unit, limit, value < limit ? "yes" : "NO");
}

double DragMove(bool guides) {
  Desk desk;
  desk.Select(100);
  desk.window.SetSmartGuides(guides);
  const Point at = desk.CenterOf(0);
  desk.window.OnLButtonDown(at, {});
  desk.window.OnMouseMove({at.x + 1, at.y});
  return MedianMs(2001, [&](int i) { desk.window.OnMouseMove({at.x + i % 7, at.y + 1 + i % 3}); });
}

double HoverMove() {
  Desk desk;
  return MedianMs(501, [&](int i) { desk.window.OnMouseMove({110 + i % 900, 1399 - i % 5}); });
}

std::size_t BytesInUse() { return ::mallinfo2().uordblks; }

void Snapshots() {
  Desk desk;
  desk.Select(1);
  const std::wstring id = desk.page.cards[0].id;
  std::vector<double> bytes;
  const double ms = MedianMs(15, [&](int i) {
    PageEdit edit = desk.window.Edit({});
    edit.Card(id)->x = 0.5 + i * 0.1;
    const std::size_t before = BytesInUse();
    edit.End();
    bytes.push_back(static_cast<double>(BytesInUse() - before));
    if (desk.window.UndoCount() != std::min<std::size_t>(20, 3 + static_cast<std::size_t>(i) + 1)) std::abort();
  });
  std::nth_element(bytes.begin(), bytes.begin() + 7, bytes.end());
  Print("snapshot after one moved card", ms, 2, "ms");
  std::printf("  %-44s %10.0f bytes; one card %zu, a pointer a card %zu\n",
              "and its memory, the copy of the card apart", bytes[7], sizeof(RVCardLabel),
              desk.page.cards.Size() * sizeof(void*));
}

double WholeDrag() {
  Desk desk;
  desk.Select(100);
  const Point at = desk.CenterOf(0);
  return MedianMs(15, [&](int i) {
    const Point from{at.x, at.y + i};
    desk.window.OnLButtonDown(from, {});
    desk.window.OnMouseMove({from.x, from.y + 1});
    desk.window.OnLButtonUp({from.x, from.y + 1});
    if (desk.window.Selection().Size() != 100 || desk.CenterOf(0).y != from.y + 1) std::abort();
  });
}

void Run() {
  std::puts("canvas, a page of 10,000 cards");
  Print("mouse move, 100 cards selected", DragMove(false), 1, "ms");
  Print("mouse move, 100 cards selected, with guides", DragMove(true), 1, "ms");
  Print("mouse move that hovers beside all cards", HoverMove(), 2, "ms");
  Snapshots();
  Print("press, move and release of 100 cards", WholeDrag(), 30, "ms");
}

}  // namespace
}  // namespace xrpt

int main() {
  const auto host = xrpt::MakeDefaultHost({});
  xrpt::InstallHost(host.get());
  xrpt::Run();
}
