// What painting costs over the least it can cost: a full repaint against the same calls given straight to the painter,
// and an animation tick against copying the window's picture once.
#include <QImage>
#include <QPainter>
#include <chrono>
#include <cstdio>
#include <cstring>

#include "canvas/RVEditTemplateWnd.h"
#include "canvas/RenderPage.h"
#include "canvas/WindowPainter.h"
#include "host/qt/QtGraphics.h"
#include "host/qt/QtHost.h"
#include "model/RVCardFormule.h"
#include "model/RVCardPrimitive.h"
#include "support/RecordingGraphics.h"
#include "xrpt/ScriptPorts.h"

namespace {

using namespace xrpt;

constexpr int kCards = 10'000;
constexpr int kColumns = 100;
constexpr double kPitch = 6.0;  // millimetres from card to card

template <class Work>
double BestOf(int runs, const Work& work) {
  double best = 1e9;
  for (int i = 0; i < runs; ++i) {
    const auto start = std::chrono::steady_clock::now();
    work();
    best = std::min(best, std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
  }
  return best;
}

bool Report(const char* what, double ours, double least, double limit) {
  std::printf("%-44s %8.3f ms / %8.3f ms = %5.2f (limit %.1f)\n", what, ours, least, ours / least, limit);
  return ours / least < limit;
}

// Labels, formulas and boxes in turn.
std::unique_ptr<RVCardControl> CardAt(int i) {
  std::unique_ptr<RVCardControl> card;
  if (i % 3 == 0) {
    auto box = std::make_unique<RVCardPrimitive>();
    box->type = PrimitiveType::Box;
    box->size = 0.3;
    card = std::move(box);
  } else if (i % 3 == 1) {
    auto label = std::make_unique<RVCardLabel>();
    label->text = L"P" + std::to_wstring(i);
    label->font.size = 6.0;
    card = std::move(label);
  } else {
    auto formule = std::make_unique<RVCardFormule>();
    formule->value = std::to_wstring(i) + L".25";
    formule->font.size = 6.0;
    card = std::move(formule);
  }
  card->x = i % kColumns * kPitch;
  card->y = i / kColumns * kPitch;
  card->width = card->height = kPitch * 0.9;
  return card;
}

// A recorded call in the painter's own terms.
struct Prepared {
  CallKind kind;
  QRectF rect;
  QColor color;
  QPen pen;
  QString text;
  QFont font;
};

Prepared Prepare(const DrawCall& call) {
  Prepared out{call.kind,
               QRectF(QPointF(call.rect.left, call.rect.top), QPointF(call.rect.right, call.rect.bottom)),
               QColor(RedOf(call.color), GreenOf(call.color), BlueOf(call.color)),
               QPen(),
               QString(),
               QFont()};
  out.pen = QPen(QColor(RedOf(call.pen.color), GreenOf(call.pen.color), BlueOf(call.pen.color)), call.pen.width);
  if (call.kind == CallKind::Text) {
    out.text = QString::fromStdWString(call.text);
    out.font = QFont(QString::fromStdWString(call.font.face));
    out.font.setPixelSize(std::max(1, static_cast<int>(std::lround(call.pixelSize))));
    out.font.setHintingPreference(QFont::PreferNoHinting);
  }
  return out;
}

void Issue(QPainter& painter, const Prepared& call) {
  switch (call.kind) {
    case CallKind::Save:
      return painter.save();
    case CallKind::Restore:
      return painter.restore();
    case CallKind::ClipRect:
      return painter.setClipRect(call.rect, Qt::IntersectClip);
    case CallKind::FillRect:
      return painter.fillRect(call.rect, call.color);
    case CallKind::Rect:
      painter.setPen(call.pen);
      return painter.drawRect(call.rect);
    case CallKind::Text:
      painter.setFont(call.font);
      painter.setPen(call.color);
      return painter.drawText(call.rect.bottomLeft(), call.text);
    default:
      std::printf("a call that is not prepared\n");
  }
}

bool FullRepaint(const RVReportPage& page) {
  const double dpi = 96.0;
  const SizeD size = OutputSize(page, dpi);
  QImage image(roundi(size.width), roundi(size.height), QImage::Format_RGB32);
  RecordingGraphics recorded;
  RenderPage(recorded, page, dpi);
  std::vector<Prepared> calls;
  for (const DrawCall& call : recorded.calls) calls.push_back(Prepare(call));

  PictureCache cache;
  const double ours = BestOf(15, [&] {
    QPainter painter(&image);
    QtGraphics graphics(painter, cache);
    RenderPage(graphics, page, dpi);
  });
  const double least = BestOf(15, [&] {
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    for (const Prepared& call : calls) Issue(painter, call);
  });
  const double replayed = BestOf(15, [&] {
    RecordingGraphics again;
    RenderPage(again, page, dpi);
  });
  std::printf("%-44s %8.3f ms for %zu calls\n", "layout alone, painting nothing", replayed, calls.size());
  return Report("full repaint / the same calls to the painter", ours, least, 1.5);
}

struct NoTarget final : MessageTarget {
  void OnMessage(const MessageData&) override {}
};

PixelBuffer BufferOf(QImage& image) {
  return {reinterpret_cast<std::uint32_t*>(image.bits()), image.width(), image.height(), image.bytesPerLine() / 4, 1.0};
}

// All cards in sight, a hundred of them selected, the pointer over the last.
bool AnimationTick(RVReportPage& page) {
  ScriptScreen screen;
  screen.width = screen.height = 1000;
  ScriptWindow port(screen);
  MessageQueue queue;
  NoTarget target;
  RVEditTemplateWnd window(page, port, queue, target);
  window.SetDpi(96, 96);
  window.SetMode(0);
  std::vector<std::wstring> selected;
  for (std::size_t i = 0; i < page.cards.Size(); i += 100) selected.push_back(page.cards[i].id);
  window.SelectControls(selected);
  window.OnMouseMove({995, 995}, {});

  QImage picture(screen.width, screen.height, QImage::Format_RGB32);
  picture.fill(Qt::white);
  QImage shown = picture.copy();
  PixelBuffer from = BufferOf(picture);
  PixelBuffer to = BufferOf(shown);
  int painting = 0;
  WindowOverlay overlay;
  const auto paint = [&] { overlay.Paint(to, from, painting, window, port.ClientRect(), kBlack); };
  const double anew = BestOf(10, [&] {
    ++painting;
    paint();
  });
  std::printf("%-44s %8.3f ms\n", "frames made anew", anew);
  const double ours = BestOf(50, [&] {
    window.OnTimer();
    paint();
  });
  const double least = BestOf(
      50, [&] { std::memcpy(shown.bits(), picture.constBits(), static_cast<std::size_t>(picture.sizeInBytes())); });
  return Report("animation tick / copying the window once", ours, least, 3.0);
}

}  // namespace

int main() {
  HostOptions options;
  options.settingsFile = "bench-settings.ini";
  options.dpi = 96;
  const auto host = MakeQtHost(options);
  InstallHost(host.get());
  RVReportPage page;
  page.properties.width = page.properties.height = kColumns * kPitch;
  for (int i = 0; i < kCards; ++i) page.cards.PushBack(CardAt(i));
  const bool repaint = FullRepaint(page);
  const bool tick = AnimationTick(page);
  return repaint && tick ? 0 : 1;
}
