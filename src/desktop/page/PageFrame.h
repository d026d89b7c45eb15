// The page view with its rulers.
#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "canvas/CardNotes.h"
#include "platform/Geometry.h"

namespace xrpt {

class PageView;
class RVEditControlWnd;
class Ruler;

class PageFrame final : public QWidget {
 public:
  explicit PageFrame(QWidget* parent = nullptr);

  PageView& View() { return *view_; }
  void Connect(RVEditControlWnd& frame) { frame_ = &frame; }
  void ShowRulers(bool on);
  bool HasRulers() const;
  // Follows placement and selection.
  void Refresh();

  // Where the pointer is on the page, in millimetres.
  std::function<void(std::optional<PointD>)> pointerMoved;

 private:
  void MovePointer(std::optional<QPoint> at);
  void ConnectRuler(Ruler& ruler, bool isAcross);
  void TakeLine(bool isAcrossRuler, int along);
  void DragLine(QPoint at, bool isMoving);

  RVEditControlWnd* frame_ = nullptr;
  QWidget* corner_;
  Ruler* across_;
  Ruler* down_;
  PageView* view_;

  // A line that is being dragged: the others, and which way it lies.
  struct DraggedLine {
    PageLines others;
    bool isAcross = false;
  };
  std::optional<DraggedLine> line_;
};

}  // namespace xrpt
