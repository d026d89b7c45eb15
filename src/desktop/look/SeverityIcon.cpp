#include "desktop/look/SeverityIcon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

namespace xrpt {

namespace {

struct Look {
  QColor ground;
  QColor sign;
};

Look LookOf(Severity severity) {
  switch (severity) {
    case Severity::Error:
      return {QColor(0xC6, 0x2D, 0x2D), Qt::white};
    case Severity::Warning:
      return {QColor(0xF2, 0xA9, 0x1A), QColor(0x30, 0x20, 0x00)};
    case Severity::Information:
      break;
  }
  return {QColor(0x2B, 0x7A, 0xB0), Qt::white};
}

// All in a square of 16.
QPainterPath ShapeOf(Severity severity) {
  QPainterPath shape;
  if (severity == Severity::Warning) {
    shape.addPolygon(QPolygonF({{8.0, 1.2}, {15.2, 14.2}, {0.8, 14.2}}));
    shape.closeSubpath();
  } else {
    shape.addEllipse(QRectF(1.0, 1.0, 14.0, 14.0));
  }
  return shape;
}

void PaintSign(QPainter& painter, Severity severity, const QColor& color) {
  painter.setPen(QPen(color, 2.0, Qt::SolidLine, Qt::RoundCap));
  switch (severity) {
    case Severity::Error:
      painter.drawLine(QPointF(5.4, 5.4), QPointF(10.6, 10.6));
      painter.drawLine(QPointF(10.6, 5.4), QPointF(5.4, 10.6));
      break;
    case Severity::Warning:
      painter.drawLine(QPointF(8.0, 5.8), QPointF(8.0, 9.2));
      painter.drawPoint(QPointF(8.0, 12.0));
      break;
    case Severity::Information:
      painter.drawPoint(QPointF(8.0, 4.6));
      painter.drawLine(QPointF(8.0, 7.6), QPointF(8.0, 11.6));
  }
}

class SeverityEngine final : public QIconEngine {
 public:
  explicit SeverityEngine(Severity severity) : severity_(severity) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const double side = std::min(rect.width(), rect.height());
    QRectF square(0.0, 0.0, side, side);
    square.moveCenter(QRectF(rect).center());
    painter->save();
    if (mode == QIcon::Disabled) painter->setOpacity(0.4);
    PaintSeverity(*painter, square, severity_);
    painter->restore();
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
  }
  QIconEngine* clone() const override { return new SeverityEngine(severity_); }

 private:
  Severity severity_;
};

}  // namespace

QIcon SeverityIcon(Severity severity) { return QIcon(new SeverityEngine(severity)); }

void PaintSeverity(QPainter& painter, const QRectF& square, Severity severity) {
  const Look look = LookOf(severity);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(square.topLeft());
  painter.scale(square.width() / 16.0, square.height() / 16.0);
  painter.setPen(QPen(QColor(255, 255, 255, 200), 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(look.ground);
  painter.drawPath(ShapeOf(severity));
  PaintSign(painter, severity, look.sign);
  painter.restore();
}

}  // namespace xrpt
