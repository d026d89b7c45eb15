// A number field that can also stand for several numbers that differ: then it is empty until the user types or steps.
// Steps by the wheel only while it has the keyboard, so that scrolling a panel changes nothing.
#pragma once

#include <QDoubleSpinBox>

namespace xrpt {

class MixedSpinBox final : public QDoubleSpinBox {
 public:
  explicit MixedSpinBox(QWidget* parent = nullptr);

  void ShowValue(double value);
  void ShowMixed();
  bool IsMixed() const { return isMixed_; }

 protected:
  QString textFromValue(double value) const override;
  void stepBy(int steps) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  bool isMixed_ = false;
};

}  // namespace xrpt
