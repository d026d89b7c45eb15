#include "desktop/page/Rulers.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <algorithm>
#include <utility>

#include "desktop/TextIds.h"
#include "desktop/look/Texts.h"
#include "desktop/look/Theme.h"

namespace xrpt {

namespace {

constexpr int kLabelRoom = 64;  // pixels; no label is longer

double LengthOf(RulerMarkKind kind) {
  switch (kind) {
    case RulerMarkKind::Major:
      return 9.0;
    case RulerMarkKind::Middle:
      return 6.0;
    case RulerMarkKind::Minor:
      break;
  }
  return 3.5;
}

}  // namespace

Ruler::Ruler(Qt::Orientation orientation, QWidget* parent) : QWidget(parent), orientation_(orientation) {
  const bool isHorizontal = orientation == Qt::Horizontal;
  isHorizontal ? setFixedHeight(kThickness) : setFixedWidth(kThickness);
  setToolTip(Translated(text::kRulerHint));
  setAccessibleName(Translated(isHorizontal ? text::kHorizontalRuler : text::kVerticalRuler));
  QFont small = font();
  small.setPointSizeF(small.pointSizeF() * 0.75);
  setFont(small);
}

void Ruler::SetScale(const RulerScale& scale, double pageMillimetres) {
  if (scale == scale_ && pageMillimetres == page_) return;
  scale_ = scale;
  page_ = pageMillimetres;
  update();
}

void Ruler::SetPointer(std::optional<int> position) {
  if (position == pointer_) return;
  for (const std::optional<int>& at : {std::exchange(pointer_, position), position}) {
    if (at) Renew(*at, *at);
  }
}

void Ruler::SetSelection(std::optional<std::pair<int, int>> range) {
  if (range == selection_) return;
  for (const auto& part : {std::exchange(selection_, range), range}) {
    if (part) Renew(part->first, part->second);
  }
}

void Ruler::Renew(int first, int last) { update(Along(first, last + 1, 0, kThickness).toAlignedRect()); }

void Ruler::SetLines(const std::vector<int>& lines) {
  if (lines == lines_) return;
  lines_ = lines;
  update();
}

void Ruler::mousePressEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  if (event->button() == Qt::LeftButton && pressed) pressed(orientation_ == Qt::Horizontal ? at.x() : at.y());
}

void Ruler::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons().testFlag(Qt::LeftButton) && dragged) dragged(event->globalPosition().toPoint());
}

void Ruler::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && released) released(event->globalPosition().toPoint());
}

QRectF Ruler::Along(double from, double to, double near, double far) const {
  return orientation_ == Qt::Horizontal ? QRectF(QPointF(from, kThickness - far), QPointF(to, kThickness - near))
                                        : QRectF(QPointF(kThickness - far, from), QPointF(kThickness - near, to));
}

// A pointer that moves takes its own few pixels and the marks around them.
void Ruler::paintEvent(QPaintEvent* event) {
  const QRect part = event->rect();
  const int from = orientation_ == Qt::Horizontal ? part.left() : part.top();
  const int to = orientation_ == Qt::Horizontal ? part.right() : part.bottom();
  const ThemeColors& colors = CurrentTheme();
  QPainter painter(this);
  painter.fillRect(rect(), colors.window);
  painter.fillRect(Along(scale_.origin, scale_.origin + page_ * scale_.pixelsPerMm, 0, kThickness), colors.panel);
  if (selection_) {
    QColor tint = colors.accent;
    tint.setAlphaF(0.28F);
    painter.fillRect(Along(selection_->first, selection_->second + 1, 0, kThickness), tint);
  }
  for (const RulerMark& mark : RulerMarks(scale_, std::max(0, from - kLabelRoom), std::min(Length(), to + kLabelRoom)))
    PaintMark(painter, mark);
  for (const int line : lines_) painter.fillRect(Along(line - 1, line + 2, 0, kThickness), colors.guide);
  painter.fillRect(Along(0, Length(), 0, 1), colors.border);
  if (pointer_) painter.fillRect(Along(*pointer_, *pointer_ + 1, 0, kThickness), colors.accent);
}

void Ruler::PaintMark(QPainter& painter, const RulerMark& mark) const {
  const double at = std::floor(mark.position);
  painter.fillRect(Along(at, at + 1, 0, LengthOf(mark.kind)), CurrentTheme().muted);
  if (mark.kind == RulerMarkKind::Major) PaintLabel(painter, mark);
}

void Ruler::PaintLabel(QPainter& painter, const RulerMark& mark) const {
  painter.setPen(CurrentTheme().muted);
  const QString label = locale().toString(mark.millimetres, 'g', 6);
  if (orientation_ == Qt::Horizontal) {
    painter.drawText(QPointF(std::floor(mark.position) + 3, 9), label);
    return;
  }
  painter.save();
  painter.translate(9, std::floor(mark.position) - 3);
  painter.rotate(-90);
  painter.drawText(QPointF(0, 0), label);
  painter.restore();
}

}  // namespace xrpt
