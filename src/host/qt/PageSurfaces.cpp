#include "host/qt/PageSurfaces.h"

#include <QPageLayout>
#include <QPageSize>

namespace xrpt {
namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kLargestPage = 5000.0;  // millimetres; what readers of the format accept

QImage MakeImage(int width, int height, double dpi) {
  if (width <= 0 || height <= 0 || qint64(width) * height > PngSurface::kMaxPixels) return {};
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(Qt::white);
  image.setDotsPerMeterX(roundi(dpi * 1000.0 / kMillimetresPerInch));
  image.setDotsPerMeterY(roundi(dpi * 1000.0 / kMillimetresPerInch));
  return image;
}

}  // namespace

PngSurface::PngSurface(int width, int height, double dpi) : image_(MakeImage(width, height, dpi)) {
  if (!image_.isNull() && painter_.begin(&image_)) graphics_.emplace(painter_, cache_);
}

std::string PngSurface::Finish() {
  graphics_.reset();
  painter_.end();
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  image_.save(&buffer, "PNG");
  return buffer.data().toStdString();
}

PdfSurface::PdfSurface(const std::wstring& title, double unitsPerInch)
    : unitsPerInch_(unitsPerInch), writer_(&buffer_) {
  buffer_.open(QIODevice::WriteOnly);
  writer_.setResolution(kDotsPerInch);
  writer_.setTitle(QString::fromStdWString(title));
  writer_.setCreator(QStringLiteral("Report template editor"));
}

bool PdfSurface::BeginPage(SizeD millimetres) {
  if (!(millimetres.width > 0.0 && millimetres.height > 0.0)) return false;
  const QSizeF size(std::min(millimetres.width, kLargestPage), std::min(millimetres.height, kLargestPage));
  const QPageSize page(size, QPageSize::Millimeter, QString(), QPageSize::ExactMatch);
  writer_.setPageLayout(QPageLayout(page, QPageLayout::Portrait, QMarginsF()));
  graphics_.reset();
  if (painter_.isActive()) {
    writer_.newPage();
    painter_.restore();
  } else if (!painter_.begin(&writer_)) {
    return false;
  }
  painter_.save();
  painter_.scale(kDotsPerInch / unitsPerInch_, kDotsPerInch / unitsPerInch_);
  graphics_.emplace(painter_, cache_);
  return true;
}

std::string PdfSurface::Finish() {
  graphics_.reset();
  const bool hasPages = painter_.isActive();
  if (hasPages) painter_.end();
  return hasPages ? buffer_.data().toStdString() : std::string();
}

}  // namespace xrpt
