#include "desktop/page/MarkLayer.h"

#include <QPainter>

#include "desktop/look/SeverityIcon.h"
#include "desktop/look/Texts.h"
#include "editor/RVEditControlWnd.h"

namespace xrpt {

namespace {
constexpr int kSide = 16;
}

std::vector<CardMark> MarkLayer::Marks(QSize view) const {
  if (!frame_.AreMarksShown() || frame_.PageCount() == 0) return {};
  return PlaceMarks(frame_.CurrentPage(), problems_, {0, 0, view.width(), view.height()}, kSide);
}

void MarkLayer::Paint(QPainter& painter, QSize view) const {
  for (const CardMark& mark : Marks(view)) {
    PaintSeverity(painter, QRectF(mark.rect.left, mark.rect.top, kSide, kSide), mark.severity);
  }
}

QString MarkLayer::TipAt(QPoint at, QSize view) const {
  QStringList lines;
  for (const CardMark& mark : Marks(view)) {
    if (!mark.rect.Contains({at.x(), at.y()})) continue;
    for (const std::wstring& message : problems_.MessagesOf(mark.card)) lines << ToQString(message);
  }
  return lines.join(QLatin1Char('\n'));
}

}  // namespace xrpt
