// A number field that can also stand for several numbers that differ: then it is empty until the user types or steps.
// It takes a decimal comma and a decimal point in every language. Steps by the wheel only while it has the keyboard, so
// that scrolling a panel changes nothing.
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
  double valueFromText(const QString& text) const override;
  QValidator::State validate(QString& text, int& position) const override;
  void fixup(QString& text) const override;
  void stepBy(int steps) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  QString WithoutSuffix(const QString& text) const;

  bool isMixed_ = false;
};

}  // namespace xrpt
