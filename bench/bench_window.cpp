// What a user of the editor's window feels on a page of 10,000 cards: from a mouse event of the toolkit to pixels that
// were handed to the screen, and what a tick of moving texts costs. Beside it the same of a plain window that shows a
// picture as large. Without a display it runs on the toolkit's own; under one, on that.
#include <QApplication>
#include <QPainter>
#include <QTest>
#include <cstdlib>
#include <filesystem>

#include "Measure.h"
#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"
#include "desktop/MainWindow.h"
#include "desktop/page/PageFrame.h"
#include "desktop/page/PageImage.h"
#include "desktop/page/PageView.h"
#include "editor/RVEditControlWnd.h"
#include "host/qt/QtHost.h"
#include "model/RVCardLabel.h"

namespace {

using namespace xrpt;
using bench::BestOf;
using bench::MedianOf;
using bench::ProcessorMilliseconds;
using bench::ReportAtMost;

constexpr int kCards = 10'000;
constexpr int kColumns = 100;

// Every `movingOf`-th label moves; none for 0.
void Fill(RVEditControlWnd& frame, int movingOf) {
  PageEdit edit = frame.CurrentPage().Edit({text::kInsert, 1});
  edit.Properties().xgrid = edit.Properties().ygrid = -1.0;
  while (!edit.Cards().IsEmpty()) edit.Cards().Remove({0});
  for (int i = 0; i < kCards; ++i) {
    auto card = std::make_unique<RVCardLabel>();
    card->text = L"Feeder " + std::to_wstring(i);
    card->font.size = 4.0;
    card->x = i % kColumns * 2.1;
    card->y = i / kColumns * 2.9;
    card->width = 2.0;
    card->height = 2.6;
    if (movingOf != 0 && i % movingOf == 0) {
      card->animation.behavior = Behavior::Scroll;
      card->animation.direction = Direction::Left;
    }
    edit.Cards().PushBack(std::move(card));
  }
}

// Counts what a widget was asked to paint.
class Watch final : public QObject {
 public:
  explicit Watch(QWidget& widget) : QObject(&widget) { widget.installEventFilter(this); }
  int paints = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints;
    return false;
  }
};

// Until everything asked for is painted and handed on.
void Settle(int milliseconds = 50) { QTest::qWait(milliseconds); }

// The median time from an event that the windowing system hands the toolkit to its pixels on the way to the screen.
double EventToPixels(QWidget& window, QWidget& painted, QPoint from, int moves) {
  auto* watch = new Watch(painted);
  std::vector<double> times;
  for (int i = 0; i < moves; ++i) {
    const QPoint at = painted.mapTo(&window, from + QPoint(1 + i % 7, 1 + i % 3));
    const int before = watch->paints;
    const double time = BestOf(1, [&] {
      QTest::mouseMove(window.windowHandle(), at);
      for (int turn = 0; watch->paints == before && turn < 10; ++turn) QCoreApplication::processEvents();
    });
    if (watch->paints != before) times.push_back(time);  // a move over one card changes nothing
  }
  delete watch;
  if (times.size() < 50) std::printf("only %zu moves painted anything\n", times.size());
  return times.empty() ? 1e9 : MedianOf(times);
}

// Shows a picture as large as itself and paints it again at every move.
class PlainWindow final : public QWidget {
 public:
  explicit PlainWindow(QSize size) : picture_(size, QImage::Format_RGB32) {
    picture_.fill(Qt::white);
    setFixedSize(size);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
  }

 protected:
  void mouseMoveEvent(QMouseEvent*) override { update(); }
  void paintEvent(QPaintEvent*) override { QPainter(this).drawImage(0, 0, picture_); }

 private:
  QImage picture_;
};

double FloorOf(QSize size) {
  PlainWindow plain(size);
  plain.show();
  Settle(200);
  return EventToPixels(plain, plain, {100, 100}, 201);
}

struct Desk {
  explicit Desk(int movingOf) {
    window.resize(1280, 900);
    window.show();
    Settle();
    Fill(window.Frame(), movingOf);
    window.Frame().CurrentPage().SetMode(0);
    window.Frame().CurrentPage().SetInsertKind(tool::kPointer);
    Settle(500);
  }
  PageView& View() { return window.Pages().View(); }
  RVEditTemplateWnd& Page() { return window.Frame().CurrentPage(); }
  QPoint MiddleOf(std::size_t card) {
    const Rect rect = ToPixels(Page().Placement(), RectOf(Page().Page().cards[card]));
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
  }

  MainWindow window;
};

bool MouseMoves() {
  Desk desk(0);
  std::vector<std::size_t> places;
  for (std::size_t i = 0; i < 100; ++i) places.push_back(i * 97 % kCards);
  const double least = FloorOf(desk.View().viewport()->size());
  desk.window.activateWindow();
  Settle(200);
  const double hover = EventToPixels(desk.window, *desk.View().viewport(), desk.MiddleOf(5050), 201);
  desk.Page().SelectPlaces(places);
  Settle(500);
  const QPoint from = desk.MiddleOf(0);
  const QPoint start = desk.View().viewport()->mapTo(&desk.window, from);
  QTest::mousePress(desk.window.windowHandle(), Qt::LeftButton, {}, start);
  Settle();
  const double drag = EventToPixels(desk.window, *desk.View().viewport(), from, 201);
  const bool dragged = desk.Page().DraggingRects().size() == 100;
  desk.Page().DropGesture();
  QTest::mouseRelease(desk.window.windowHandle(), Qt::LeftButton, {}, start);
  if (!dragged) std::puts("nothing was dragged");
  std::printf("%-58s %9.3f ms\n", "  a plain window that paints a picture as large", least);
  const bool hovers = ReportAtMost("mouse move over the cards, event to pixels", hover, "ms", 4);
  return ReportAtMost("mouse move with 100 of 10,000 cards, event to pixels", drag, "ms", 4) && hovers && dragged;
}

// All that the process does while texts move for a while, by the ticks it did it in.
double ProcessorTimeATick(Desk& desk, int milliseconds) {
  Settle(200);
  Watch watch(*desk.View().viewport());
  const double before = ProcessorMilliseconds();
  Settle(milliseconds);
  return (ProcessorMilliseconds() - before) / std::max(1, watch.paints);
}

bool MovingTexts(int count) {
  Desk desk(kCards / count);
  const QSize size = desk.View().viewport()->size();
  PageImage image;
  image.Paint(desk.Page(), size, 1.0);
  int time = 0;
  const double own = BestOf(50, [&] {
    desk.Page().SetAnimationTime(time += 40);
    image.PaintMoving(desk.Page());
    image.Paint(desk.Page(), size, 1.0);
  });
  const double all = ProcessorTimeATick(desk, 3000);
  const std::string name = "tick of " + std::to_string(count) + " moving texts among 10,000 cards";
  std::printf("%-58s %9.3f ms\n", ("  " + name + ", all of the program").c_str(), all);
  if (count == 100) return ReportAtMost((name + ", own time").c_str(), own, "ms", 2);
  std::printf("%-58s %9.3f ms\n", (name + ", own time").c_str(), own);
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (!std::getenv("DISPLAY") && !std::getenv("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  const std::filesystem::path folder = std::filesystem::temp_directory_path() / "xrpt-bench-window";
  HostOptions options;
  options.cfgFolder = folder / "config";
  options.stateFolder = folder / "state";
  options.settingsFile = folder / "settings.ini";
  options.dpi = 96;
  std::filesystem::create_directories(options.cfgFolder);
  const auto host = MakeQtHost(options);
  InstallHost(host.get());
  bool holds = MouseMoves();
  holds &= MovingTexts(100);
  holds &= MovingTexts(1000);
  return holds ? 0 : 1;
}
