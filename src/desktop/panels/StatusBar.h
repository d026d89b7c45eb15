// The line at the foot of the window: hints, pointer and selection in millimetres, zoom. Parts that a narrow window has
// no room for are not shown.
#pragma once

#include <QStatusBar>
#include <functional>
#include <optional>

#include "platform/Geometry.h"

class QLabel;
class QSlider;

namespace xrpt {

class StatusBar final : public QStatusBar {
 public:
  explicit StatusBar(QWidget* parent = nullptr);

  // Millimetres on the page; nothing when the pointer is elsewhere.
  void SetPointer(std::optional<PointD> position);
  // The rectangle round the selected cards, and how many they are.
  void SetSelection(int count, const RectD& millimetres);
  void SetZoom(double zoom);
  // Comes first of what stands at the right, and stays in a narrow window.
  void AddFirst(QWidget& part);

  // The user moved the slider: the zoom it stands for now.
  std::function<void(double)> zoomChosen;

  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void AddSlider();

  QWidget* first_ = nullptr;
  QLabel* pointer_;
  QLabel* selection_;
  QSlider* slider_;
  QLabel* percent_;
};

// The slider's positions are zooms on a scale that doubles every hundred, so that small zooms have as much room as
// large ones.
int SliderPosition(double zoom);
double SliderZoom(int position);

}  // namespace xrpt
