// What painting costs over the least it can cost: the first picture of a page of texts nobody has seen, a repaint of
// one that was seen, and a tick of the selection's frames. bench/README.md says what is in each figure.
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QTextLayout>
#include <cstring>

#include "Measure.h"
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
using bench::BestOf;
using bench::NumberOf;
using bench::ReportRatio;

constexpr int kCards = 10'000;
constexpr int kColumns = 100;
constexpr double kPitch = 6.0;  // millimetres from card to card
constexpr double kDpi = 96.0;

std::unique_ptr<RVCardControl> LabelAt(int i) {
  auto label = std::make_unique<RVCardLabel>();
  label->text = L"Energy of feeder " + std::to_wstring(i);
  label->font.size = 6.0;
  return label;
}

// Labels, formulas and boxes in turn.
std::unique_ptr<RVCardControl> MixedAt(int i) {
  if (i % 3 == 0) {
    auto box = std::make_unique<RVCardPrimitive>();
    box->type = PrimitiveType::Box;
    box->size = 0.3;
    return box;
  }
  if (i % 3 == 1) {
    auto label = std::make_unique<RVCardLabel>();
    label->text = L"P" + std::to_wstring(i);
    label->font.size = 6.0;
    return label;
  }
  auto formule = std::make_unique<RVCardFormule>();
  formule->value = std::to_wstring(i) + L".25";
  formule->font.size = 6.0;
  return formule;
}

template <class MakeCard>
void Fill(RVReportPage& page, double pitchX, const MakeCard& makeCard) {
  page.properties.width = kColumns * pitchX;
  page.properties.height = kCards / kColumns * kPitch;
  for (int i = 0; i < kCards; ++i) {
    auto card = makeCard(i);
    card->x = i % kColumns * pitchX;
    card->y = i / kColumns * kPitch;
    card->width = pitchX * 0.9;
    card->height = kPitch * 0.9;
    page.cards.PushBack(std::move(card));
  }
}
// Wide enough for each text to stand on one line.
void FillWithLabels(RVReportPage& page) { Fill(page, 25.0, LabelAt); }

QImage ImageFor(const RVReportPage& page) {
  const SizeD size = OutputSize(page, kDpi);
  QImage image(roundi(size.width), roundi(size.height), QImage::Format_RGB32);
  image.fill(Qt::white);
  return image;
}

// A recorded call in the painter's own terms, on whole pixels where ours are.
struct Prepared {
  CallKind kind;
  QRectF rect;
  QPointF at;
  QColor color;
  QPen pen;
  QString text;
  QFont font;
  QList<QGlyphRun> glyphs;
};

QColor ToQt(Color color) { return QColor(RedOf(color), GreenOf(color), BlueOf(color)); }

QFont SizedFont(const DrawCall& call) {
  QFont font(QString::fromStdWString(call.font.face));
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(call.pixelSize))));
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

QList<QGlyphRun> ShapedAt(const QFont& font, const QString& text) {
  QTextLayout layout(text, font);
  layout.beginLayout();
  QTextLine line = layout.createLine();
  line.setLineWidth(1e7);
  line.setPosition({0.0, -line.ascent()});
  layout.endLayout();
  return layout.glyphRuns();
}

Prepared Prepare(const DrawCall& call) {
  Prepared out;
  out.kind = call.kind;
  out.rect = QRectF(QPointF(std::round(call.rect.left), std::round(call.rect.top)),
                    QPointF(std::round(call.rect.right), std::round(call.rect.bottom)));
  out.at = QPointF(call.rect.left, call.rect.bottom);
  out.color = ToQt(call.color);
  out.pen = QPen(ToQt(call.pen.color), call.pen.width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
  if (call.kind != CallKind::Text) return out;
  out.text = QString::fromStdWString(call.text);
  out.font = SizedFont(call);
  return out;
}

enum class Texts { ToShape, Shaped };

void Issue(QPainter& painter, const Prepared& call, Texts texts) {
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
      painter.setBrush(Qt::NoBrush);
      painter.setRenderHint(QPainter::Antialiasing, false);
      painter.drawRect(call.rect);
      return painter.setRenderHint(QPainter::Antialiasing);
    case CallKind::Text:
      painter.setPen(call.color);
      if (texts == Texts::Shaped) {
        for (const QGlyphRun& run : call.glyphs) painter.drawGlyphRun(call.at, run);
        return;
      }
      painter.setFont(call.font);
      return painter.drawText(call.at, call.text);
    default:
      std::printf("a call that is not prepared\n");
  }
}

void IssueAll(QImage& image, const std::vector<Prepared>& calls, Texts texts) {
  QPainter painter(&image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
  for (const Prepared& call : calls) Issue(painter, call, texts);
}

std::vector<Prepared> CallsOf(const RVReportPage& page) {
  RecordingGraphics recorded;
  RenderPage(recorded, page, kDpi);
  std::vector<Prepared> calls;
  for (const DrawCall& call : recorded.calls) calls.push_back(Prepare(call));
  return calls;
}

void PaintOurs(QImage& image, PictureCache& cache, const RVReportPage& page) {
  QPainter painter(&image);
  QtGraphics graphics(painter, cache);
  RenderPage(graphics, page, kDpi);
}

// In a process of its own: one label is drawn first, so that face and letters are loaded for either side.
int FirstPaint(bool isOurs) {
  RVReportPage warm;
  warm.cards.PushBack(LabelAt(1234567890));
  RVReportPage page;
  FillWithLabels(page);
  QImage image = ImageFor(page);
  if (isOurs) {
    PictureCache cache;
    PaintOurs(image, cache, warm);
    std::printf("%.4f\n", BestOf(1, [&] { PaintOurs(image, cache, page); }));
    return 0;
  }
  // What the recording measured is forgotten by the toolkit, which remembers no texts.
  const std::vector<Prepared> few = CallsOf(warm);
  const std::vector<Prepared> calls = CallsOf(page);
  IssueAll(image, few, Texts::ToShape);
  std::printf("%.4f\n", BestOf(1, [&] { IssueAll(image, calls, Texts::ToShape); }));
  return 0;
}

bool FirstPaints(const std::string& program) {
  double ours = 1e9;
  double bare = 1e9;
  for (int i = 0; i < 7; ++i) {
    ours = std::min(ours, NumberOf(program + " --first-ours"));
    bare = std::min(bare, NumberOf(program + " --first-bare"));
  }
  return ReportRatio("first paint of 10,000 texts / shaped and drawn bare", ours, bare, 1.3);
}

bool WarmRepaint(const char* what, const RVReportPage& page) {
  QImage image = ImageFor(page);
  std::vector<Prepared> calls = CallsOf(page);
  for (Prepared& call : calls) call.glyphs = ShapedAt(call.font, call.text);
  PictureCache cache;
  double ours = 1e9;
  double least = 1e9;
  for (int i = 0; i < 15; ++i) {
    ours = std::min(ours, BestOf(1, [&] { PaintOurs(image, cache, page); }));
    least = std::min(least, BestOf(1, [&] { IssueAll(image, calls, Texts::Shaped); }));
  }
  const double layout = BestOf(15, [&] {
    RecordingGraphics again;
    RenderPage(again, page, kDpi);
  });
  std::printf("%-58s %9.3f ms for %zu calls\n", "  of it layout and recording, painting nothing", layout, calls.size());
  return ReportRatio(what, ours, least, 1.5);
}

struct NoTarget final : MessageTarget {
  void OnMessage(const MessageData&) override {}
};

PixelBuffer BufferOf(QImage& image) {
  return {reinterpret_cast<std::uint32_t*>(image.bits()), image.width(), image.height(), image.bytesPerLine() / 4, 1.0};
}

// All cards in sight, a hundred of them selected, the pointer over the last.
bool SelectionTick(RVReportPage& page) {
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
  std::printf("%-58s %9.3f ms\n", "frames of 10,000 cards made anew", anew);
  const double ours = BestOf(50, [&] {
    window.OnTimer();
    paint();
  });
  const double least = BestOf(
      50, [&] { std::memcpy(shown.bits(), picture.constBits(), static_cast<std::size_t>(picture.sizeInBytes())); });
  return ReportRatio("tick of 100 selected frames / copying the window once", ours, least, 3.0);
}

int Run(const std::string& program) {
  RVReportPage mixed;
  Fill(mixed, kPitch, MixedAt);
  RVReportPage labels;
  FillWithLabels(labels);
  bool holds = FirstPaints(program);
  holds &= WarmRepaint("repaint, labels, formulas, boxes / glyphs prepared", mixed);
  holds &= WarmRepaint("repaint, 10,000 different texts / glyphs prepared", labels);
  holds &= SelectionTick(mixed);
  return holds ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  HostOptions options;
  options.settingsFile = "bench-settings.ini";
  options.dpi = 96;
  const auto host = MakeQtHost(options);
  InstallHost(host.get());
  const std::string what = argc > 1 ? argv[1] : "";
  if (what == "--first-ours" || what == "--first-bare") return FirstPaint(what == "--first-ours");
  return Run(argv[0]);
}
