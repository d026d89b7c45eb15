// A ruler in millimetres along an edge of the page view, with marks where the pointer and the selection are.
#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "desktop/page/RulerMarks.h"

namespace xrpt {

class Ruler final : public QWidget {
 public:
  static constexpr int kThickness = 20;

  explicit Ruler(Qt::Orientation orientation, QWidget* parent = nullptr);

  void SetScale(const RulerScale& scale, double pageMillimetres);
  // In pixels; nothing when the pointer is elsewhere.
  void SetPointer(std::optional<int> position);
  // First and last pixel of the selection; nothing without one.
  void SetSelection(std::optional<std::pair<int, int>> range);
  // Where lines cross it, pixels.
  void SetLines(const std::vector<int>& lines);

  // The ruler is pressed at a pixel along it, and a line is dragged out of it (points of the screen).
  std::function<void(int along)> pressed;
  std::function<void(QPoint at)> dragged;
  std::function<void(QPoint at)> released;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  // Paints a stretch of pixels again, the last one included.
  void Renew(int first, int last);
  int Length() const { return orientation_ == Qt::Horizontal ? width() : height(); }
  // A rectangle along the ruler, whichever way it lies.
  QRectF Along(double from, double to, double near, double far) const;
  void PaintMark(QPainter& painter, const RulerMark& mark) const;
  void PaintLabel(QPainter& painter, const RulerMark& mark) const;

  Qt::Orientation orientation_;
  RulerScale scale_;
  double page_ = 0.0;
  std::optional<int> pointer_;
  std::optional<std::pair<int, int>> selection_;
  std::vector<int> lines_;
};

}  // namespace xrpt
