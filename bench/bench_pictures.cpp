// Many different pictures in one render: time over decoding them bare, and the most memory the process ever had. Each
// side runs in a process of its own. `bench_pictures 20000` takes so many pictures instead of 4,000.
#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <filesystem>

#include "Measure.h"
#include "canvas/RenderPage.h"
#include "host/qt/PageSurfaces.h"
#include "host/qt/QtHost.h"
#include "model/RVCardImage.h"

namespace {

using namespace xrpt;
using bench::BestOf;
using bench::NumberOf;
using bench::PeakMebibytes;
using bench::ReportAtMost;
using bench::ReportRatio;

constexpr QSize kPictureSize(400, 300);
constexpr int kColumns = 100;
constexpr double kPitch = 12.0;  // millimetres from card to card
constexpr double kDpi = 96.0;

QString FileOf(const std::string& folder, int i) {
  return QString::fromStdString(folder + "/p" + std::to_string(i) + ".img");
}

// Smooth shades with some grain, no two alike.
QImage PictureAt(int i) {
  QImage image(kPictureSize, QImage::Format_RGB32);
  unsigned grain = static_cast<unsigned>(i) * 2654435761u + 1u;
  for (int y = 0; y < image.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      grain = grain * 1664525u + 1013904223u;
      row[x] = qRgb((x + i) & 255, (y * 2 + i / 7) & 255, int((x * y / 64 + (grain >> 30)) & 255u));
    }
  }
  return image;
}

// Every second one a photograph. What is there already stays.
void Store(const std::string& folder, int count) {
  std::filesystem::create_directories(folder);
  for (int i = 0; i < count; ++i) {
    QFile file(FileOf(folder, i));
    if (file.exists() || !file.open(QIODevice::WriteOnly)) continue;
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    PictureAt(i).save(&buffer, i % 2 ? "JPG" : "PNG", i % 2 ? 85 : -1);
    file.write(buffer.data().toBase64());
  }
}

void Fill(RVReportPage& page, int count) {
  page.properties.width = kColumns * kPitch;
  page.properties.height = (count + kColumns - 1) / kColumns * kPitch;
  for (int i = 0; i < count; ++i) {
    auto card = std::make_unique<RVCardImage>();
    card->LoadOriginalImage(L"p" + std::to_wstring(i), L"./");
    card->x = i % kColumns * kPitch;
    card->y = i / kColumns * kPitch;
    card->width = card->height = kPitch * 0.9;
    page.cards.PushBack(std::move(card));
  }
}

void PaintOurs(int count) {
  RVReportPage page;
  Fill(page, count);
  const SizeD size = OutputSize(page, kDpi);
  PngSurface surface(roundi(size.width), roundi(size.height), kDpi);
  RenderPage(surface.Graphics(), page, kDpi);
}

// Read, decoded, scaled and painted one after the other, nothing kept.
void PaintBare(const std::string& folder, int count) {
  const double pitch = kPitch / 25.4 * kDpi;
  QImage page(roundi(kColumns * pitch), roundi((count + kColumns - 1) / kColumns * pitch), QImage::Format_RGB32);
  page.fill(Qt::white);
  QPainter painter(&page);
  for (int i = 0; i < count; ++i) {
    QFile file(FileOf(folder, i));
    if (!file.open(QIODevice::ReadOnly)) continue;
    const QImage picture = QImage::fromData(QByteArray::fromBase64(file.readAll()));
    const int side = roundi(pitch * 0.9);
    painter.drawImage(QPointF(roundi(i % kColumns * pitch), roundi(i / kColumns * pitch)),
                      picture.scaled(side, side * 3 / 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  }
}

int RunAlone(const std::string& side, const std::string& folder, int count) {
  HostOptions options;
  options.settingsFile = "bench-settings.ini";
  options.imagesFolder = folder;
  options.dpi = 96;
  const auto host = MakeQtHost(options);
  InstallHost(host.get());
  const double time = BestOf(1, [&] { side == "ours" ? PaintOurs(count) : PaintBare(folder, count); });
  std::printf("%.2f %.2f\n", time, PeakMebibytes());
  return 0;
}

struct Figures {
  double time = 1e9;
  double memory = 0.0;
};

Figures BestAlone(const std::string& program, const char* side, const std::string& folder, int count) {
  const std::string command = program + " " + side + " " + folder + " " + std::to_string(count);
  Figures best;
  for (int i = 0; i < 3; ++i) {
    best.time = std::min(best.time, NumberOf(command));
    best.memory = std::max(best.memory, NumberOf(command + " | cut -d' ' -f2"));
  }
  return best;
}

}  // namespace

int main(int argc, char** argv) {
  EnsureHeadlessQt();
  if (argc == 4) return RunAlone(argv[1], argv[2], std::atoi(argv[3]));
  const int count = argc > 1 ? std::atoi(argv[1]) : 4000;
  const std::string folder = std::filesystem::temp_directory_path() / "xrpt-bench-pictures";
  Store(folder, count);
  const Figures bare = BestAlone(argv[0], "bare", folder, count);
  const Figures ours = BestAlone(argv[0], "ours", folder, count);
  std::printf("%d different pictures of %d x %d, every second a JPEG\n", count, kPictureSize.width(),
              kPictureSize.height());
  const bool isQuick = ReportRatio("render / read, decoded, scaled and painted bare", ours.time, bare.time, 1.5);
  std::printf("%-58s %9.1f MiB\n", "  memory of the bare one", bare.memory);
  const bool isSlim = ReportAtMost("  memory of the render at its peak", ours.memory, "MiB", 250);
  return isQuick && isSlim ? 0 : 1;
}
