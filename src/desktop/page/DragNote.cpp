#include "desktop/page/DragNote.h"

#include <QLocale>
#include <QPainter>

#include "canvas/RVEditTemplateWnd.h"
#include "desktop/look/Theme.h"

namespace xrpt {

namespace {

constexpr int kBeside = 18;  // pixels from the pointer
constexpr int kPadding = 6;

QString Number(double millimetres) { return QLocale().toString(millimetres, 'f', 1); }

QString NoteOf(const CardRect& box, bool moves) {
  return moves ? QStringLiteral("X %1   Y %2 mm").arg(Number(box.x), Number(box.y))
               : QStringLiteral("%1 × %2 mm").arg(Number(box.width), Number(box.height));
}

}  // namespace

void PaintDragNote(QPainter& painter, const RVEditTemplateWnd& window, const QSize& view) {
  const auto box = window.DraggedBox();
  if (!box) return;
  const Gesture& gesture = window.CurrentGesture();
  const QString note = NoteOf(*box, gesture.Row().kind == GestureKind::Drag && gesture.Moves());
  const QSize text = painter.fontMetrics().size(Qt::TextSingleLine, note);
  QRect tag(gesture.lastPoint.x + kBeside, gesture.lastPoint.y + kBeside, text.width() + 2 * kPadding,
            text.height() + kPadding);
  tag.moveRight(std::min(tag.right(), view.width() - 2));
  tag.moveBottom(std::min(tag.bottom(), view.height() - 2));
  tag.moveTopLeft({std::max(tag.left(), 2), std::max(tag.top(), 2)});
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(CurrentTheme().accent);
  painter.drawRoundedRect(tag, 4, 4);
  painter.setPen(CurrentTheme().onAccent);
  painter.drawText(tag, Qt::AlignCenter, note);
  painter.restore();
}

}  // namespace xrpt
