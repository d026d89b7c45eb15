#include "desktop/dialogs/ReportPreview.h"

#include <QPainter>

#include "desktop/TextIds.h"
#include "desktop/dialogs/PagePicture.h"
#include "desktop/look/Texts.h"
#include "model/RVReport.h"

namespace xrpt {

namespace {
constexpr int kMoment = 80;  // milliseconds
constexpr int kMargin = 4;   // pixels round the page
}  // namespace

ReportPreview::ReportPreview(QWidget* parent) : QWidget(parent) {
  setMinimumSize(140, 160);
  setAccessibleName(Translated(text::kReportPreview));
  moment_.setSingleShot(true);
  moment_.setInterval(kMoment);
  connect(&moment_, &QTimer::timeout, this, [this] { Make(); });
}

void ReportPreview::Show(const Path& file, const FileStamp& stamp) {
  if (file == file_ && stamp == stamp_) return;
  file_ = file;
  stamp_ = stamp;
  const auto known = known_.find(file);
  const bool isKnown = known != known_.end() && known->second.stamp == stamp;
  picture_ = isKnown ? known->second.picture : QImage();
  moment_.stop();
  if (!isKnown && !file.empty() && stamp.size <= kLargest) moment_.start();
  update();
}

void ReportPreview::Make() {
  RVReport report;
  const double dense = devicePixelRatioF();
  if (report.LoadFile(file_).loaded) {
    const QSize room = size() - QSize(2 * kMargin, 2 * kMargin);
    picture_ = PictureOf(*report.pages.front(), room * dense);
    picture_.setDevicePixelRatio(dense);
  }
  known_[file_] = {stamp_, picture_};
  update();
}

QString ReportPreview::Notice() const {
  if (file_.empty() || moment_.isActive()) return {};
  return Translated(stamp_.size > kLargest ? text::kTooLargeToPreview : text::kNoPreview);
}

void ReportPreview::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (picture_.isNull()) {
    painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, Notice());
    return;
  }
  const QSize shown =
      picture_.deviceIndependentSize().toSize().scaled(size() - QSize(2 * kMargin, 2 * kMargin), Qt::KeepAspectRatio);
  const QRect place({(width() - shown.width()) / 2, kMargin}, shown);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(place, picture_);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(place.adjusted(-1, -1, 0, 0));
}

}  // namespace xrpt
