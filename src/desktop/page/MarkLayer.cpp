#include "desktop/page/MarkLayer.h"

#include <QPainter>
#include <QPixmap>
#include <map>

#include "desktop/look/SeverityIcon.h"
#include "desktop/look/Texts.h"
#include "editor/RVEditControlWnd.h"

namespace xrpt {

namespace {
constexpr int kSide = 16;

QPixmap IconOf(Severity severity, double scale) {
  QPixmap icon(QSize(kSide, kSide) * scale);
  icon.setDevicePixelRatio(scale);
  icon.fill(Qt::transparent);
  QPainter painter(&icon);
  PaintSeverity(painter, QRectF(0.0, 0.0, kSide, kSide), severity);
  return icon;
}

}  // namespace

const std::vector<CardMark>& MarkLayer::Marks(QSize view, int painting) {
  static const std::vector<CardMark> none;
  if (!frame_.AreMarksShown() || frame_.PageCount() == 0) return none;
  const Shown shown{view, painting, &frame_.CurrentPage()};
  if (shown != shown_) marks_ = PlaceMarks(*shown.page, problems_, {0, 0, view.width(), view.height()}, kSide);
  shown_ = shown;
  return marks_;
}

// Each kind is drawn once and then copied: a page may be full of them, and is shown again at every move of the mouse.
void MarkLayer::Paint(QPainter& painter, QSize view, int painting) {
  std::map<Severity, QPixmap> icons;
  const double scale = painter.device()->devicePixelRatioF();
  for (const CardMark& mark : Marks(view, painting)) {
    QPixmap& icon = icons[mark.severity];
    if (icon.isNull()) icon = IconOf(mark.severity, scale);
    painter.drawPixmap(mark.rect.left, mark.rect.top, icon);
  }
}

QString MarkLayer::TipAt(QPoint at, QSize view, int painting) {
  QStringList lines;
  for (const CardMark& mark : Marks(view, painting)) {
    if (!mark.rect.Contains({at.x(), at.y()})) continue;
    for (const std::wstring& message : problems_.MessagesOf(mark.card)) lines << ToQString(message);
  }
  return lines.join(QLatin1Char('\n'));
}

}  // namespace xrpt
