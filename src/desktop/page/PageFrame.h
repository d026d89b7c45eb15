// The page view with its rulers.
#pragma once

#include <QWidget>
#include <functional>
#include <optional>

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

  RVEditControlWnd* frame_ = nullptr;
  QWidget* corner_;
  Ruler* across_;
  Ruler* down_;
  PageView* view_;
};

}  // namespace xrpt
